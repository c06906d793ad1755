// What a user does, as one plain record: the only way into the program's handlers.
#pragma once

#include <string>

namespace kolvar {

enum class EventKind {
    click,       // left click on a button, check box, option, label, picture or menu entry
    dblclick,    // on a control, or on the window itself (control "")
    type,        // text: the whole new text of an entry or of a list's field
    enter,       // Enter pressed in a control
    leave,       // the focus leaves a control
    choose,      // value: index of a list's entry; of a folder list, text: the folder
    scroll,      // value: new value of a scroll bar
    press,       // mouse button down on a picture: button, shift, x, y
    release,     // mouse button up on a picture
    drag,        // the control is dropped on target(target_index)
    cell_click,  // row, col of a grid; 0 are the headers
    cell_dblclick,
    resize,  // x, y: new width and height, twips; control "": of the window, else of a picture
    close,   // the window's close box
};

struct Event {
    EventKind kind = EventKind::click;
    std::string window;
    std::string control;  // "" = the window itself
    int index = -1;       // element of a control array, -1 = none
    std::string text;
    int value = 0;
    int button = 1;  // 1 left, 2 right
    int shift = 0;   // sum of 1 SHIFT, 2 CTRL, 4 ALT
    double x = 0, y = 0;
    int row = 0, col = 0;
    std::string target;
    int target_index = -1;
};

// The event as a line of the scenario language.
std::string scenario_line(const Event& event);
// A text in double quotes with its escapes.
std::string scenario_quoted(const std::string& text);

}  // namespace kolvar
