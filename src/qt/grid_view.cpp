#include "qt/grid_view.hpp"

#include <QBrush>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/canvas_painter.hpp"
#include "qt/text.hpp"
#include "qt/widgets.hpp"

namespace kolvar {

namespace {

constexpr int usual_width = 900;  // twips

QVariant cell_data(const Grid::Cell& cell, int role) {
    switch (role) {
        case Qt::DisplayRole:
            return shown(cell.text);
        case Qt::BackgroundRole:
            return QBrush(qt_colour(cell.back));
        case Qt::ForegroundRole:
            return QBrush(qt_colour(cell.fore));
        default:
            return {};
    }
}

// A header in the colours of its cells; white ones look like a header.
class CellHeader : public QHeaderView {
public:
    CellHeader(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
        setSectionsClickable(true);
        setHighlightSections(false);
    }

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override {
        if (!rect.isValid() || model() == nullptr) return;
        const auto back = model()->headerData(section, orientation(), Qt::BackgroundRole).value<QBrush>();
        const auto fore = model()->headerData(section, orientation(), Qt::ForegroundRole).value<QBrush>();
        painter->save();
        painter->fillRect(rect, back.color() == Qt::white ? QColor(0xEC, 0xEC, 0xEC) : back.color());
        painter->setPen(QColor(0xB8, 0xB8, 0xB8));
        painter->drawLine(rect.topRight(), rect.bottomRight());
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
        painter->setPen(fore.color());
        const Qt::Alignment side = orientation() == Qt::Vertical ? Qt::AlignLeft : Qt::AlignHCenter;
        painter->drawText(
            rect.adjusted(4, 0, -4, 0), static_cast<int>(side | Qt::AlignVCenter),
            fontMetrics().elidedText(model()->headerData(section, orientation(), Qt::DisplayRole).toString(),
                                     Qt::ElideRight, rect.width() - 6));
        painter->restore();
    }
};

// A cell in its colours; the one with the keyboard's focus has a dotted frame.
class CellPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const auto back = index.data(Qt::BackgroundRole).value<QBrush>();
        const auto fore = index.data(Qt::ForegroundRole).value<QBrush>();
        painter->fillRect(option.rect, back);
        painter->setPen(fore.color());
        painter->drawText(
            option.rect.adjusted(3, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, option.rect.width() - 5));
        if (!(option.state & QStyle::State_HasFocus)) return;
        painter->setPen(QPen(fore.color(), 1, Qt::DotLine));
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
};

}  // namespace

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : std::max(0, rows_ - 1); }
int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : std::max(0, cols_ - 1); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1, col = index.column() + 1;
    if (row >= grid_.rows || col >= grid_.cols) return {};
    if (role == Qt::ToolTipRole && grid_.cell(row, col).text.size() > 7) return shown(grid_.cell(row, col).text);
    if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    return cell_data(grid_.cell(row, col), role);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const int row = orientation == Qt::Horizontal ? 0 : section + 1;
    const int col = orientation == Qt::Horizontal ? section + 1 : 0;
    if (row >= grid_.rows || col >= grid_.cols) return {};
    if (role == Qt::ToolTipRole && col == 0 && leaves_out_empty_) return shown(grid_.cell(row, 0).text);
    return cell_data(grid_.cell(row, col), role);
}

bool GridModel::refresh() {
    int rows = grid_.rows, cols = grid_.cols;
    if (leaves_out_empty_) {
        while (rows > 1 && grid_.cell(rows - 1, 0).text.empty()) --rows;
        while (cols > 1 && grid_.cell(0, cols - 1).text.empty()) --cols;
    }
    if (rows_ != rows || cols_ != cols) {
        beginResetModel();
        rows_ = rows;
        cols_ = cols;
        endResetModel();
        return true;
    }
    if (rows_ > 1 && cols_ > 1) emit dataChanged(index(0, 0), index(rows_ - 2, cols_ - 2));
    if (cols_ > 1) emit headerDataChanged(Qt::Horizontal, 0, cols_ - 2);
    if (rows_ > 1) emit headerDataChanged(Qt::Vertical, 0, rows_ - 2);
    return false;
}

GridView::GridView(const Grid& grid, QWidget* parent)
    : QTableView(parent), grid_(grid), model_(new GridModel(grid, this)), corner_(new LabelView(this)) {
    setHorizontalHeader(new CellHeader(Qt::Horizontal, this));
    setVerticalHeader(new CellHeader(Qt::Vertical, this));
    setModel(model_);
    setItemDelegate(new CellPainter(this));
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    const int row_height = fontMetrics().height() + 6;
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setMinimumSectionSize(10);
        header->setSectionResizeMode(header == verticalHeader() ? QHeaderView::Fixed : QHeaderView::Interactive);
    }
    verticalHeader()->setDefaultSectionSize(row_height);
    horizontalHeader()->setFixedHeight(row_height + 2);

    corner_->setAutoFillBackground(true);
    corner_->setIndent(4);
    corner_->elide(Qt::ElideRight);

    connect(this, &QTableView::clicked, this, [this](const QModelIndex& at) {
        if (on_click) on_click(at.row() + 1, at.column() + 1);
    });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& at) {
        if (on_dblclick) on_dblclick(at.row() + 1, at.column() + 1);
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (on_click) on_click(0, section + 1);
    });
    connect(verticalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (on_click) on_click(section + 1, 0);
    });
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, [this](int section) {
        if (on_dblclick) on_dblclick(0, section + 1);
    });
    connect(verticalHeader(), &QHeaderView::sectionDoubleClicked, this, [this](int section) {
        if (on_dblclick) on_dblclick(section + 1, 0);
    });
    corner_->on_click = [this] {
        if (on_click) on_click(0, 0);
    };
}

