// Widgets of a form: their making, what they report, and how they follow the model.
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLayout>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include "qt/canvas_painter.hpp"
#include "qt/canvas_view.hpp"
#include "qt/folder_view.hpp"
#include "qt/form_window.hpp"
#include "qt/grid_view.hpp"
#include "qt/text.hpp"
#include "qt/widgets.hpp"

namespace kolvar {

namespace {

// A list's field that can be typed into reports like an entry.
class ListField : public EntryView {
public:
    using EntryView::EntryView;
};

QWidget* new_widget(Control& control, QWidget* parent) {
    switch (control.kind) {
        case ControlKind::label:
            return new LabelView(parent);
        case ControlKind::button:
            return new ButtonView(parent);
        case ControlKind::check:
            return new CheckView(parent);
        case ControlKind::option: {
            auto* option = new QRadioButton(parent);
            option->setAutoExclusive(false);  // the form knows which options exclude each other
            return option;
        }
        case ControlKind::entry:
            if (control.multiline) return new TextView(parent);
            return new EntryView(parent);
        case ControlKind::list: {
            auto* list = new QComboBox(parent);
            list->setInsertPolicy(QComboBox::NoInsert);
            list->setMaxVisibleItems(20);
            if (control.editable) {
                list->setLineEdit(new ListField(list));
                list->setCompleter(nullptr);
            }
            return list;
        }
        case ControlKind::scroll: {
            auto* bar = new QScrollBar(Qt::Vertical, parent);
            bar->setInvertedAppearance(true);  // the maximum is at the top
            bar->setFocusPolicy(Qt::StrongFocus);
            return bar;
        }
        case ControlKind::picture:
            return new CanvasView(static_cast<Picture&>(control), parent);
        case ControlKind::panel:
            return new PanelView(parent);
        case ControlKind::frame:
            return new QGroupBox(parent);
        case ControlKind::grid:
            return new GridView(static_cast<Grid&>(control), parent);
        case ControlKind::folder_list:
            return new FolderView(parent);
        case ControlKind::menu:
        case ControlKind::menu_entry:
            return nullptr;
    }
    return nullptr;
}

}  // namespace

QWidget* FormWindow::make(Control& control, QWidget* parent) {
    if (QWidget* const made = of(control)) return made;
    if (control.kind == ControlKind::menu || control.kind == ControlKind::menu_entry) return nullptr;
    QWidget* const holder = control.parent != nullptr ? make(*control.parent, parent) : parent;
    QWidget* const widget = new_widget(control, holder);
    widget->setObjectName(shown(control.address()));
    widgets_[&control] = widget;
    connect_widget(control, widget);
    return widget;
}

void FormWindow::connect_widget(Control& control, QWidget* widget) {
    const auto reporter = [this, &control](EventKind kind) {
        return [this, &control, kind] { report(control, kind); };
    };
    const auto reports_cells = [this, &control](EventKind kind) {
        return [this, &control, kind](int row, int col) {
            report(control, kind, [&](Event& event) { event.row = row, event.col = col; });
        };
    };
    const auto typed = [this, &control](const QString& text) {
        report(control, EventKind::type, [&](Event& event) { event.text = utf8(text); });
    };
    if (auto* label = dynamic_cast<LabelView*>(widget)) {
        label->on_click = reporter(EventKind::click);
        label->on_dblclick = reporter(EventKind::dblclick);
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        connect(button, &QAbstractButton::clicked, this, reporter(EventKind::click));
    } else if (auto* entry = dynamic_cast<EntryView*>(widget)) {
        connect(entry, &QLineEdit::textEdited, this, typed);
        entry->on_enter = reporter(EventKind::enter);
        entry->on_leave = reporter(EventKind::leave);
    } else if (auto* text = dynamic_cast<TextView*>(widget)) {
        connect(text, &QPlainTextEdit::textChanged, this, [typed, text] { typed(text->toPlainText()); });
        text->on_leave = reporter(EventKind::leave);
    } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
        connect(list, &QComboBox::activated, this, [this, &control](int item) {
            report(control, EventKind::choose, [&](Event& event) { event.value = item; });
        });
        if (auto* field = dynamic_cast<EntryView*>(list->lineEdit())) {
            connect(field, &QLineEdit::textEdited, this, typed);
            field->on_enter = reporter(EventKind::enter);
            field->on_leave = reporter(EventKind::leave);
        }
    } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
        connect(bar, &QScrollBar::valueChanged, this, [this, &control](int value) {
            report(control, EventKind::scroll, [&](Event& event) { event.value = value; });
        });
    } else if (auto* picture = dynamic_cast<CanvasView*>(widget)) {
        picture->on_press = [this, &control](int which, int shift, double x, double y) {
            report(control, EventKind::press,
                   [&](Event& event) { event.button = which, event.shift = shift, event.x = x, event.y = y; });
        };
        picture->on_release = reporter(EventKind::release);
        picture->on_click = reporter(EventKind::click);
        picture->on_dblclick = reporter(EventKind::dblclick);
    } else if (auto* panel = dynamic_cast<PanelView*>(widget)) {
        panel->on_dblclick = reporter(EventKind::dblclick);
    } else if (auto* grid = dynamic_cast<GridView*>(widget)) {
        grid->on_click = reports_cells(EventKind::cell_click);
        grid->on_dblclick = reports_cells(EventKind::cell_dblclick);
    } else if (auto* folders = dynamic_cast<FolderView*>(widget)) {
        folders->on_choose = [this, &control](const QString& folder) {
            report(control, EventKind::choose, [&](Event& event) { event.text = utf8(folder); });
        };
    }
}

