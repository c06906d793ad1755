// The binder: shows the windows of a program as Qt windows, copies what has changed into them, and hands what the user
// does to the dispatcher.
#pragma once

#include <QObject>
#include <map>
#include <memory>

#include "screens/program.hpp"

class QAction;
class QWidget;

namespace kolvar {

class FormWindow;

class Desktop : public QObject {
    Q_OBJECT

public:
    explicit Desktop(Program& program);
    ~Desktop() override;

    // Copies the state of all shown windows and their controls into the widgets; opens, raises and hides windows.
    // Program::on_change is set to it.
    void sync();
    // The Qt window of a form, made at its first showing; nullptr before.
    [[nodiscard]] QWidget* window(const Form& form) const;
    // The widget of a control (its objectName is the control's address); nullptr before its window was made, and for
    // menus and their entries, which are actions.
    [[nodiscard]] QWidget* widget(const Control& control) const;
    [[nodiscard]] QAction* action(const Control& control) const;

    // Sends an event to the dispatcher, as the widgets do.
    void send(const Event& event);

signals:
    // The program has ended (Exit, or "End" in the box of a fault).
    void ended(int status);

private:
    FormWindow* make_window(Form& form);
    [[nodiscard]] FormWindow* find_window(const Form& form) const;
    void tell_end();

    Program& program_;
    std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
    Form* active_ = nullptr;
    bool syncing_ = false;
    bool told_end_ = false;
};

}  // namespace kolvar
