// kolvar_scenario: runs scenario files against the program and tells by its exit status whether they hold.
#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <QApplication>

#include "app/scenario_runner.hpp"

namespace {

struct Call {
    kolvar::scenario::RunOptions options;
    std::vector<std::string> files;
    bool well_formed = true;
};

Call read_call(int argc, char** argv) {
    Call call;
    for (int at = 1; at < argc; ++at) {
        const std::string word = argv[at];
        // "--work DIR" or "--work=DIR"
        const auto takes_folder = [&](const std::string& option, std::string& folder) {
            if (word.starts_with(option + "=")) {
                folder = word.substr(option.size() + 1);
            } else if (word == option && at + 1 < argc) {
                folder = argv[++at];
            } else {
                return false;
            }
            return true;
        };
        if (takes_folder("--app-folder", call.options.app_folder) || takes_folder("--work", call.options.work))
            continue;
        if (word == "--keep-going") {
            call.options.keep_going = true;
        } else if (word.starts_with("--")) {
            call.well_formed = false;
        } else {
            call.files.push_back(word);
        }
    }
    if (call.files.empty()) call.well_formed = false;
    return call;
}

// Without a display there is nothing to raise or to size by hints; what else the surface complains of is shown.
void show_complaint(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support"))) std::cerr << text.toStdString() << "\n";
}

}  // namespace

int main(int argc, char** argv) {
    const Call call = read_call(argc, argv);
    if (!call.well_formed) {
        std::cerr << "kolvar_scenario [--app-folder DIR] [--work DIR] [--keep-going] FILE...\n";
        return 2;
    }
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(show_complaint);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    std::setlocale(LC_NUMERIC, "C");  // the surface takes the locale of the machine over

    int status = 0;
    for (const std::string& file : call.files)
        status = std::max(status, kolvar::scenario::run_scenario(file, call.options, std::cout, std::cerr));
    return status;
}
