// Pieces that several layouts use.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <initializer_list>

#include "qt/form_window.hpp"
#include "qt/widgets.hpp"

namespace kolvar {

// A label that shows a value or a file name in a sunken field; a long text ends in dots.
LabelView& value_field(FormWindow& window, const Control& label);
LabelView& wrapping(FormWindow& window, const Control& label);
LabelView& bold(FormWindow& window, const Control& label);
ButtonView& button(FormWindow& window, const Control& control);

// Widgets in a row or a column, in this order.
QHBoxLayout* row_of(FormWindow& window, std::initializer_list<const Control*> controls, int stretched = -1);
QVBoxLayout* column_of(FormWindow& window, std::initializer_list<const Control*> controls);
// A caption that the layout adds: the program knows nothing of it.
QLabel* caption(FormWindow& window, const char* text);
// The buttons that lead on, at the right end of a row.
QHBoxLayout* button_row(FormWindow& window, std::initializer_list<const Control*> left,
                        std::initializer_list<const Control*> right);
// A grid that fills a frame or panel.
QGridLayout* grid_in(FormWindow& window, const Control& holder);
void narrow(FormWindow& window, std::initializer_list<const Control*> entries, int width);
// Asks for all the room that its contents need, as far as the screen has it; then they scroll.
QWidget* roomy_area(FormWindow& window, QWidget* contents);

}  // namespace kolvar
