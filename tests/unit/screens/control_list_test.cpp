// Each listed control is in its window under its name, is what its name says, and bears the caption that belongs to it.
#include "unit/screens/control_list.hpp"

#include <algorithm>
#include <set>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

std::vector<ListedWindow> listed_windows() {
    std::vector<ListedWindow> out = listed_steps();
    for (ListedWindow& window : listed_side_windows()) out.push_back(std::move(window));
    return out;
}

// By the first letters of its name; true for names that tell nothing.
bool is_what_its_name_says(const Control& control) {
    struct Prefix {
        const char* letters;
        std::vector<ControlKind> kinds;
    };
    static const std::vector<Prefix> prefixes = {
        {"Command", {ControlKind::button}},
        {"Combo", {ControlKind::list}},
        {"Check", {ControlKind::check}},
        {"Option", {ControlKind::option}},
        {"VScroll", {ControlKind::scroll}},
        {"FlexGrid", {ControlKind::grid}},
        {"Frame", {ControlKind::frame, ControlKind::panel}},
        {"cmd", {ControlKind::button}},
        {"cms", {ControlKind::button}},
        {"chk", {ControlKind::check}},
        {"txt", {ControlKind::entry}},
        {"lbl", {ControlKind::label}},
        {"combo", {ControlKind::list}},
        {"pict", {ControlKind::picture, ControlKind::panel}},
        {"mnu", {ControlKind::menu, ControlKind::menu_entry}},
        {"hlp", {ControlKind::menu, ControlKind::menu_entry}},
    };
    for (const Prefix& prefix : prefixes)
        if (control.name.rfind(prefix.letters, 0) == 0)
            return std::find(prefix.kinds.begin(), prefix.kinds.end(), control.kind) != prefix.kinds.end();
    if (control.name.rfind("opt", 0) != 0) return true;
    // The tests of the settings can be switched off one by one, as boxes can.
    return control.kind == ControlKind::option || control.kind == ControlKind::check;
}

class ControlList : public ProgramOnKit {};

TEST_F(ControlList, HoldsEveryWindowOnce) {
    std::multiset<std::string> listed, windows;
    for (const ListedWindow& window : listed_windows()) listed.insert(window.window);
    for (const Form* form : forms().all()) windows.insert(form->name);
    EXPECT_EQ(listed, windows);
}

TEST_F(ControlList, EveryControlIsInItsWindowUnderItsNameWithItsCaption) {
    int seen = 0;
    for (const ListedWindow& window : listed_windows()) {
        const Form* const form = forms().find(window.window);
        ASSERT_NE(form, nullptr) << window.window;
        if (window.title != nullptr) {
            EXPECT_EQ(form->title, window.title);
        }
        for (const NamedControl& named : window.controls) {
            for (int element = named.first; element <= named.last; ++element, ++seen) {
                const Control* const control = form->find(named.control, element);
                ASSERT_NE(control, nullptr) << window.window << "." << named.control << "(" << element << ")";
                if (named.caption != nullptr) {
                    EXPECT_EQ(control->text, named.caption) << window.window;
                }
                EXPECT_TRUE(is_what_its_name_says(*control)) << window.window << "." << control->address();
            }
        }
    }
    EXPECT_GE(seen, 1000);  // so that no table is empty by mistake
}

TEST_F(ControlList, EveryTextBesideTheControlsIsInItsWindow) {
    for (const ListedWindow& window : listed_windows()) {
        const Form* const form = forms().find(window.window);
        ASSERT_NE(form, nullptr) << window.window;
        for (const std::string text : window.texts) {
            const auto shows = [&](const Control* control) { return control->text == text; };
            EXPECT_TRUE(std::any_of(form->controls.begin(), form->controls.end(), shows)) << form->name << ": " << text;
        }
    }
}

}  // namespace
}  // namespace kolvar::test
