// What a control is: its passive state. Windows show it, handlers and calculations read and write it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/canvas.hpp"
#include "ui/colour.hpp"

namespace kolvar {

struct Form;

enum class ControlKind : std::uint8_t {
    label,
    button,
    check,    // value 0 or 1
    option,   // value 0 or 1; exclusive within its group
    entry,    // text
    list,     // items, value = index or -1, text = what its field shows
    scroll,   // value between minimum and maximum
    picture,  // has a canvas
    panel,    // holds other controls
    frame,    // a panel with a caption
    menu,     // the title of a menu
    menu_entry,
    grid,
    folder_list,  // text = the folder shown
};

struct Control {
    // Registers itself in its window. index -1 = no element of an array.
    Control(Form& window, ControlKind of_kind, std::string named, std::string captioned = {}, int element = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Form& form;
    const ControlKind kind;
    const std::string name;
    const int index;

    std::string text;  // caption or text
    bool visible = true;
    bool enabled = true;
    int value = 0;
    int minimum = 0, maximum = 100;  // of a scroll bar
    std::vector<std::string> items;
    std::optional<Colour> back, fore;
    int left = 0, top = 0, width = 0, height = 0;  // twips, where the logic places the control
    bool placed = false;                           // the logic has placed it; else the layout does
    bool sized_by_hand = false;                    // a plot that was given its size; the window's rules leave it alone
    int group = 0;                                 // options of one window and group exclude each other
    bool editable = false;                         // a list whose field can be typed into
    bool locked = false;                           // an entry that shows and refuses typing
    bool multiline = false;                        // an entry of several lines
    Control* parent = nullptr;                     // panel or frame that holds it

    // What happens when the value (check, option, scroll, list) or text (entry) changes, by the user or from code.
    std::function<void()> changed;

    // Changing from code: runs `changed` only if the value changes. Setting an option clears the others of its group
    // without running theirs.
    void set_value(int new_value);
    void set_value_quietly(int new_value);
    void set_text(const std::string& new_text);  // an entry; for labels and captions assign `text`
    // A list: replaces the items and shows none of them.
    void set_items(std::vector<std::string> new_items);
    // A list: shows a text; the index follows when an item has it, else it is -1. Never runs `changed`.
    void show_item(const std::string& item);

    [[nodiscard]] bool on() const { return value != 0; }
    // Visible, or enabled, together with all panels around it.
    [[nodiscard]] bool reachable() const;
    [[nodiscard]] bool usable() const;
    void place(int at_left, int at_top) { left = at_left, top = at_top, placed = true; }
    void move_to(double at_left, double at_top);  // rounds to whole twips
    // "cmdOK" or "chkIs(4)".
    [[nodiscard]] std::string address() const;
};

struct Label : Control {
    Label(Form& window, std::string named, std::string captioned = {}, int element = -1)
        : Control(window, ControlKind::label, std::move(named), std::move(captioned), element) {}
};
struct Button : Control {
    Button(Form& window, std::string named, std::string captioned = {}, int element = -1)
        : Control(window, ControlKind::button, std::move(named), std::move(captioned), element) {}
};
struct CheckBox : Control {
    CheckBox(Form& window, std::string named, std::string captioned = {}, int element = -1)
        : Control(window, ControlKind::check, std::move(named), std::move(captioned), element) {}
};
struct OptionButton : Control {
    OptionButton(Form& window, std::string named, std::string captioned, int of_group, int element = -1)
        : Control(window, ControlKind::option, std::move(named), std::move(captioned), element) {
        group = of_group;
    }
};
struct Entry : Control {
    Entry(Form& window, std::string named, std::string shown = {}, int element = -1)
        : Control(window, ControlKind::entry, std::move(named), std::move(shown), element) {}
};
struct ListBox : Control {
    ListBox(Form& window, std::string named, int element = -1)
        : Control(window, ControlKind::list, std::move(named), {}, element) {
        value = -1;
    }
};
struct ScrollBar : Control {
    ScrollBar(Form& window, std::string named, int from, int to, int at)
        : Control(window, ControlKind::scroll, std::move(named)) {
        minimum = from, maximum = to, value = at;
    }
};
struct Panel : Control {
    Panel(Form& window, std::string named) : Control(window, ControlKind::panel, std::move(named)) {}
};
struct Frame : Control {
    Frame(Form& window, std::string named, std::string captioned)
        : Control(window, ControlKind::frame, std::move(named), std::move(captioned)) {}
};
struct MenuTitle : Control {
    MenuTitle(Form& window, std::string named, std::string captioned)
        : Control(window, ControlKind::menu, std::move(named), std::move(captioned)) {}
};
struct MenuEntry : Control {
    MenuEntry(Form& window, std::string named, std::string captioned, int element)
        : Control(window, ControlKind::menu_entry, std::move(named), std::move(captioned), element) {}
};
struct FolderList : Control {
    FolderList(Form& window, std::string named) : Control(window, ControlKind::folder_list, std::move(named)) {}
};

struct Picture : Control {
    Picture(Form& window, std::string named) : Control(window, ControlKind::picture, std::move(named)) {}
    Canvas canvas;
};

// A table of cells with colours; row 0 and column 0 are the headers.
struct Grid : Control {
    struct Cell {
        std::string text;
        Colour back = palette(15);
        Colour fore = palette(0);
    };
    Grid(Form& window, std::string named) : Control(window, ControlKind::grid, std::move(named)) {}

    int rows = 0, cols = 0;
    std::vector<int> column_widths;  // twips, by column; the last one counts for all further columns
    std::uint64_t revision = 0;      // grows with every change of cells or size; whoever changes cells calls touch()

    // Empties the grid and gives it a size.
    void resize(int new_rows, int new_cols);
    Cell& cell(int row, int col);  // Fault(index) outside
    [[nodiscard]] const Cell& cell(int row, int col) const;
    void touch() { ++revision; }

private:
    std::vector<Cell> cells_;  // row by row
};

// A control array: elements first..last, addressed by their own index.
template <class T>
class ControlArray {
public:
    template <class... Arguments>
    ControlArray(Form& window, const std::string& named, int first, int last, Arguments&&... arguments)
        : first_(first) {
        for (int element = first; element <= last; ++element)
            elements_.emplace_back(window, named, arguments..., element);
    }
    T& operator()(int element) { return elements_.at(static_cast<std::size_t>(element - first_)); }
    const T& operator()(int element) const { return elements_.at(static_cast<std::size_t>(element - first_)); }
    [[nodiscard]] int first() const { return first_; }
    [[nodiscard]] int last() const { return first_ + static_cast<int>(elements_.size()) - 1; }
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }

private:
    int first_;
    std::deque<T> elements_;  // never moves its elements: they are registered by address
};

}  // namespace kolvar