void FormWindow::accept_drops(const Control& target) {
    auto* const label = dynamic_cast<LabelView*>(of(target));
    if (label == nullptr) return;
    label->setAcceptDrops(true);
    label->on_drop = [this, &target](const QString& source) {
        for (const Control* dragged : form_.controls) {
            if (shown(dragged->address()) != source) continue;
            report(*dragged, EventKind::drag,
                   [&](Event& event) { event.target = target.name, event.target_index = target.index; });
        }
    };
}

void FormWindow::sync_action(const Control& control, QAction* action) {
    const QString text = control.kind == ControlKind::menu ? shown(control.text) : shown_caption(control.text);
    if (action->text() != text) action->setText(text);
    if (action->isVisible() != control.visible) action->setVisible(control.visible);
    if (action->isEnabled() != control.enabled) action->setEnabled(control.enabled);
}

void FormWindow::sync_widget(Control& control, QWidget* widget) {
    const QSignalBlocker blocker(widget);
    sync_text(control, widget);
    sync_colours(control, widget);
    widget->setEnabled(control.enabled);
    if (auto* button = qobject_cast<QAbstractButton*>(widget); button != nullptr && button->isCheckable()) {
        if (button->isChecked() != control.on()) button->setChecked(control.on());
    } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
        if (bar->minimum() != control.minimum || bar->maximum() != control.maximum) {
            bar->setRange(control.minimum, control.maximum);
            bar->setPageStep(std::max(1, (control.maximum - control.minimum) / 10));
        }
        if (bar->value() != control.value) bar->setValue(control.value);
    } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
        sync_list(control, *list);
    } else if (auto* picture = dynamic_cast<CanvasView*>(widget)) {
        picture->refresh();
    } else if (auto* grid = dynamic_cast<GridView*>(widget)) {
        grid->refresh();
    } else if (auto* folders = dynamic_cast<FolderView*>(widget)) {
        folders->show_folder(shown(control.text));
    }
    sync_place(control, widget);
    if (widget->isHidden() == control.visible) widget->setVisible(control.visible);
}

