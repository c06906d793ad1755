// Shows a grid: a table model over its cells, with row 0 and column 0 as headers that stay in view.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>

#include "ui/control.hpp"

namespace kolvar {

class LabelView;

class GridModel : public QAbstractTableModel {
public:
    GridModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Only the rows that have a head, and the columns that have a title, are shown.
    void leave_out_empty() { leaves_out_empty_ = true; }
    // Takes over what has changed in the grid; true when its size is another one.
    bool refresh();

private:
    const Grid& grid_;
    bool leaves_out_empty_ = false;
    int rows_ = 0, cols_ = 0;
};

class GridView : public QTableView {
public:
    GridView(const Grid& grid, QWidget* parent);

    std::function<void(int row, int col)> on_click, on_dblclick;  // 0 are the headers

    // For a table of lines that are chosen: each column is as wide as its texts, or as the user has drawn it; rows
    // without a head and columns without a title are left out; Enter is a double click.
    void be_a_table();

    void refresh();
    [[nodiscard]] QSize sizeHint() const override { return {640, 320}; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;

private:
    void place_corner();
    void set_widths();
    void fit_widths();
    [[nodiscard]] int widest(int first_row, int last_row, int first_col, int last_col, int longest) const;

    const Grid& grid_;
    GridModel* model_;
    LabelView* corner_;
    std::uint64_t revision_ = ~std::uint64_t{0};
    std::vector<int> widths_;
    bool table_ = false, fitting_ = false;
    std::vector<bool> drawn_;                          // the user has given the column its width
    int cols_ = -1, name_width_ = 0, cell_width_ = 0;  // logical pixels
};

}  // namespace kolvar
