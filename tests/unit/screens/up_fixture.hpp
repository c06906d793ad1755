// The program on the U/Pb or FLEX screen with a small measurement: 30 slices, blank 2 to 7, signal 12 to 21.
#pragma once

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {

class OnUpWindow : public ProgramOnKit {
protected:
    Frm2UP& form() { return forms().frm2_UP; }

    void go() {
        program->start(1);
        choose(std::string(KOLVAR_TEST_DATA) + "/results/panel.csv");
    }
    // The file chosen in the start panel; the screen comes up.
    void choose(const std::string& path) {
        os.opens = {path};
        click(forms().frm1_Settings, "mnuFile", 0);
        ASSERT_TRUE(form().shown);
        ASSERT_TRUE(os.boxes.empty()) << os.boxes[0].text;
    }
    // Another file, of 4 slices.
    void load_short_file() {
        click(form(), "cmdBack");
        std::string bytes = "Pb206,Pb207,Pb208,U238\n";
        for (int slice = 0; slice < 4; ++slice) bytes += "1,2,3,4\n";
        choose(folder.write("short.csv", bytes));
    }
    void leave_and_return() {
        click(form(), "cmdBack");
        click(forms().frm1_Settings, "cmdOK1");
    }
    // A press and release at a slice of the signals: button 1 left, 2 right.
    void mark_up(int button, int shift, double slice) {
        Event event = event_of(EventKind::press, form(), "pict1");
        event.button = button;
        event.shift = shift;
        event.x = form().pict1.width * slice / rs().nSlices;
        program->dispatch(event);
        event.kind = EventKind::release;
        program->dispatch(event);
    }
    void mark_all() {
        mark_up(1, 1, 2);
        mark_up(2, 1, 7);
        mark_up(1, 0, 12);
        mark_up(2, 0, 21);
        ASSERT_TRUE(os.boxes.empty()) << os.boxes[0].text;
    }
    // Outliers of 206/238 beyond 2 s.d. are rejected.
    void reject() {
        if (!form().chk68.on()) click(form(), "chk68");
        if (!form().chkShowSD.on()) click(form(), "chkShowSD");
        rs().setOL_68 = 1;
        type(form(), "txtSD", "2");
        enter(form(), "txtSD");
        click(form(), "cmdReject");
    }
    static int lines_of(const Picture& plot) {
        int count = 0;
        for (const DrawCommand& command : plot.canvas.commands())
            if (command.kind == DrawCommand::Kind::line) ++count;
        return count;
    }
};

}  // namespace kolvar::test
