// A program with its windows on an offscreen desktop; events of a control can be caught.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <string>
#include <vector>

#include "qt/desktop.hpp"
#include "screens/program.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {

class DesktopTest : public ::testing::Test {
protected:
    DesktopTest() {
        QObject::connect(&desktop, &Desktop::ended, [this](int status) { ends.push_back(status); });
    }

    void show(Form& form) {
        form.loaded = true;  // as it stands; what its opening would set is not wanted here
        program.shell().open(form);
        desktop.sync();
        ASSERT_TRUE(QTest::qWaitForWindowActive(desktop.window(form)));
    }
    // From now on the control's events of this kind go here instead of to their handler.
    void catch_events(const Form& form, const std::string& control, EventKind kind) {
        program.on(form, control, kind, [this](const Event& event) { caught.push_back(event); });
    }
    template <class Widget>
    Widget& widget(const Control& control) {
        auto* const found = dynamic_cast<Widget*>(desktop.widget(control));
        if (found == nullptr) throw std::runtime_error("no such widget: " + control.address());
        return *found;
    }
    QWidget& window(const Form& form) { return *desktop.window(form); }

    ScriptedPlatform os;
    TempFolder folder;
    Program program{os, folder.path()};
    Forms& forms = program.forms();
    Desktop desktop{program};
    std::vector<Event> caught;
    std::vector<int> ends;
};

}  // namespace kolvar::test
