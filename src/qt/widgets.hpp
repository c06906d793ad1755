// The small widgets behind labels, buttons, check boxes and entry fields: they report what a user does, nothing else.
#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <functional>

namespace kolvar {

// Plain text that can be clicked; a text too long for its place ends in dots and stands whole in the tool tip.
class LabelView : public QLabel {
public:
    explicit LabelView(QWidget* parent);

    std::function<void()> on_click, on_dblclick;
    std::function<void(const QString& source)> on_drop;  // set: takes controls that are dropped on it

    void elide(Qt::TextElideMode mode);
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Qt::TextElideMode elide_ = Qt::ElideNone;
    bool pressed_ = false;
};

// A button whose caption wraps where it is too long for one line.
class ButtonView : public QPushButton {
public:
    explicit ButtonView(QWidget* parent);

    void set_caption(const QString& caption);
    // The widest line that the button asks room for, in logical pixels.
    void set_line_width(int width);
    // Its keys bring the focus along, as the mouse does, so that the field which is left stores what was typed.
    void take_focus_by_keys() { focus_by_keys_ = true; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QSize margins() const;

    QString caption_;
    int line_width_ = 330;
    bool focus_by_keys_ = false;
};

// A check box that can be dragged by its name.
class CheckView : public QCheckBox {
public:
    explicit CheckView(QWidget* parent) : QCheckBox(parent) {}

    bool draggable = false;

    // The kind of data that a dragged control carries: its address.
    static const char* const drag_format;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPoint pressed_at_;
};

class EntryView : public QLineEdit {
public:
    explicit EntryView(QWidget* parent) : QLineEdit(parent) {}

    std::function<void()> on_enter, on_leave;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

// An entry of several lines.
class TextView : public QPlainTextEdit {
public:
    explicit TextView(QWidget* parent) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

    std::function<void()> on_leave;

protected:
    void focusOutEvent(QFocusEvent* event) override;
};

class PanelView : public QFrame {
public:
    explicit PanelView(QWidget* parent) : QFrame(parent) {}

    std::function<void()> on_click, on_dblclick;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

// Whether the focus went away by the user's own doing within the program (not to a box, a menu or another program).
bool left_by_user(const QFocusEvent& event);

}  // namespace kolvar
