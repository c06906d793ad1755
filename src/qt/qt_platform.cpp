#include "qt/qt_platform.hpp"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>

#include "qt/text.hpp"

namespace kolvar {

namespace {

struct PlainBox : QMessageBox {
    PlainBox(Icon icon, const std::string& text, const std::string& title)
        : QMessageBox(icon, shown(title), shown(text), NoButton, QApplication::activeWindow()) {
        setTextFormat(Qt::PlainText);
    }
};

// Leaves the current folder alone, as all dialogs of Qt do.
std::optional<QString> file_dialog(const FileDialog& wanted, bool saving) {
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = name_filters(wanted.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(wanted.index - 1, filters.first()));
    }
    const QFileInfo proposed(QDir::fromNativeSeparators(shown(wanted.name)));
    // A proposed name that has a folder leads there.
    if (proposed.isAbsolute())
        dialog.setDirectory(proposed.absolutePath());
    else if (!wanted.folder.empty())
        dialog.setDirectory(QDir::fromNativeSeparators(shown(wanted.folder)));
    if (!wanted.name.empty()) dialog.selectFile(proposed.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().first());
}

}  // namespace

QStringList name_filters(const std::string& filter) {
    static const QRegularExpression patterns_in_label(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    const QStringList parts = shown(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype pair = 0; pair + 1 < parts.size(); pair += 2) {
        QString label = parts[pair];
        label.remove(patterns_in_label);
        QStringList patterns = parts[pair + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        // "*.*" means every file, also one without an ending.
        for (QString& pattern : patterns)
            pattern = pattern.trimmed() == QLatin1String("*.*") ? QStringLiteral("*") : pattern.trimmed();
        filters << label + QLatin1String(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters;
}

void QtPlatform::warn(const std::string& text, const std::string& title) {
    PlainBox box(QMessageBox::Warning, text, title);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

bool QtPlatform::ask(const std::string& text, const std::string& title) {
    PlainBox box(QMessageBox::Question, text, title);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

Platform::FaultAnswer QtPlatform::fault(const std::string& text) {
    PlainBox box(QMessageBox::Critical, text, "KOLVAR");
    QPushButton* const end = box.addButton(QStringLiteral("End"), QMessageBox::DestructiveRole);
    QPushButton* const go_on = box.addButton(QStringLiteral("Continue"), QMessageBox::RejectRole);
    box.setDefaultButton(end);
    box.setEscapeButton(go_on);
    box.exec();
    return box.clickedButton() == end ? FaultAnswer::end : FaultAnswer::go_on;
}

std::string QtPlatform::open_file(const FileDialog& dialog) {
    return utf8(file_dialog(dialog, false).value_or(QString()));
}

std::optional<std::string> QtPlatform::save_file(const FileDialog& dialog) {
    const std::optional<QString> path = file_dialog(dialog, true);
    return path ? std::optional(utf8(*path)) : std::nullopt;
}

std::string QtPlatform::choose_folder(const std::string& start) {
    return utf8(QDir::toNativeSeparators(QFileDialog::getExistingDirectory(QApplication::activeWindow(), QString(),
                                                                           QDir::fromNativeSeparators(shown(start)))));
}

std::string QtPlatform::clipboard() { return utf8(QApplication::clipboard()->text()); }

void QtPlatform::set_clipboard(const std::string& text) { QApplication::clipboard()->setText(shown(text)); }

bool QtPlatform::open_document(const std::string& path) {
    const QString target = shown(path);
    if (target.startsWith(QLatin1String("http://")) || target.startsWith(QLatin1String("https://")))
        return QDesktopServices::openUrl(QUrl(target));
    const QFileInfo file(QDir::fromNativeSeparators(target));
    return file.isFile() && QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

DateTime QtPlatform::now() {
    const QDateTime now = QDateTime::currentDateTime();
    return {now.date().year(), now.date().month(),  now.date().day(),
            now.time().hour(), now.time().minute(), now.time().second()};
}

void QtPlatform::wait_cursor(bool shown) {
    if (shown)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtPlatform::progress(int done, int all) {
    if (done >= all) {
        delete bar_;
        return;
    }
    QWidget* const window = QApplication::activeWindow();
    if (bar_ == nullptr && window != nullptr) {
        bar_ = new QProgressBar(window);
        bar_->setGeometry(window->width() / 4, window->height() - 60, window->width() / 2, 24);
        bar_->setAutoFillBackground(true);
        bar_->show();
    }
    if (bar_ == nullptr) return;
    bar_->setMaximum(all);
    bar_->setValue(done);
    bar_->repaint();
}

std::string QtPlatform::decimal_sign() { return utf8(QLocale::system().decimalPoint()); }

}  // namespace kolvar
