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

    // Takes over what has changed in the grid; true when its size is another one.
    bool refresh();

private:
    const Grid& grid_;
    int rows_ = 0, cols_ = 0;
};

class GridView : public QTableView {
public:
    GridView(const Grid& grid, QWidget* parent);

    std::function<void(int row, int col)> on_click, on_dblclick;  // 0 are the headers

    void refresh();
    [[nodiscard]] QSize sizeHint() const override { return {640, 320}; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;

private:
    void place_corner();
    void set_widths();
    [[nodiscard]] int widest(int first_row, int last_row, int first_col, int last_col, int longest) const;

    const Grid& grid_;
    GridModel* model_;
    LabelView* corner_;
    std::uint64_t revision_ = ~std::uint64_t{0};
    std::vector<int> widths_;
    int cols_ = -1, name_width_ = 0, cell_width_ = 0;  // logical pixels
};

}  // namespace kolvar
