// Step 2 of the U/Pb and FLEX paths: marks on the signals, and at once the ratios, ages, outliers and the scatter plot.
#pragma once

#include "ui/forms/time_screen.hpp"

namespace kolvar {

struct Frm2UP : TimeScreen {
    Frm2UP();

    Picture pict3{*this, "pict3"};
    ScrollBar VScroll2{*this, "VScroll2", 1, 4, 1};  // data per point
    Label lblFusion{*this, "lblFusion", "1"};
    Label lblBeam_St{*this, "lblBeam_St"};
    // Texts around the plots: 3 title of a sequence, 6 head of the data per point, 12 and 13 axes of the scatter plot,
    // 23 head of the default file, 30 head of the master file.
    ControlArray<Label> lblRizsa{*this, "lblRizsa", 3, 30, ""};
    Label lblXY{*this, "lblXY", "Normalized scatter of data points"};
    Frame Frame2{*this, "Frame2", "X-Y plot"};
    ControlArray<OptionButton> optConcord{*this, "optConcord", 0, 1, "Tera-Wasserburg", 2};
    Button Command1{*this, "Command1", "Aspect ratio"};
    OptionButton optLiR{*this, "optLiR", "Linear", 3};
    OptionButton optLoR{*this, "optLoR", "Log", 3};
    Label lblStatus{*this, "lblStatus"};  // columns of the file that were not recognised

    // The signals: analytes, mean cps, margin over the detection limit.
    Panel picUP_elems{*this, "picUP_elems"};
    ControlArray<Label> lblFLEXiso{*this, "lblFLEXiso", 1, 15, ""};
    Label lbl238{*this, "lbl238"};
    Label lbl235{*this, "lbl235"};
    Label lbl232{*this, "lbl232"};
    Label lbl208{*this, "lbl208"};
    Label lbl207{*this, "lbl207"};
    Label lbl206{*this, "lbl206"};
    Label lbl204{*this, "lbl204"};
    ControlArray<Label> lblAver{*this, "lblAver", 8, 8, ""};  // of the Hg isotope
    Label lbl238LoD{*this, "lbl238LoD"};
    Label lbl235LoD{*this, "lbl235LoD"};
    Label lbl232LoD{*this, "lbl232LoD"};
    Label lbl208LoD{*this, "lbl208LoD"};
    Label lbl207LoD{*this, "lbl207LoD"};
    Label lbl206LoD{*this, "lbl206LoD"};
    Label lbl204LoD{*this, "lbl204LoD"};
    Label lbl20xLoD{*this, "lbl20xLoD"};
    Label lbl235C{*this, "lbl235C", "calc."};  // the U235 cps are calculated
    CheckBox chkHgCorr{*this, "chkHgCorr", "Hg --> Pb204 correction"};
    CheckBox chkCommLead{*this, "chkCommLead", "Common lead correction"};
    Entry txtAgePb{*this, "txtAgePb"};
    CheckBox Check1{*this, "Check1", "Apparent common Pb age"};

    // The ratios; the five rows stand in the order 206/238, 207/235, 208/232, 238/232, 207/206.
    Panel pictResults{*this, "pictResults"};
    CheckBox chk68{*this, "chk68", "Pb206/U238"};
    CheckBox chk75{*this, "chk75", "Pb207/U235"};
    CheckBox chk82{*this, "chk82", "Pb208/Th232"};
    CheckBox chkUTh{*this, "chkUTh", "U238/Th232"};
    CheckBox chk76{*this, "chk76", "Pb207/Pb206"};
    CheckBox chkLinReg{*this, "chkLinReg", "Linear regression"};
    Label lblAv{*this, "lblAv"};
    Label lblMed{*this, "lblMed", "median"};
    Label lblTz{*this, "lblTz"};
    Label lbl6_8{*this, "lbl6_8"};
    Label lbl7_5{*this, "lbl7_5"};
    Label lbl8_2{*this, "lbl8_2"};
    Label lbl38_2{*this, "lbl38_2"};
    Label lbl7_6{*this, "lbl7_6"};
    Label lbl8_5{*this, "lbl8_5"};
    Label lblMed6_8{*this, "lblMed6_8"};
    Label lblMed7_5{*this, "lblMed7_5"};
    Label lblMed8_2{*this, "lblMed8_2"};
    Label lblMed38_2{*this, "lblMed38_2"};
    Label lblMed7_6{*this, "lblMed7_6"};
    Label lblTz6_8{*this, "lblTz6_8"};
    Label lblTz7_5{*this, "lblTz7_5"};
    Label lblTz8_2{*this, "lblTz8_2"};
    Label lblTz38_2{*this, "lblTz38_2"};
    Label lblTz7_6{*this, "lblTz7_6"};
    Label lblExPo68{*this, "lblExPo68"};
    Label lblExPo75{*this, "lblExPo75"};
    Label lblExPo82{*this, "lblExPo82"};
    Label lblExPo382{*this, "lblExPo382"};
    Label lblExPo76{*this, "lblExPo76"};
    Label lblSkew1{*this, "lblSkew1"};
    Label lblSkew2{*this, "lblSkew2"};
    Label lblSkew3{*this, "lblSkew3"};
    Label lblSkew4{*this, "lblSkew4"};
    Label lblSkew5{*this, "lblSkew5"};
    Label lblLR1b{*this, "lblLR1b"};
    Label lblLR1r{*this, "lblLR1r"};
    Label lblLR2b{*this, "lblLR2b"};
    Label lblLR2r{*this, "lblLR2r"};
    Label lblLR3b{*this, "lblLR3b"};
    Label lblLR3r{*this, "lblLR3r"};
    Label lblLR4b{*this, "lblLR4b"};
    Label lblLR4r{*this, "lblLR4r"};
    Label lblLR5b{*this, "lblLR5b"};
    Label lblLR5r{*this, "lblLR5r"};

