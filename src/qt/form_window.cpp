#include "qt/form_window.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>

#include "qt/text.hpp"
#include "qt/widgets.hpp"

namespace kolvar {

FormWindow::FormWindow(Form& form, std::function<void(const Event&)> send) : form_(form), send_(std::move(send)) {
    setObjectName(shown(form.name));
    setWindowTitle(shown(form.title));
    auto* body = new PanelView(this);
    body->on_dblclick = [this] {
        Event event;
        event.kind = EventKind::dblclick;
        event.window = form_.name;
        send_(event);
    };
    setCentralWidget(body);
    for (Control* control : form.controls) make(*control, body);
    make_menus();
    QWidget* former = nullptr;
    for (Control* control : form.controls) {
        QWidget* const widget = of(*control);
        if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
        if (former != nullptr) setTabOrder(former, widget);
        former = widget;
    }
}

QWidget* FormWindow::of(const Control& control) const {
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second;
}

QAction* FormWindow::action(const Control& control) const {
    const auto found = actions_.find(&control);
    return found == actions_.end() ? nullptr : found->second;
}

void FormWindow::make_menus() {
    for (Control* control : form_.controls) {
        if (control->kind == ControlKind::menu) {
            actions_[control] = menuBar()->addMenu(shown(control->text))->menuAction();
        } else if (control->kind == ControlKind::menu_entry) {
            auto* entry = new QAction(shown_caption(control->text), this);
            actions_[control] = entry;
            connect(entry, &QAction::triggered, this, [this, control] { report(*control, EventKind::click); });
        } else {
            continue;
        }
        actions_[control]->setObjectName(shown(control->address()));
    }
    const Control* former = nullptr;
    for (Control* control : form_.controls) {
        if (control->kind != ControlKind::menu_entry || control->parent == nullptr) continue;
        QAction* const title = action(*control->parent);
        if (title == nullptr) continue;
        // A number that is left out stands for a line between two entries.
        if (former != nullptr && former->name == control->name && control->index > former->index + 1)
            title->menu()->addSeparator();
        title->menu()->addAction(action(*control));
        former = control;
    }
}

void FormWindow::add_shortcut(const Control& control, const char* keys) {
    QWidget* const widget = of(control);
    const QKeySequence sequence{QString::fromLatin1(keys)};
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setShortcut(sequence);
        button->setToolTip(sequence.toString(QKeySequence::NativeText));
    } else {
        auto* shortcut = new QShortcut(sequence, this);
        connect(shortcut, &QShortcut::activated, widget, [widget] { widget->setFocus(Qt::ShortcutFocusReason); });
    }
}

void FormWindow::report(const Control& control, EventKind kind, const std::function<void(Event&)>& fill) {
    if (syncing_) return;
    Event event;
    event.kind = kind;
    event.window = form_.name;
    event.control = control.name;
    event.index = control.index;
    if (fill) fill(event);
    send_(event);
}

void FormWindow::show_first() {
    // Before the first showing the controls don't know their fonts yet, and ask for too little.
    for (QWidget* widget : findChildren<QWidget*>()) widget->ensurePolished();
    for (QLayout* layout : findChildren<QLayout*>()) layout->invalidate();
    const QSize hint = sizeHint();
    form_.width = form_.width > 0 ? form_.width : hint.width() * twips_per_pixel;
    form_.height = form_.height > 0 ? form_.height : (hint.height() - menu_height()) * twips_per_pixel;
    follow_size();
    syncing_ = true;
    show();
    syncing_ = false;
    form_.width = known_width_ = width() * twips_per_pixel;
    form_.height = known_height_ = (height() - menu_height()) * twips_per_pixel;
}

int FormWindow::menu_height() const {
    return menuWidget() == nullptr || menuBar()->isNativeMenuBar() ? 0 : menuBar()->sizeHint().height();
}

// A handler may have given the form another size.
void FormWindow::follow_size() {
    if (form_.width <= 0 || form_.height <= 0) return;
    if (form_.width == known_width_ && form_.height == known_height_) return;
    known_width_ = form_.width;
    known_height_ = form_.height;
    syncing_ = true;
    // What has just been hidden takes no more room.
    if (body()->layout() != nullptr) body()->layout()->activate();
    layout()->activate();
    resize(pixels(known_width_), pixels(known_height_) + menu_height());
    syncing_ = false;
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (arranger_) arranger_();
    if (syncing_ || !isVisible() || isMinimized()) return;
    const int inside = height() - menu_height();
    if (width() == pixels(known_width_) && inside == pixels(known_height_)) return;
    known_width_ = width() * twips_per_pixel;
    known_height_ = inside * twips_per_pixel;
    Event resized;
    resized.kind = EventKind::resize;
    resized.window = form_.name;
    resized.x = known_width_;
    resized.y = known_height_;
    send_(resized);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The program decides what becomes of the window.
    event->ignore();
    Event closed;
    closed.kind = EventKind::close;
    closed.window = form_.name;
    send_(closed);
}

const Control* FormWindow::first_usable(const std::vector<const Control*>& buttons) const {
    for (const Control* button : buttons)
        if (button->reachable() && button->usable()) return button;
    return nullptr;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || event->key() == Qt::Key_Escape) {
        // Enter belongs to the button that has the focus, before the default one.
        if (auto* focused = enter ? qobject_cast<QPushButton*>(focusWidget()) : nullptr) {
            focused->click();
            return;
        }
        if (const Control* button = first_usable(enter ? default_buttons_ : escape_buttons_)) {
            report(*button, EventKind::click);
            return;
        }
        if (!enter && !form_.step) {
            close();
            return;
        }
    }
    QMainWindow::keyPressEvent(event);
}

void FormWindow::sync() {
    const bool former = syncing_;
    syncing_ = true;
    if (windowTitle() != shown(form_.title)) setWindowTitle(shown(form_.title));
    // A panel that goes makes room before another one comes: with both in it the window would grow.
    for (const Control* control : form_.controls)
        if (control->kind == ControlKind::panel && !control->visible) of(*control)->hide();
    for (Control* control : form_.controls) {
        if (QWidget* const widget = of(*control)) sync_widget(*control, widget);
        if (QAction* const entry = action(*control)) sync_action(*control, entry);
    }
    const Control* const preset = first_usable(default_buttons_);
    for (const Control* button : default_buttons_) static_cast<QPushButton*>(of(*button))->setDefault(button == preset);
    syncing_ = former;
    follow_size();
    if (arranger_) arranger_();
    if (form_.focus_wanted != nullptr && isVisible()) {
        syncing_ = true;
        if (QWidget* const wanted = of(*form_.focus_wanted)) wanted->setFocus(Qt::OtherFocusReason);
        form_.focus_wanted = nullptr;
        syncing_ = former;
    }
}

}  // namespace kolvar
