// What the program asks of the system around it: boxes, dialogs, clipboard, documents, the clock, the disk.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace kolvar {

// Local time.
struct DateTime {
    int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

// "7 Jan. 2009" and "14:03:22".
std::string date_text(const DateTime& when);
std::string time_text(const DateTime& when);

struct FileDialog {
    std::string filter;  // "label|pattern|label|pattern..."
    int index = 1;       // the preselected pair, from 1
    std::string name;    // proposed file name or path
    std::string folder;  // where the dialog starts; "" = the system's choice
};

class Platform {
public:
    enum class FaultAnswer { end, go_on };

    virtual ~Platform() = default;
    virtual void warn(const std::string& text, const std::string& title = {}) = 0;
    // Yes and No, with No as the default.
    virtual bool ask(const std::string& text, const std::string& title = {}) = 0;
    virtual FaultAnswer fault(const std::string& text) = 0;
    // "" = cancelled.
    virtual std::string open_file(const FileDialog& dialog) = 0;
    // Nothing = cancelled. Never asks about overwriting, never adds an ending.
    virtual std::optional<std::string> save_file(const FileDialog& dialog) = 0;
    virtual std::string choose_folder(const std::string& start) = 0;
    virtual std::string clipboard() = 0;
    virtual void set_clipboard(const std::string& text) = 0;
    // Hands a document or a web page to the system; false when that failed.
    virtual bool open_document(const std::string& path) = 0;
    virtual DateTime now() = 0;
    virtual std::string decimal_sign() = 0;
    virtual void wait_cursor(bool /*shown*/) {}
    // A long calculation tells how far it is; done == all ends it.
    virtual void progress(int /*done*/, int /*all*/) {}
    // How many of these bytes the disk takes; fewer than wanted is a full disk.
    virtual std::size_t room_on_disk(std::size_t wanted) { return wanted; }
};

// The wait cursor stands as long as this does.
class WaitCursor {
public:
    explicit WaitCursor(Platform& os) : os_(os) { os_.wait_cursor(true); }
    ~WaitCursor() { os_.wait_cursor(false); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    Platform& os_;
};

}  // namespace kolvar
