// The controls that a user, a scenario or a piece of help calls by their names, window by window.
#pragma once

#include <vector>

namespace kolvar::test {

struct NamedControl {
    const char* control;
    const char* caption = nullptr;  // nullptr: none of its own, or one that follows the data
    int first = -1, last = -1;      // the elements of an array
};
struct ListedWindow {
    const char* window;
    const char* title;  // nullptr: free, or one that follows the data
    std::vector<NamedControl> controls;
    std::vector<const char*> texts;  // captions beside controls, frames around them, and texts that stand alone
};

inline NamedControl one(const char* array, int element, const char* caption) {
    return {array, caption, element, element};
}
inline NamedControl all(const char* array, int first, int last) { return {array, nullptr, first, last}; }

// The steps with their time selections, and the settings of the concentrations; all other windows.
std::vector<ListedWindow> listed_steps();
std::vector<ListedWindow> listed_side_windows();

}  // namespace kolvar::test