    // Ages.
    Frame Frame1{*this, "Frame1", "Rough concordance"};
    Label lblAge06_38Head{*this, "lblAge06_38Head", "Pb206/U238"};
    Label lblAge06_38{*this, "lblAge06_38"};
    Label lblAge07_35Head{*this, "lblAge07_35Head", "Pb207/U235"};
    Label lblAge07_35{*this, "lblAge07_35"};
    Label Label15{*this, "Label15", "Pb207/Pb206"};
    Label lblConcordHead{*this, "lblConcordHead", "206/238 : 207/235"};
    Label lblConcord1{*this, "lblConcord1"};

    // Outliers.
    Frame Frame4{*this, "Frame4", "Outliers"};
    CheckBox chkShowSD{*this, "chkShowSD", "Show"};
    Label lblIfSD{*this, "lblIfSD", "If  s.d. > "};
    Entry txtSD{*this, "txtSD"};
    CheckBox chkRejOL{*this, "chkRejOL", "Reject"};
    Label lblReject{*this, "lblReject", "No. of outliers:"};
    Label lblOM{*this, "lblOM"};
    ControlArray<Label> Shape{*this, "Shape", 1, 5, ""};  // the ratios that the test is based on

    // Refinement of the selection.
    Frame FrameBzzz{*this, "FrameBzzz", "Selection refinement"};
    Entry txtZizzRange{*this, "txtZizzRange"};
    ListBox comboBzz{*this, "comboBzz"};
    ListBox Combo7{*this, "Combo7"};
    ListBox Combo8{*this, "Combo8"};
    CheckBox chkBzzPrompt{*this, "chkBzzPrompt", "Accept prompt"};
    Button cmdZizeges{*this, "cmdZizeges", "Bzzz"};
    Button cmdAccept{*this, "cmdAccept", "Accept"};
    Label lblRMS68{*this, "lblRMS68"};
    Label lblRMS75{*this, "lblRMS75"};
    Label lblZizzMin1{*this, "lblZizzMin1"};
    Label lblZizzMin2{*this, "lblZizzMin2"};
    Label lblBest68{*this, "lblBest68"};
    Label lblBest75{*this, "lblBest75"};
    Label lblBestLow{*this, "lblBestLow"};
    Label lblBestUpp{*this, "lblBestUpp"};
    Label lblImprove{*this, "lblImprove"};
    Label lblExplain{*this, "lblExplain"};

    // The strip of a sequence of files.
    Panel pictSeq{*this, "pictSeq"};
    Label lblSeqTitle{*this, "lblSeqTitle"};
    Label lblDir{*this, "lblDir"};
    Label lblPos{*this, "lblPos"};
    Label lblStdFiNum{*this, "lblStdFiNum"};
    Label lblSamFiNum{*this, "lblSamFiNum"};
    Button cmdOpenPrev{*this, "cmdOpenPrev", "<-- Open previous"};
    Button cmdOpenNext{*this, "cmdOpenNext", "Open next -->"};
    ControlArray<Button> cmdSaveAnd{*this, "cmdSaveAnd", 0, 1, "Save results and open next"};
    Button cmdCopyMas{*this, "cmdCopyMas", "Copy results"};
    Button cmdOpenSeq{*this, "cmdOpenSeq", "Open"};
    Button cmdShowTab{*this, "cmdShowTab", "Table"};
    Button cmdPlot{*this, "cmdPlot", "Plot"};
    Button cmdInterpolation{*this, "cmdInterpolation",
                            "All standard measurement have been processed, you can perform the interpolation between "
                            "the standard measurements now"};

    // The controls of one ratio, 0..4 in the order above.
    struct RatioRow {
        CheckBox& box;
        Label &mean, &median, &tzero, &poisson, &skewness, &slope, &correlation;
    };
    [[nodiscard]] RatioRow ratio_row(int ratio);
};

}  // namespace kolvar
