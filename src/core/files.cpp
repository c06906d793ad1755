#include "core/files.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace kolvar {
namespace {

#ifdef _WIN32
constexpr char separator = '\\';
constexpr char other_separator = '/';
#else
constexpr char separator = '/';
constexpr char other_separator = '\\';
#endif

constexpr std::uint16_t undefined = 0xFFFD;

// Windows-1252, bytes 80 to 9F; from A0 on a byte is its own code point.
constexpr std::array<std::uint16_t, 32> windows_1252 = {
    0x20AC, undefined, 0x201A,    0x0192, 0x201E,    0x2026,    0x2020, 0x2021,    0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152,    undefined, 0x017D, undefined, undefined, 0x2018, 0x2019,    0x201C, 0x201D, 0x2022,
    0x2013, 0x2014,    0x02DC,    0x2122, 0x0161,    0x203A,    0x0153, undefined, 0x017E, 0x0178};

unsigned char byte_at(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

// Bytes of the well-formed UTF-8 character that begins here; 0 when there is none.
std::size_t character_length(std::string_view text, std::size_t at) {
    const unsigned char lead = byte_at(text, at);
    if (lead < 0x80) return 1;
    std::size_t length = 0;
    unsigned char low = 0x80;  // limits of the second byte: no overlong forms, no surrogates, nothing above 10FFFF
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    }
    if (length == 0 || at + length > text.size()) return 0;
    for (std::size_t k = 1; k < length; ++k) {
        const unsigned char next = byte_at(text, at + k);
        if (next < low || next > high) return 0;
        low = 0x80;
        high = 0xBF;
    }
    return length;
}

// How far the text is well-formed UTF-8. Measurements are nearly all ASCII, which is passed over eight bytes at a time.
std::size_t well_formed_length(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        std::uint64_t eight = 0;
        if (at + sizeof eight <= text.size()) {
            std::memcpy(&eight, text.data() + at, sizeof eight);
            if ((eight & 0x8080808080808080U) == 0) {
                at += sizeof eight;
                continue;
            }
        }
        const std::size_t length = character_length(text, at);
        if (length == 0) break;
        at += length;
    }
    return at;
}

void append_windows_1252(std::string& out, unsigned char byte) {
    const unsigned code = byte < 0xA0 ? windows_1252[byte - 0x80U] : byte;
    if (code < 0x800) {
        out += static_cast<char>(0xC0U | (code >> 6U));
    } else {
        out += static_cast<char>(0xE0U | (code >> 12U));
        out += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
    }
    out += static_cast<char>(0x80U | (code & 0x3FU));
}

std::size_t last_separator(std::string_view path) { return path.find_last_of("/\\"); }

// Where the line ends that begins the text. Both line ends are sought in short stretches, so that a text that holds
// one of them only far away, or never, is not run through at every line.
std::size_t end_of_line(std::string_view text) {
    constexpr std::size_t stretch = 256;
    for (std::size_t from = 0; from < text.size(); from += stretch) {
        const std::size_t length = std::min(stretch, text.size() - from);
        const char* begin = text.data() + from;
        const auto* feed = static_cast<const char*>(std::memchr(begin, '\n', length));
        const std::size_t before = feed != nullptr ? static_cast<std::size_t>(feed - begin) : length;
        const auto* carriage = static_cast<const char*>(std::memchr(begin, '\r', before));
        if (carriage != nullptr) return static_cast<std::size_t>(carriage - text.data());
        if (feed != nullptr) return static_cast<std::size_t>(feed - text.data());
    }
    return text.size();
}

}  // namespace

std::string native_path(std::string_view path) {
    std::string out(path);
    std::replace(out.begin(), out.end(), other_separator, separator);
    return out;
}

std::string join_path(std::string_view folder, std::string_view name) {
    std::string out = native_path(folder);
    if (out.empty() || out.back() != separator) out += separator;
    return out + native_path(name);
}

std::string path_in(std::string_view folder, std::string_view name) {
    return folder.empty() ? native_path(name) : join_path(folder, name);
}

bool is_relative_path(const std::string& path) {
    const std::string native = native_path(path);
    return !native.empty() && native.front() != '/';
}

std::string file_name(std::string_view path) {
    const std::size_t at = last_separator(path);
    return std::string(at == std::string_view::npos ? path : path.substr(at + 1));
}

std::string folder_of(std::string_view path) {
    const std::size_t at = last_separator(path);
    return std::string(at == std::string_view::npos ? std::string_view() : path.substr(0, at));
}

std::string last_three(std::string_view path) {
    return std::string(path.size() > 3 ? path.substr(path.size() - 3) : path);
}

std::string to_text(std::string bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);
    std::size_t at = well_formed_length(bytes);
    if (at == bytes.size()) return bytes;
    std::string out = bytes.substr(0, at);
    out.reserve(bytes.size() + bytes.size() / 8);
    while (at < bytes.size()) {
        const std::size_t length = character_length(bytes, at);
        if (length == 0) {
            append_windows_1252(out, byte_at(bytes, at));
            ++at;
        } else {
            out.append(bytes, at, length);
            at += length;
        }
    }
    return out;
}

std::string_view LineReader::next() {
    if (rest_.empty()) return {};
    const std::size_t end = end_of_line(rest_);
    const std::string_view out = rest_.substr(0, end);
    std::size_t taken = end;
    if (taken < rest_.size()) {
        if (rest_[taken] == '\r' && taken + 1 < rest_.size() && rest_[taken + 1] == '\n') ++taken;
        ++taken;
    }
    rest_.remove_prefix(taken);
    ++line_;
    return out;
}

}  // namespace kolvar
