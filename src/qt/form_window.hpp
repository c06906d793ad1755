// The Qt window of one form: a widget for each of its controls, the user's actions as events, the model's state in
// view.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "screens/event.hpp"
#include "ui/form.hpp"

class QAction;
class QComboBox;

namespace kolvar {

class FormWindow : public QMainWindow {
    Q_OBJECT

public:
    FormWindow(Form& form, std::function<void(const Event&)> send);

    // For the layouts.
    [[nodiscard]] QWidget* body() const { return centralWidget(); }
    [[nodiscard]] QWidget* of(const Control& control) const;      // nullptr for a menu entry
    [[nodiscard]] QAction* action(const Control& control) const;  // nullptr for anything else
    // Enter and Esc press the first of these that can be pressed.
    void set_default_buttons(std::vector<const Control*> buttons) { default_buttons_ = std::move(buttons); }
    void set_escape_buttons(std::vector<const Control*> buttons) { escape_buttons_ = std::move(buttons); }
    // Alt and a letter press the button, or move the focus into the field.
    void add_shortcut(const Control& control, const char* keys);
    // Dragged check boxes can be dropped on this label.
    void accept_drops(const Control& target);
    // Places what stands beside placed controls; runs after each sync and each change of size.
    void set_arranger(std::function<void()> arranger) { arranger_ = std::move(arranger); }

    // Copies what differs from the form into the widgets.
    void sync();
    // Gives the window its first size, shows it, and notes the size in the form.
    void show_first();
    // The size of a form is that of the window below its menu bar, which takes so many logical pixels.
    [[nodiscard]] int menu_height() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Shown {
        std::optional<Colour> back, fore;
        std::vector<std::string> items;
        bool placed = false;
    };

    QWidget* make(Control& control, QWidget* parent);
    void make_menus();
    void connect_widget(Control& control, QWidget* widget);
    void report(const Control& control, EventKind kind, const std::function<void(Event&)>& fill = {});
    void sync_widget(Control& control, QWidget* widget);
    void sync_action(const Control& control, QAction* action);
    void sync_text(const Control& control, QWidget* widget);
    void sync_place(const Control& control, QWidget* widget);
    void sync_colours(const Control& control, QWidget* widget);
    void sync_list(const Control& control, QComboBox& box);
    void follow_size();
    [[nodiscard]] const Control* first_usable(const std::vector<const Control*>& buttons) const;

    Form& form_;
    std::function<void(const Event&)> send_;
    std::map<const Control*, QWidget*> widgets_;
    std::map<const Control*, QAction*> actions_;
    std::map<const Control*, Shown> shown_;
    std::vector<const Control*> default_buttons_, escape_buttons_;
    std::function<void()> arranger_;
    bool syncing_ = false;
    int known_width_ = 0, known_height_ = 0;  // twips, as the window and the form last agreed
};

}  // namespace kolvar