void GridView::refresh() {
    if (revision_ == grid_.revision && widths_ == grid_.column_widths) return;
    revision_ = grid_.revision;
    model_->refresh();
    if (table_)
        fit_widths();
    else
        set_widths();
    if (grid_.rows > 0 && grid_.cols > 0) {
        const Grid::Cell& cell = grid_.cell(0, 0);
        corner_->setText(shown(cell.text));
        QPalette colours = palette();
        colours.setColor(QPalette::Window,
                         cell.back == kolvar::palette(15) ? QColor(0xEC, 0xEC, 0xEC) : qt_colour(cell.back));
        colours.setColor(QPalette::WindowText, qt_colour(cell.fore));
        corner_->setPalette(colours);
    }
    place_corner();
    viewport()->update();
    horizontalHeader()->viewport()->update();
    verticalHeader()->viewport()->update();
}

// Room that the texts of these cells need; longer ones than so many characters end in dots. Of very many cells some are
// looked at.
int GridView::widest(int first_row, int last_row, int first_col, int last_col, int longest) const {
    constexpr int most = 64;
    const int step = std::max(1, (last_col - first_col) / most), row_step = std::max(1, (last_row - first_row) / 256);
    int room = 0;
    for (int row = first_row; row <= last_row; row += row_step)
        for (int col = first_col; col <= last_col; col += step) {
            const std::string& text = grid_.cell(row, col).text;
            if (!text.empty() && text.size() <= static_cast<std::size_t>(longest))
                room = std::max(room, fontMetrics().horizontalAdvance(shown(text)));
        }
    return room + 10;
}

// The widths of the model are the least; where the font of the desktop needs more, there is more.
void GridView::set_widths() {
    const std::vector<int>& widths = grid_.column_widths;
    const auto width_of = [&widths](int col) {
        if (widths.empty()) return pixels(usual_width);
        return pixels(widths[std::min(static_cast<std::size_t>(col), widths.size() - 1)]);
    };
    const int set = static_cast<int>(widths.size());
    const int names = std::max(width_of(0), widest(0, grid_.rows - 1, 0, 0, 45));
    const int cells = std::max(width_of(set), widest(0, grid_.rows - 1, std::max(1, set - 1), grid_.cols - 1, 12));
    if (widths_ == widths && cols_ == grid_.cols && name_width_ == names && cell_width_ == cells) return;
    widths_ = widths;
    cols_ = grid_.cols;
    name_width_ = names;
    cell_width_ = cells;
    verticalHeader()->setFixedWidth(names);
    // The last width counts for all further columns.
    horizontalHeader()->setDefaultSectionSize(cells);
    for (int col = 1; col < std::min(cols_, set - 1); ++col) horizontalHeader()->resizeSection(col - 1, width_of(col));
}

void GridView::be_a_table() {
    table_ = true;
    model_->leave_out_empty();
    setTabKeyNavigation(false);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        if (!fitting_ && column < static_cast<int>(drawn_.size())) drawn_[static_cast<std::size_t>(column)] = true;
    });
}

// The longest text stands for all of its column: of thousands of cells only one is measured.
void GridView::fit_widths() {
    constexpr std::size_t longest_name = 60, longest_text = 40;
    constexpr int narrowest = 36;
    const auto room = [this](int column, std::size_t most) {
        std::size_t longest = 0;
        const std::string* widest_text = &grid_.cell(0, column).text;
        for (int row = 0; row <= model_->rowCount(); ++row) {
            const std::string& text = grid_.cell(row, column).text;
            if (text.size() <= longest || text.size() > most) continue;
            longest = text.size();
            widest_text = &text;
        }
        return fontMetrics().horizontalAdvance(shown(*widest_text)) + 14;
    };
    if (grid_.rows == 0 || grid_.cols == 0) return;
    fitting_ = true;
    verticalHeader()->setFixedWidth(std::max(pixels(1800), room(0, longest_name)));
    drawn_.resize(static_cast<std::size_t>(model_->columnCount()));
    for (int column = 0; column < model_->columnCount(); ++column)
        if (!drawn_[static_cast<std::size_t>(column)])
            horizontalHeader()->resizeSection(column, std::max(narrowest, room(column + 1, longest_text)));
    fitting_ = false;
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex at = currentIndex();
    if (table_ && at.isValid() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        if (on_dblclick) on_dblclick(at.row() + 1, at.column() + 1);
        return;
    }
    if (event->key() == Qt::Key_Space && at.isValid()) {
        if (on_click) on_click(at.row() + 1, at.column() + 1);
        return;
    }
    QTableView::keyPressEvent(event);
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    place_corner();
}

void GridView::updateGeometries() {
    QTableView::updateGeometries();
    place_corner();
}

void GridView::place_corner() {
    if (corner_ == nullptr) return;
    corner_->setGeometry(frameWidth(), frameWidth(), verticalHeader()->width(), horizontalHeader()->height());
    corner_->raise();
}

}  // namespace kolvar