void FormWindow::sync_text(const Control& control, QWidget* widget) {
    if (auto* label = dynamic_cast<LabelView*>(widget)) {
        const QString text = shown(control.text);
        if (label->text() != text) label->setText(text);
    } else if (auto* button = dynamic_cast<ButtonView*>(widget)) {
        button->set_caption(shown(control.text));
    } else if (auto* box = qobject_cast<QAbstractButton*>(widget)) {
        const QString text = shown_caption(control.text);
        if (box->text() != text) box->setText(text);
    } else if (auto* entry = dynamic_cast<EntryView*>(widget)) {
        const QString text = shown(control.text);
        if (entry->text() != text) entry->setText(text);
        if (entry->isReadOnly() != control.locked) entry->setReadOnly(control.locked);
    } else if (auto* lines = dynamic_cast<TextView*>(widget)) {
        QString text = shown(control.text);  // whatever ends its lines, the widget knows one line end only
        text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
        QString held = text;
        held.replace(QChar::Nbsp, QLatin1Char(' '));  // as the widget gives it back
        if (lines->toPlainText() != held) lines->setPlainText(text);
        if (lines->isReadOnly() != control.locked) lines->setReadOnly(control.locked);
    } else if (auto* frame = qobject_cast<QGroupBox*>(widget)) {
        const QString text = shown_caption(control.text);
        if (frame->title() != text) frame->setTitle(text);
    }
}

void FormWindow::sync_list(const Control& control, QComboBox& box) {
    Shown& last = shown_[&control];
    if (last.items != control.items || box.count() != static_cast<int>(control.items.size())) {
        last.items = control.items;
        box.clear();
        for (const std::string& item : control.items) box.addItem(shown(item));
    }
    if (box.currentIndex() != control.value) box.setCurrentIndex(control.value);
    const QString text = shown(control.text);
    if (box.isEditable()) {
        const QSignalBlocker field(box.lineEdit());
        if (box.currentText() != text) box.setEditText(text);
    } else if (control.value < 0) {
        // A text that no item has. With an empty one Qt would show the first item.
        const QString instead = text.isEmpty() ? QStringLiteral(" ") : text;
        if (box.placeholderText() != instead) box.setPlaceholderText(instead);
        if (box.currentIndex() != -1) box.setCurrentIndex(-1);
    }
}

void FormWindow::sync_place(const Control& control, QWidget* widget) {
    if (!control.placed) return;
    Shown& last = shown_[&control];
    if (!last.placed) {
        last.placed = true;
        if (QWidget* const holder = widget->parentWidget(); holder != nullptr && holder->layout() != nullptr)
            holder->layout()->removeWidget(widget);
    }
    // A label or button without a size of its own is as large as its text.
    const QSize wanted = control.width > 0 && control.height > 0 ? QSize() : widget->sizeHint();
    const QRect place(pixels(control.left), pixels(control.top),
                      control.width > 0 ? pixels(control.width) : wanted.width(),
                      control.height > 0 ? pixels(control.height) : wanted.height());
    if (widget->geometry() != place) widget->setGeometry(place);
}

void FormWindow::sync_colours(const Control& control, QWidget* widget) {
    if (control.kind == ControlKind::picture || control.kind == ControlKind::grid) return;
    Shown& last = shown_[&control];
    if (last.back == control.back && last.fore == control.fore) return;
    last.back = control.back;
    last.fore = control.fore;
    const bool field = control.kind == ControlKind::entry || control.kind == ControlKind::list;
    QPalette colours;
    if (control.back) colours.setColor(field ? QPalette::Base : QPalette::Window, qt_colour(*control.back));
    // A list that can't be typed into is painted as a button.
    if (control.back && control.kind == ControlKind::list) colours.setColor(QPalette::Button, qt_colour(*control.back));
    if (control.fore)
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
            colours.setColor(role, qt_colour(*control.fore));
    widget->setPalette(colours);
    if (!field) widget->setAutoFillBackground(control.back.has_value());
}

}  // namespace kolvar
