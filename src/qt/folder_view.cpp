#include "qt/folder_view.hpp"

#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>

namespace kolvar {

FolderView::FolderView(QWidget* parent) : QTreeView(parent), model_(new QFileSystemModel(this)) {
    model_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    model_->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    model_->setRootPath(QString());
    setModel(model_);
    for (int column = 1; column < model_->columnCount(); ++column) hideColumn(column);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeView::clicked, this, &FolderView::choose);
    connect(this, &QTreeView::activated, this, &FolderView::choose);
    // A folder whose files have changed is chosen once more.
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& at) {
        const QString folder = QDir::toNativeSeparators(model_->filePath(at));
        if (folder == folder_ && on_choose) on_choose(folder);
    });
    // The names of a folder come in later, in their order: what was in view is brought back.
    connect(model_, &QFileSystemModel::directoryLoaded, this, [this] { scrollTo(currentIndex()); });
}

void FolderView::show_folder(const QString& folder) {
    if (folder == folder_) return;
    folder_ = folder;
    const QModelIndex at = model_->index(QDir::fromNativeSeparators(folder));
    if (at == currentIndex()) return;
    setCurrentIndex(at);
    expand(at);
    scrollTo(at);
}

void FolderView::choose(const QModelIndex& at) {
    const QString folder = QDir::toNativeSeparators(model_->filePath(at));
    if (folder != folder_ && on_choose) on_choose(folder);
}

}  // namespace kolvar
