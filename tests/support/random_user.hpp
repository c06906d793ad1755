// A user without a plan: what can be done to a control, and answers as they fall.
#pragma once

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "screens/event.hpp"
#include "support/test_support.hpp"
#include "ui/form.hpp"

namespace kolvar::test {

// Where the decisions come from.
class Choices {
public:
    virtual ~Choices() = default;
    virtual int below(int n) = 0;  // 0..n-1
    bool one_in(int n) { return below(n) == 0; }
    template <class T>
    const T& one_of(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }
};

// The same numbers on every machine; the distributions of the standard library are not.
class Dice : public Choices {
public:
    explicit Dice(unsigned seed) : source_(seed) {}
    int below(int n) override { return static_cast<int>(source_() % static_cast<unsigned>(n)); }

private:
    std::mt19937 source_;
};

// Answers as the choices fall, but for what the queues hold. Opens files of the start kit and what was saved before;
// saves beside the kit, under the names that are proposed.
class RandomPlatform : public ScriptedPlatform {
public:
    // `data` are the measurements that are opened.
    RandomPlatform(Choices& choices, std::string folder, std::vector<std::string> data)
        : choices_(choices), folder_(std::move(folder)), data_(std::move(data)) {}
    bool ask(const std::string& text, const std::string& title) override;
    std::string open_file(const FileDialog& dialog) override;
    std::optional<std::string> save_file(const FileDialog& dialog) override;
    std::string clipboard() override;
    [[nodiscard]] std::string kit() const { return folder_ + "/start-kit"; }

private:
    Choices& choices_;
    std::string folder_;
    std::vector<std::string> data_;
    std::string saved_settings_, saved_master_;
};

// The windows beside the steps.
bool beside_the_steps(const Form& form);
// It ends the program.
bool leads_out(const Control& control);

// Something that a user can do to this control; false when there is nothing. `folders` are those that a list of folders
// can be taken to.
bool random_event(const Control& control, Choices& choices, const std::vector<std::string>& folders, Event& event);

}  // namespace kolvar::test
