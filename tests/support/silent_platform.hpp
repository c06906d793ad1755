// A platform for runs that nobody watches: boxes are counted, dialogs cancelled, questions answered alike.
#pragma once

#include <optional>
#include <string>

#include "core/platform.hpp"

namespace kolvar::test {

class SilentPlatform : public Platform {
public:
    explicit SilentPlatform(bool yes = false) : yes_(yes) {}

    int boxes = 0;

    void warn(const std::string&, const std::string&) override { ++boxes; }
    bool ask(const std::string&, const std::string&) override { return yes_; }
    FaultAnswer fault(const std::string&) override { return FaultAnswer::go_on; }
    std::string open_file(const FileDialog&) override { return {}; }
    std::optional<std::string> save_file(const FileDialog&) override { return std::nullopt; }
    std::string choose_folder(const std::string&) override { return {}; }
    std::string clipboard() override { return {}; }
    void set_clipboard(const std::string&) override {}
    bool open_document(const std::string&) override { return false; }
    DateTime now() override { return {}; }
    std::string decimal_sign() override { return "."; }

private:
    bool yes_;
};

}  // namespace kolvar::test
