// The periodic system on which each element gets its internal standard.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmPeriod : Form {
    FrmPeriod() : Form("frm_Period", "Kolvar - Assignment of Internal Standards to elements") {
        put_into(frame1, {&Label1});
        put_into(frame2, {&Label2});
        put_into(frame3, {&Label3});
    }

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
