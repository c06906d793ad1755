// The program: its windows on the desktop. Built once for each start value of Method.
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTimer>
#include <clocale>

#include "app/icon.hpp"
#include "qt/desktop.hpp"
#include "qt/qt_platform.hpp"
#include "qt/text.hpp"
#include "screens/program.hpp"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // Qt takes the user's locale over; numbers in files and texts never follow it.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("KOLVAR"));
    QApplication::setWindowIcon(kolvar::program_icon());
    QApplication::setQuitOnLastWindowClosed(false);  // the program ends by its own buttons and close boxes

    kolvar::QtPlatform platform;
    kolvar::Program program(platform, kolvar::utf8(QDir::toNativeSeparators(QApplication::applicationDirPath())));
    kolvar::Desktop desktop(program);
    QObject::connect(
        &desktop, &kolvar::Desktop::ended, &application, [](int status) { QApplication::exit(status); },
        Qt::QueuedConnection);
    // Boxes of the start-up need the event loop.
    QTimer first_turn;
    first_turn.setSingleShot(true);
    QObject::connect(&first_turn, &QTimer::timeout, &application, [&] { program.start(KOLVAR_START_METHOD); });
    first_turn.start(0);
    return QApplication::exec();
}
