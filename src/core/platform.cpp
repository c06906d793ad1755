#include "core/platform.hpp"

#include <array>

#include "core/fault.hpp"

namespace kolvar {
namespace {

std::string two_digits(int number) {
    std::string out = std::to_string(number);
    if (out.size() < 2) out.insert(out.begin(), '0');
    return out;
}

}  // namespace

std::string date_text(const DateTime& when) {
    static constexpr std::array<const char*, 12> months = {"Jan.", "Feb.", "Mar.", "Apr.", "May.", "Jun.",
                                                           "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."};
    if (when.month < 1 || when.month > 12) fail(FaultKind::index);
    return std::to_string(when.day) + " " + months[static_cast<std::size_t>(when.month - 1)] + " " +
           std::to_string(when.year);
}

std::string time_text(const DateTime& when) {
    return two_digits(when.hour) + ":" + two_digits(when.minute) + ":" + two_digits(when.second);
}

}  // namespace kolvar
