// The periodic system on which each element gets its internal standard.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmPeriod : Form {
    FrmPeriod() : Form("frm_Period", "Kolvar - Assignment of Internal Standards to elements") {
        put_into(frame1, {&Label1});
        put_into(frame2, {&Label2});
        put_into(frame3, {&Label3});
        Label* const labels[] = {&Label1, &Label2, &Label3};
        for (int number = 1; number <= 3; ++number) labels[number - 1]->back = colours[number];
        for (Label* label : labels) label->fore = palette(0);
        // Black whatever the desktop's theme: the cells have colours of their own.
        for (int element = 1; element <= 96; ++element) {
            lblEle(element).back = colours[0];
            lblEle(element).fore = lblNumber(element).fore = palette(0);
        }
    }

    // No standard, standards 1 to 3: white, and sky blue, yellow and vermillion of the colours that Okabe and Ito
    // (2008, "Color Universal Design") chose for people with any kind of colour vision.
    static constexpr Colour colours[4] = {rgb(255, 255, 255), rgb(86, 180, 233), rgb(240, 228, 66), rgb(213, 94, 0)};
    static constexpr Colour margin = rgb(48, 48, 48);  // the frame of the current standard
    int current = 1;                                   // 1, 2 or 3: the standard that a clicked element gets

    Label lblHint1{*this, "lblHint1",
                   "Select one IS by mouse click (gets wide margin) and click an element to assign."};
    // The three standards; the frame of the current one has a wide margin (its back colour).
    Panel frame1{*this, "frame1"};
    Panel frame2{*this, "frame2"};
    Panel frame3{*this, "frame3"};
    Label Label1{*this, "Label1"};
    Label Label2{*this, "Label2"};
    Label Label3{*this, "Label3"};
    ControlArray<Label> lblEle{*this, "lblEle", 1, 96, ""};
    ControlArray<Label> lblNumber{*this, "lblNumber", 1, 96, ""};  // 1, 2 or 3 in the corner of each element
    Label lblHint2{*this, "lblHint2",
                   "to save this assignment into a setting file, press [Save As] in the next window"};
    Button cmdOK{*this, "cmdOK", "Accept"};
    Button cmsClose{*this, "cmsClose", "Close"};
};

}  // namespace kolvar
