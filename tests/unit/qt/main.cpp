// The windows need an application, but no display.
#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    std::setlocale(LC_NUMERIC, "C");
    return RUN_ALL_TESTS();
}
