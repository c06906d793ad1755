// The platform services of the desktop: boxes, file dialogs, clipboard, documents, clock.
#pragma once

#include <QPointer>
#include <QProgressBar>
#include <QString>
#include <QStringList>

#include "core/platform.hpp"

namespace kolvar {

class QtPlatform : public Platform {
public:
    void warn(const std::string& text, const std::string& title) override;
    bool ask(const std::string& text, const std::string& title) override;
    FaultAnswer fault(const std::string& text) override;
    std::string open_file(const FileDialog& dialog) override;
    std::optional<std::string> save_file(const FileDialog& dialog) override;
    std::string choose_folder(const std::string& start) override;
    std::string clipboard() override;
    void set_clipboard(const std::string& text) override;
    bool open_document(const std::string& path) override;
    DateTime now() override;
    std::string decimal_sign() override;
    void wait_cursor(bool shown) override;
    // A bar at the lower edge of the window in front, painted at once: no other event is let in.
    void progress(int done, int all) override;

private:
    QPointer<QProgressBar> bar_;
};

// "label|pattern|label|pattern..." as name filters of a Qt dialog, in the same order. A last label without a pattern
// is passed over.
QStringList name_filters(const std::string& filter);

}  // namespace kolvar
