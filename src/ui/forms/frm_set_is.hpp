// The settings of the internal-standard path: standards, units, blank, plots, tests and results.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmSetIS : Form {
    FrmSetIS();

    // Files.
    Frame frameFiles{*this, "frameFiles", "Files"};
    Label lblAbbrSTD{*this, "lblAbbrSTD", "Abbreviation for all standards in file names: "};
    Entry txtAbbrSTD{*this, "txtAbbrSTD"};
    Label lblSTC{*this, "lblSTC", "Default standard composition file "};
    Entry txtSTCpath{*this, "txtSTCpath"};
    Button cmdBrowSTC{*this, "cmdBrowSTC", "Browse"};
    Label lblSTM{*this, "lblSTM", "Default standard measurement file "};
    Entry txtSTMpath{*this, "txtSTMpath"};
    Button cmdBrowSTM{*this, "cmdBrowSTM", "Browse"};

    // The measurement.
    Frame frameUnits{*this, "frameUnits", "Data in the files"};
    ControlArray<OptionButton> optCPSinData{*this, "optCPSinData", 0, 1, "CPS (counts per second)", 1};
    Frame frameBlank{*this, "frameBlank", "Blank"};
    ControlArray<OptionButton> optBLK_IS{*this, "optBLK_IS", 0, 1, "From a Blank File", 2};
    Frame frameDwell{*this, "frameDwell", "Dwell time"};
    ControlArray<OptionButton> optDWE{*this, "optDWE", 0, 1, "From a Dwell Time File:", 3};
    Entry txtDWEtime{*this, "txtDWEtime"};
    Label lblDWEtime{*this, "lblDWEtime", "[m. sec.]"};
    Entry txtDwePath{*this, "txtDwePath"};
    Button cmdBrowDwe{*this, "cmdBrowDwe", "Browse"};

    // Internal standards.
    Frame frameStandards{*this, "frameStandards", "Internal standards"};
    OptionButton opt1IS{*this, "opt1IS", "One Int. Stand.", 4};
    OptionButton opt2IS{*this, "opt2IS", "Two Int. Stand.", 4};
    OptionButton opt3IS{*this, "opt3IS", "Three Int. Stand.", 4};
    ControlArray<OptionButton> optPeriod{*this, "optPeriod", 0, 1, "Three IS selected on periodic system", 5};
    Label lblHeadIso{*this, "lblHeadIso", "Isotope"};
    Label lblHeadConc{*this, "lblHeadConc", "conc. [ppm]:"};
    Label lblHeadErr{*this, "lblHeadErr", "error [ppm]:"};
    ListBox comboIso{*this, "comboIso"};
    Entry txtISppm1{*this, "txtISppm1"};
    Entry txtISerr1{*this, "txtISerr1"};
    ListBox comboIso2{*this, "comboIso2"};
    Entry txtISppm2{*this, "txtISppm2"};
    Entry txtISerr2{*this, "txtISerr2"};
    ListBox comboIso3{*this, "comboIso3"};
    Entry txtISppm3{*this, "txtISppm3"};
    Entry txtISerr3{*this, "txtISerr3"};
    // The ranges of mass, or the way to the periodic system in their place.
    Panel pictMass{*this, "pictMass"};
    ControlArray<Label> lblRizsa{*this, "lblRizsa", 50, 59, ""};  // the words around the boundaries
    Entry txtMass2{*this, "txtMass2"};
    Entry txtMass3{*this, "txtMass3"};
    Label lblMass1{*this, "lblMass1"};
    Label lblMass2{*this, "lblMass2"};
    Label lblMass3{*this, "lblMass3"};
    Button cmdShow{*this, "cmdShow", "Show periodic system for assignment"};

    // Plots of the time selection.
    Frame framePlots{*this, "framePlots", "Plots"};
    CheckBox chkFormerSel{*this, "chkFormerSel", "Show former selection"};
    ControlArray<OptionButton> optLin{*this, "optLin", 0, 1, "Log", 6};
    CheckBox chkHorizLines{*this, "chkHorizLines", "Show horizontal lines"};
    ControlArray<OptionButton> optResultPlot{*this, "optResultPlot", 0, 2, "Ratio of selected analytes", 7};
    Frame Frame6{*this, "Frame6", "Preferred analyte ratios"};
    ControlArray<ListBox> comboRatio{*this, "comboRatio", 0, 11};
    CheckBox chkRatio1{*this, "chkRatio1", "Show"};
    CheckBox chkRatio2{*this, "chkRatio2", "Show"};
    CheckBox chkRatio3{*this, "chkRatio3", "Show"};
    CheckBox chkRatio4{*this, "chkRatio4", "Show"};
    CheckBox chkRatio5{*this, "chkRatio5", "Show"};
    CheckBox chkRatio6{*this, "chkRatio6", "Show"};
    ControlArray<CheckBox> chkBLK1{*this, "chkBLK1", 1, 6, "Blank corr."};  // of the numerator
    ControlArray<CheckBox> chkBLK2{*this, "chkBLK2", 1, 6, "Blank corr."};  // of the denominator

    // Tests of outliers.
    Frame frameTests{*this, "frameTests", "Outliers"};
    CheckBox chkTestBlank{*this, "chkTestBlank", "Test the noise of blank after Step 2"};
    Frame frameTable{*this, "frameTable", "Data presented in the table of outliers"};
    ControlArray<OptionButton> optTable{*this, "optTable", 0, 3, "", 8};
    // Each of these stands for itself: any of the marks and rejections can be preset together.
    CheckBox optShowMiMa{*this, "optShowMiMa", "Show min., max."};
    CheckBox optMiMa{*this, "optMiMa", "Reject all min., max."};
    CheckBox optShowGrubbs{*this, "optShowGrubbs", "Show Grubbs test"};
    CheckBox optGrubbs{*this, "optGrubbs", "Reject if P(g) < 5%"};
    CheckBox optShowStDev{*this, "optShowStDev", "Show relative std. deviation"};
    CheckBox optStDev{*this, "optStDev", "Reject if deviation  >"};
    Entry txtSD{*this, "txtSD"};
    Label lblSD{*this, "lblSD", "s.d."};

    // Results.
    Frame frameResults{*this, "frameResults", "Results"};
    ControlArray<OptionButton> optMean{*this, "optMean", 0, 1, "Arithmetic mean", 9};
    ControlArray<OptionButton> optOneLine{*this, "optOneLine", 0, 1, "Results in two lines, with head", 10};
    ControlArray<OptionButton> optLinesTables{*this, "optLinesTables", 0, 1, "Lines are time slices", 11};

    Label lblComments{*this, "lblComments", "Comments to this setting file:"};
    Entry txtComments{*this, "txtComments"};

    Button cmdApply{*this, "cmdApply", "Apply"};
    Button cmdSaveAs{*this, "cmdSaveAs", "Save As"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

    CheckBox& chkRatio(int pair);  // 1..6
    [[nodiscard]] const CheckBox& chkRatio(int pair) const { return const_cast<FrmSetIS&>(*this).chkRatio(pair); }
};

}  // namespace kolvar
