// The drift of a batch: expected / measured of its standards over the list, and the line through them.
#pragma once

#include <array>
#include <utility>

#include "ui/form.hpp"

namespace kolvar {

struct FrmDrift : Form {
    FrmDrift() : Form("frm_drift", "Drift plot of ") {
        width = 13800;
        height = 7800;
        chk68.value = chk75.value = chk76.value = optLinear.value = 1;
        put_into(pictSide, {&pict68,    &pict75,   &pict76,   &chk68,    &chk75,       &chk82,    &chk76,
                            &chkUTh,    &lblLR68b, &lblLR68r, &lblLR75b, &lblLR75r,    &lblLR76b, &lblLR76r,
                            &optLinear, &optLog,   &Command3, &Command8, &lblResidual, &lblLegend});
        put_into(pictButtons, {&Command1, &cmdAccept, &cmdClose});
        for (Picture* legend : {&pict68, &pict75, &pict76}) {
            legend->width = 750;
            legend->height = 450;
        }
        for (Label& place : lbl) {
            place.width = 600;
            place.height = 240;
        }
        for (const auto& [percent, label] : scale_labels()) {
            label->width = 480;
            label->height = 240;
        }
        hide_axes();
        cmdAccept.enabled = false;
    }

    Label lblCF{*this, "lblCF", "Correction factor (CF)"};
    Label lblExpected{*this, "lblExpected", "[expected / measured]"};
    Label lblPosition{*this, "lblPosition", "Position in the list"};
    Picture pictDrift{*this, "pictDrift"};
    // The ticks: pictures of their own, left of the plot and below it.
    Picture pictTicksY{*this, "pictTicksY"};
    Picture pictTicksX{*this, "pictTicksX"};
    // Positions in the list below the plot.
    ControlArray<Label> lbl{*this, "lbl", 1, 9, ""};
    // Factors beside the plot.
    Label lbl0_80{*this, "lbl0_80", "0.80"};
    Label lbl0_85{*this, "lbl0_85", "0.85"};
    Label lbl0_90{*this, "lbl0_90", "0.90"};
    Label lbl0_95{*this, "lbl0_95", "0.95"};
    Label lbl1_00{*this, "lbl1_00", "1.00"};
    Label lbl1_05{*this, "lbl1_05", "1.05"};
    Label lbl1_10{*this, "lbl1_10", "1.10"};
    Label lbl1_15{*this, "lbl1_15", "1.15"};
    Label lbl1_20{*this, "lbl1_20", "1.20"};

    Panel pictButtons{*this, "pictButtons"};
    Button Command1{*this, "Command1", "Plot"};
    Button cmdAccept{*this, "cmdAccept", "Accept interpolation and write the values into the master file"};
    Button cmdClose{*this, "cmdClose", "Close"};

    // The three ratios that are drawn, each with its legend, slope and correlation, and what has no effect.
    Panel pictSide{*this, "pictSide"};
    Picture pict68{*this, "pict68"};
    Picture pict75{*this, "pict75"};
    Picture pict76{*this, "pict76"};
    CheckBox chk68{*this, "chk68", "Pb206/U238"};
    CheckBox chk75{*this, "chk75", "Pb207/U235"};
    CheckBox chk82{*this, "chk82", "Pb208/Th232"};
    CheckBox chk76{*this, "chk76", "Pb207/Pb206"};
    CheckBox chkUTh{*this, "chkUTh", "U238/Th232"};
    Label lblLR68b{*this, "lblLR68b"};
    Label lblLR68r{*this, "lblLR68r"};
    Label lblLR75b{*this, "lblLR75b"};
    Label lblLR75r{*this, "lblLR75r"};
    Label lblLR76b{*this, "lblLR76b"};
    Label lblLR76r{*this, "lblLR76r"};
    Label lblLegend{*this, "lblLegend", "cross: standard   square: line at a sample\n207/235 stands as measured"};
    Label lblResidual{*this, "lblResidual", "Average residual error of standards:"};
    OptionButton optLinear{*this, "optLinear", "Linear", 1};
    OptionButton optLog{*this, "optLog", "Logarithmic", 1};
    Button Command3{*this, "Command3", "Reject a standard"};
    Button Command8{*this, "Command8", "Restore all rejected"};

    bool plotted = false;  // the batch stands on the plot, to be drawn anew when the window gets another size

    // The labels of the factors, each with its distance from 1 in percent.
    [[nodiscard]] std::array<std::pair<int, Label*>, 9> scale_labels() {
        return {{{-20, &lbl0_80},
                 {-15, &lbl0_85},
                 {-10, &lbl0_90},
                 {-5, &lbl0_95},
                 {0, &lbl1_00},
                 {5, &lbl1_05},
                 {10, &lbl1_10},
                 {15, &lbl1_15},
                 {20, &lbl1_20}}};
    }
    void hide_axes() {
        for (Label& place : lbl) place.visible = false;
        for (const auto& [percent, label] : scale_labels()) label->visible = false;
    }
};

}  // namespace kolvar
