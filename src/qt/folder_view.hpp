// Shows a folder list: the folders of the disk as a tree, one of them the current one.
#pragma once

#include <QTreeView>
#include <functional>

class QFileSystemModel;

namespace kolvar {

class FolderView : public QTreeView {
public:
    explicit FolderView(QWidget* parent);

    std::function<void(const QString& folder)> on_choose;

    void show_folder(const QString& folder);
    [[nodiscard]] QString folder() const { return folder_; }
    [[nodiscard]] QSize sizeHint() const override { return {460, 280}; }

private:
    void choose(const QModelIndex& at);

    QFileSystemModel* model_;
    QString folder_;
};

}  // namespace kolvar
