#include <algorithm>
#include <cmath>
#include <filesystem>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>

#include "app/scenario_session.hpp"
#include "core/inspector.hpp"
#include "qt/canvas_view.hpp"
#include "qt/folder_view.hpp"
#include "qt/form_window.hpp"
#include "qt/grid_view.hpp"
#include "qt/text.hpp"
#include "qt/widgets.hpp"

namespace kolvar::scenario {
namespace {

void settle_windows() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void must_be_shown(const Form& form, const std::string& what) {
    if (!form.shown) throw Unmet{what, "window " + form.name + " is not shown"};
}

// As for a person: what is hidden or disabled can't be acted on.
void must_be_usable(const Control& control, const std::string& what) {
    must_be_shown(control.form, what);
    const std::string name = control.form.name + "." + control.address();
    if (!control.reachable()) throw Unmet{what, name + " is hidden"};
    if (!control.usable()) throw Unmet{what, name + " is disabled"};
}

Event event_of(const Control& control, EventKind kind) {
    Event event;
    event.kind = kind;
    event.window = control.form.name;
    event.control = control.name;
    event.index = control.index;
    return event;
}

Event event_of(const Form& form, EventKind kind) {
    Event event;
    event.kind = kind;
    event.window = form.name;
    return event;
}

// Lets the widgets do it. What they did not hand on, the program is told itself; that is a flaw of a window, so it is
// said.
template <class Deed>
void carry_out(Session& session, const Event& event, Deed&& deed) {
    const std::string line = scenario_line(event);
    const std::vector<std::string>& journal = session.program->journal().lines();
    const std::size_t before = journal.size();
    deed();
    settle_windows();
    const auto since = journal.begin() + static_cast<std::ptrdiff_t>(std::min(before, journal.size()));
    if (session.program->ended() || std::find(since, journal.end(), line) != journal.end()) return;
    const Form* const form = session.program->forms().find(event.window);
    if (form == nullptr || !form->shown) return;
    session.err << session.os.where << ": note: the window did not hand on: " << line << "\n";
    session.desktop->send(event);
    settle_windows();
}

void send(Session& session, const Event& event) {
    session.desktop->send(event);
    settle_windows();
}

void focus_on(QWidget* widget, Qt::FocusReason reason) {
    if (widget != nullptr && !widget->hasFocus()) widget->setFocus(reason);
}

void mouse(QWidget& widget, QEvent::Type type, QPointF at) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void left_click(QWidget* widget) {
    if (widget == nullptr) return;
    const QPointer<QWidget> kept(widget);
    const QPointF middle = QRectF(widget->rect()).center();
    mouse(*widget, QEvent::MouseButtonPress, middle);
    if (kept != nullptr) mouse(*widget, QEvent::MouseButtonRelease, middle);
}

void click(Session& session, Words& words) {
    const std::string name = words.word("a control");
    words.finish();
    Control& control = session.control(name);
    must_be_usable(control, "a click on " + name);
    const Event event = event_of(control, EventKind::click);
    if (control.kind == ControlKind::menu_entry) {
        carry_out(session, event, [&] {
            if (QAction* const action = session.desktop->action(control)) action->trigger();
        });
        return;
    }
    const bool answers_clicks = control.kind == ControlKind::label || control.kind == ControlKind::button ||
                                control.kind == ControlKind::check || control.kind == ControlKind::option ||
                                control.kind == ControlKind::picture;
    if (!answers_clicks) {
        send(session, event);
        return;
    }
    QWidget* const widget = session.desktop->widget(control);
    // The mouse takes the focus along; a field that is left may change what can be clicked.
    if (widget != nullptr && (widget->focusPolicy() & Qt::ClickFocus) != 0) {
        focus_on(widget, Qt::MouseFocusReason);
        session.running();
        must_be_usable(control, "a click on " + name);
    }
    carry_out(session, event, [&] {
        if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
            button->click();
        } else if (auto* const picture = dynamic_cast<CanvasView*>(widget)) {
            // Button down and up are commands of their own, so that a journal, which holds all three, plays true.
            if (picture->on_click) picture->on_click();
        } else {
            left_click(widget);
        }
    });
}

void double_click(Session& session, Words& words) {
    const std::string name = words.word("a window or control");
    words.finish();
    if (!is_address(name)) {
        Form& form = session.window(name);
        must_be_shown(form, "a double click on " + name);
        carry_out(session, event_of(form, EventKind::dblclick), [&] {
            const auto* const shown = qobject_cast<QMainWindow*>(session.desktop->window(form));
            if (shown != nullptr) mouse(*shown->centralWidget(), QEvent::MouseButtonDblClick, QPointF(1, 1));
        });
        return;
    }
    Control& control = session.control(name);
    must_be_usable(control, "a double click on " + name);
    const Event event = event_of(control, EventKind::dblclick);
    QWidget* const widget = session.desktop->widget(control);
    if (auto* const picture = dynamic_cast<CanvasView*>(widget)) {
        carry_out(session, event, [&] {
            if (picture->on_dblclick) picture->on_dblclick();
        });
    } else if (control.kind == ControlKind::label || control.kind == ControlKind::panel) {
        carry_out(session, event, [&] {
            if (widget != nullptr) mouse(*widget, QEvent::MouseButtonDblClick, QRectF(widget->rect()).center());
        });
    } else {
        send(session, event);
    }
}

QLineEdit* field_of(QWidget* widget) {
    if (auto* const list = qobject_cast<QComboBox*>(widget)) return list->lineEdit();
    return qobject_cast<QLineEdit*>(widget);
}

void type(Session& session, Words& words) {
    const std::string name = words.word("an entry field");
    Control& control = session.control(name);
    if (control.kind != ControlKind::entry && control.kind != ControlKind::list)
        throw Wrong{name + " is no entry field"};
    const std::string text = words.text("what is typed");
    words.finish();
    must_be_usable(control, "typing into " + name);
    QWidget* const widget = session.desktop->widget(control);
    QLineEdit* const field = field_of(widget);
    auto* const lines = qobject_cast<QPlainTextEdit*>(widget);
    focus_on(lines != nullptr ? widget : field, Qt::OtherFocusReason);
    session.running();
    must_be_usable(control, "typing into " + name);
    if (control.locked || control.text == text) return;  // typing changes nothing
    Event event = event_of(control, EventKind::type);
    event.text = text;
    if (lines != nullptr) {
        event.text = utf8(shown(text).replace(QLatin1String("\r\n"), QLatin1String("\n")));  // as Enter ends a line
        carry_out(session, event, [&] {
            lines->selectAll();
            lines->insertPlainText(shown(event.text));
        });
        return;
    }
    if (field == nullptr) {  // a list that is only chosen from: the program takes the text as that of its field
        send(session, event);
        return;
    }
    carry_out(session, event, [&] {
        field->selectAll();
        if (text.empty()) {
            field->del();
        } else {
            field->insert(shown(text));
        }
    });
}

void enter(Session& session, Words& words) {
    const std::string name = words.word("a control");
    words.finish();
    Control& control = session.control(name);
    must_be_usable(control, "Enter in " + name);
    QWidget* const widget = session.desktop->widget(control);
    focus_on(widget, Qt::OtherFocusReason);
    session.running();
    must_be_usable(control, "Enter in " + name);
    QLineEdit* const field = field_of(widget);
    QWidget* const target = field != nullptr ? field : widget;
    const auto press_enter = [&] {
        const QPointer<QWidget> kept(target);
        for (const QEvent::Type part : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(part, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
            if (kept != nullptr) QApplication::sendEvent(target, &key);
        }
    };
    if (field != nullptr) {
        carry_out(session, event_of(control, EventKind::enter), press_enter);
    } else {
        press_enter();  // it may press the button, or the window's preset one
        settle_windows();
    }
}

void leave(Session& session, Words& words) {
    const std::string name = words.word("a control");
    words.finish();
    Control& control = session.control(name);
    must_be_usable(control, "leaving " + name);
    QWidget* const widget = session.desktop->widget(control);
    QWidget* const field = qobject_cast<QPlainTextEdit*>(widget) != nullptr ? widget : field_of(widget);
    if (field == nullptr) {
        if (widget != nullptr) widget->clearFocus();
        send(session, event_of(control, EventKind::leave));
        return;
    }
    focus_on(field, Qt::OtherFocusReason);
    carry_out(session, event_of(control, EventKind::leave), [&] { field->clearFocus(); });
}

void choose(Session& session, Words& words) {
    const std::string name = words.word("a list");
    Control& control = session.control(name);
    Event event = event_of(control, EventKind::choose);
    if (control.kind == ControlKind::folder_list) {
        event.text = words.path();
        words.finish();
        must_be_usable(control, "a choice in " + name);
        if (!std::filesystem::is_directory(event.text)) throw Unmet{"folder " + event.text + " in " + name, "none"};
        carry_out(session, event, [&] {
            auto* const view = dynamic_cast<FolderView*>(session.desktop->widget(control));
            if (view != nullptr && view->on_choose) view->on_choose(shown(event.text));
        });
        return;
    }
    if (control.kind != ControlKind::list) throw Wrong{name + " is no list"};
    if (words.text_follows()) {
        const std::string text = words.text("an entry");
        const auto item = std::find(control.items.begin(), control.items.end(), text);
        event.value = item == control.items.end() ? -1 : static_cast<int>(item - control.items.begin());
        if (event.value < 0) throw Unmet{"entry " + json_text(text) + " in " + name, "no such entry"};
    } else {
        event.value = words.whole("the index of an entry");
        if (event.value < 0 || event.value >= static_cast<int>(control.items.size()))
            throw Unmet{"entry " + std::to_string(event.value) + " in " + name,
                        std::to_string(control.items.size()) + " entries"};
    }
    words.finish();
    must_be_usable(control, "a choice in " + name);
    auto* const list = qobject_cast<QComboBox*>(session.desktop->widget(control));
    focus_on(list, Qt::MouseFocusReason);
    session.running();
    must_be_usable(control, "a choice in " + name);
    carry_out(session, event, [&] {
        if (list == nullptr || event.value >= list->count()) return;
        list->setCurrentIndex(event.value);
        emit list->activated(event.value);
    });
}

void scroll(Session& session, Words& words) {
    const std::string name = words.word("a scroll bar");
    Control& control = session.control(name, ControlKind::scroll, "scroll bar");
    Event event = event_of(control, EventKind::scroll);
    event.value = words.whole("a value");
    words.finish();
    must_be_usable(control, "scrolling " + name);
    if (event.value < control.minimum || event.value > control.maximum)
        throw Unmet{name + " at " + std::to_string(event.value),
                    std::to_string(control.minimum) + " to " + std::to_string(control.maximum)};
    if (event.value == control.value) return;  // the bar stands there already
    carry_out(session, event, [&] {
        if (auto* const bar = qobject_cast<QScrollBar*>(session.desktop->widget(control))) bar->setValue(event.value);
    });
}

// "left" or "right" and the keys that are held: shift, ctrl, alt.
void read_mouse(Words& words, Event& event) {
    if (words.take("right")) {
        event.button = 2;
    } else if (!words.take("left")) {
        throw Wrong{"left or right should stand for the mouse button"};
    }
    while (!words.at_end() && !words.number_follows()) {
        if (words.take("shift")) {
            event.shift |= 1;
        } else if (words.take("ctrl")) {
            event.shift |= 2;
        } else if (words.take("alt")) {
            event.shift |= 4;
        } else {
            throw Wrong{"unknown key " + words.rest()};
        }
    }
}

void press_picture(Session& session, const Control& picture, const Event& event) {
    carry_out(session, event, [&] {
        QWidget* const widget = session.desktop->widget(picture);
        if (widget != nullptr && (widget->focusPolicy() & Qt::ClickFocus) != 0) focus_on(widget, Qt::MouseFocusReason);
        if (auto* const view = dynamic_cast<CanvasView*>(widget))
            view->press(event.button, event.shift, event.x, event.y);
    });
}

void release_picture(Session& session, const Control& picture) {
    carry_out(session, event_of(picture, EventKind::release), [&] {
        if (auto* const view = dynamic_cast<CanvasView*>(session.desktop->widget(picture))) view->release();
    });
}

void press(Session& session, Words& words) {
    const std::string name = words.word("a picture");
    Control& picture = session.control(name, ControlKind::picture, "picture");
    Event event = event_of(picture, EventKind::press);
    read_mouse(words, event);
    event.x = words.number("a position");
    event.y = words.at_end() ? picture.height / 2.0 : words.number("a position");
    words.finish();
    must_be_usable(picture, "the mouse on " + name);
    press_picture(session, picture, event);
}

void release(Session& session, Words& words) {
    const std::string name = words.word("a picture");
    words.finish();
    Control& picture = session.control(name, ControlKind::picture, "picture");
    must_be_shown(picture.form, "the mouse on " + name);
    release_picture(session, picture);
}

void mark(Session& session, Words& words) {
    const std::string name = words.word("a picture");
    Control& picture = session.control(name, ControlKind::picture, "picture");
    Event event = event_of(picture, EventKind::press);
    read_mouse(words, event);
    const double slice = words.number("a slice");
    words.finish();
    must_be_usable(picture, "the mouse on " + name);
    const double slices = field_get(session.program->state(), "nSlices").number();
    if (slices <= 0) throw Unmet{"a mark at slice " + json_number(slice), "no slices"};
    event.x = picture.width * slice / slices;
    event.y = picture.height / 2.0;
    press_picture(session, picture, event);
    if (!session.program->ended() && picture.form.shown) release_picture(session, picture);
}

void drag(Session& session, Words& words) {
    const std::string name = words.word("a control"), onto = words.word("a control");
    words.finish();
    Control& source = session.control(name);
    Control& target = session.control(onto);
    if (&source.form != &target.form) throw Wrong{"nothing can be dragged into another window"};
    must_be_usable(source, "dragging " + name);
    must_be_usable(target, "dropping on " + onto);
    Event event = event_of(source, EventKind::drag);
    event.target = target.name;
    event.target_index = target.index;
    QWidget* const from = session.desktop->widget(source);
    auto* const label = dynamic_cast<LabelView*>(session.desktop->widget(target));
    if (from == nullptr || label == nullptr || !label->on_drop) {
        send(session, event);
        return;
    }
    carry_out(session, event, [&] {
        QMimeData data;
        data.setData(QLatin1String(CheckView::drag_format), from->objectName().toUtf8());
        const QRect place = label->rect();
        QDragEnterEvent over(place.center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(label, &over);
        if (!over.isAccepted()) return;
        QDropEvent drop(QPointF(place.center()), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(label, &drop);
    });
}

void cell(Session& session, Words& words) {
    const std::string name = words.word("a grid");
    auto& grid = static_cast<Grid&>(session.control(name, ControlKind::grid, "grid"));
    const bool twice = words.take("dblclick");
    if (!twice && !words.take("click")) throw Wrong{"click or dblclick should stand behind the grid"};
    Event event = event_of(grid, twice ? EventKind::cell_dblclick : EventKind::cell_click);
    event.row = words.whole("a row");
    event.col = words.whole("a column");
    words.finish();
    must_be_usable(grid, "a click on " + name);
    if (event.row < 0 || event.row >= grid.rows || event.col < 0 || event.col >= grid.cols)
        throw Unmet{"cell " + std::to_string(event.row) + " " + std::to_string(event.col) + " in " + name,
                    std::to_string(grid.rows) + " rows and " + std::to_string(grid.cols) + " columns"};
    carry_out(session, event, [&] {
        auto* const view = dynamic_cast<GridView*>(session.desktop->widget(grid));
        if (view == nullptr) return;
        if (event.row > 0 && event.col > 0) {
            const QModelIndex at = view->model()->index(event.row - 1, event.col - 1);
            twice ? emit view->doubleClicked(at) : emit view->clicked(at);
        } else if (event.row > 0 || event.col > 0) {
            QHeaderView* const header = event.row == 0 ? view->horizontalHeader() : view->verticalHeader();
            const int section = std::max(event.row, event.col) - 1;
            twice ? emit header->sectionDoubleClicked(section) : emit header->sectionClicked(section);
        } else if (const auto& corner = twice ? view->on_dblclick : view->on_click) {
            corner(0, 0);
        }
    });
}

void resize(Session& session, Words& words) {
    const std::string name = words.word("a window or picture");
    const double width = words.number("a width"), height = words.number("a height");
    words.finish();
    if (width < 0 || height < 0) throw Wrong{"no size below 0"};
    const auto sized = [&](Event event) {
        event.x = width;
        event.y = height;
        return event;
    };
    if (is_address(name)) {
        Control& picture = session.control(name, ControlKind::picture, "picture");
        must_be_shown(picture.form, "a size for " + name);
        send(session, sized(event_of(picture, EventKind::resize)));
        return;
    }
    Form& form = session.window(name);
    must_be_shown(form, "a size for " + name);
    const Event event = sized(event_of(form, EventKind::resize));
    auto* const shown = qobject_cast<FormWindow*>(session.desktop->window(form));
    const int menu = shown != nullptr ? shown->menu_height() : 0;
    const QSize size(static_cast<int>(std::lround(width / twips_per_pixel)),
                     static_cast<int>(std::lround(height / twips_per_pixel)) + menu);
    // Sizes between two pixels, or smaller than the widgets of the window need, can't be carried by the screen.
    const bool carried = shown != nullptr && size.width() * twips_per_pixel == width &&
                         (size.height() - menu) * twips_per_pixel == height && shown->size() != size &&
                         size.expandedTo(shown->minimumSize()) == size;
    if (carried) {
        carry_out(session, event, [&] { shown->resize(size); });
    } else {
        send(session, event);
    }
}

void close(Session& session, Words& words) {
    const std::string name = words.word("a window");
    words.finish();
    Form& form = session.window(name);
    must_be_shown(form, "closing " + name);
    carry_out(session, event_of(form, EventKind::close), [&] {
        if (QWidget* const shown = session.desktop->window(form)) shown->close();
    });
}

void start(Session& session, Words& words) {
    const int method = words.at_end() ? 0 : words.whole("a start value");
    words.finish();
    if (method != 0 && method != 1 && method != 3) throw Wrong{"the start values are 0, 1 and 3"};
    if (session.started) session.renew();
    session.started = true;
    session.program->start(method);
    settle_windows();
}

using Command = void (*)(Session&, Words&);

Command find_command(const std::string& name) {
    static const std::map<std::string, Command> commands = {
        {"start", start},     {"click", click},   {"dblclick", double_click},
        {"type", type},       {"enter", enter},   {"leave", leave},
        {"choose", choose},   {"scroll", scroll}, {"press", press},
        {"release", release}, {"mark", mark},     {"drag", drag},
        {"cell", cell},       {"resize", resize}, {"close", close}};
    const auto found = commands.find(name);
    return found == commands.end() ? nullptr : found->second;
}

}  // namespace

bool act(Session& session, const std::string& command, Words& words) {
    const Command found = find_command(command);
    if (found == nullptr) return false;
    found(session, words);
    return true;
}

}  // namespace kolvar::scenario
