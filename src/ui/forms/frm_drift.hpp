// The drift of a batch: expected / measured of its standards over the list, and the line through them.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmDrift : Form {
    FrmDrift() : Form("frm_drift", "Drift plot of ") {}

    Picture pictDrift{*this, "pictDrift"};
    Label lblLR68b{*this, "lblLR68b"};
    Label lblLR68r{*this, "lblLR68r"};
    Label lblLR75b{*this, "lblLR75b"};
    Label lblLR75r{*this, "lblLR75r"};
    Label lblLR76b{*this, "lblLR76b"};
    Label lblLR76r{*this, "lblLR76r"};
    Button Command1{*this, "Command1", "Plot"};
    Button cmdAccept{*this, "cmdAccept", "Accept interpolation and write the values into the master file"};
    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace kolvar
