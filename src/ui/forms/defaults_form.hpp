// What the two windows of the defaults have in common: every setting that both the U/Pb and the FLEX path keep.
#pragma once

#include <vector>

#include "ui/form.hpp"

namespace kolvar {

struct DefaultsForm : Form {
    DefaultsForm(const char* named, const char* titled);

    // The path and the file names.
    Frame frameMethod{*this, "frameMethod", "Method"};
    ControlArray<OptionButton> optMethod{*this, "optMethod", 0, 3, "", 1};
    Label lblAbbrSTD{*this, "lblAbbrSTD", "Abbr. of standards in file names: "};
    Entry txtAbbrSTD{*this, "txtAbbrSTD"};
    Frame frameMinerals{*this, "frameMinerals", "Minerals"};
    ListBox comboMineral{*this, "comboMineral"};
    Entry txtMineral{*this, "txtMineral"};
    Label Label7{*this, "Label7", "After typing press Enter"};

    // What the measurement is corrected with.
    Frame frameDwell{*this, "frameDwell", "Dwell times [ms]"};
    ControlArray<Label> lblDwe{*this, "lblDwe", 1, 7, ""};
    Entry txtDwe1{*this, "txtDwe1"};
    Entry txtDwe2{*this, "txtDwe2"};
    Entry txtDwe3{*this, "txtDwe3"};
    Entry txtDwe4{*this, "txtDwe4"};
    Entry txtDwe5{*this, "txtDwe5"};
    Entry txtDwe6{*this, "txtDwe6"};
    Entry txtDwe7{*this, "txtDwe7"};
    Frame frameIsotopes{*this, "frameIsotopes", "Isotope ratios"};
    Label lblHg8_4{*this, "lblHg8_4", "Hg198 / Hg204"};
    Entry txtHg8_4{*this, "txtHg8_4"};
    Label lblHg9_4{*this, "lblHg9_4", "Hg199 / Hg204"};
    Entry txtHg9_4{*this, "txtHg9_4"};
    Label lblHg0_4{*this, "lblHg0_4", "Hg200 / Hg204"};
    Entry txtHg0_4{*this, "txtHg0_4"};
    Label lblHg1_4{*this, "lblHg1_4", "Hg201 / Hg204"};
    Entry txtHg1_4{*this, "txtHg1_4"};
    Label lblHg2_4{*this, "lblHg2_4", "Hg202 / Hg204"};
    Entry txtHg2_4{*this, "txtHg2_4"};
    Label lblPb6_4{*this, "lblPb6_4", "Pb206 /  Pb204"};
    Entry txtPb6_4{*this, "txtPb6_4"};
    Label lblPb7_4{*this, "lblPb7_4", "Pb207 / Pb204"};
    Entry txtPb7_4{*this, "txtPb7_4"};
    Label lblPb8_4{*this, "lblPb8_4", "Pb208 / Pb204"};
    Entry txtPb8_4{*this, "txtPb8_4"};
    Label lblU8_5{*this, "lblU8_5", "U238 / U235"};
    Entry txtU8_5{*this, "txtU8_5"};
    CheckBox chkU235calc{*this, "chkU235calc", "U235 cps calculated from U238"};

    // Plots.
    Frame frameLin{*this, "frameLin", "Cps values plotted"};
    ControlArray<OptionButton> optLin{*this, "optLin", 0, 1, "Linear", 2};
    Frame frameLinRatios{*this, "frameLinRatios", "Isotope ratios plotted"};
    ControlArray<OptionButton> optLinRatios{*this, "optLinRatios", 0, 1, "Linear", 3};
    Frame frameShow{*this, "frameShow", "Show on plots"};
    CheckBox chk68{*this, "chk68", "Pb206/U238"};
    CheckBox chk75{*this, "chk75", "Pb207/U235"};
    CheckBox chk82{*this, "chk82", "Pb208/Th232"};
    CheckBox chkUTh{*this, "chkUTh", "U238/Th232"};
    CheckBox chkPbPb{*this, "chkPbPb", "Pb207/Pb206"};
    CheckBox chk_LinReg{*this, "chk_LinReg", "Show linear regression"};
    Frame frameConcordia{*this, "frameConcordia", "X-Y plot"};
    ControlArray<OptionButton> optConcordia{*this, "optConcordia", 0, 1, "Tera-Wasserburg", 4};

    // Outliers.
    Frame frameOutliers{*this, "frameOutliers", "Outliers"};
    CheckBox chkShowOL{*this, "chkShowOL", "Show outliers"};
    Label lblOL{*this, "lblOL", "Test based on:"};
    CheckBox chkOL68{*this, "chkOL68", "Pb206/U238"};
    CheckBox chkOL75{*this, "chkOL75", "Pb207/U235"};
    CheckBox chkOL82{*this, "chkOL82", "Pb208/Th232"};
    CheckBox chkOLUTh{*this, "chkOLUTh", "U238/Th232"};
    CheckBox chkOLPbPb{*this, "chkOLPbPb", "Pb207/Pb206"};
    Label lblOL_SD{*this, "lblOL_SD", "Test / reject if deviation >"};
    Entry txtOL_SD{*this, "txtOL_SD"};
    Label lblOL_SD2{*this, "lblOL_SD2", "s.d."};
    Label lblManual{*this, "lblManual", "Rejection"};
    ControlArray<OptionButton> optManual{*this, "optManual", 0, 1, "Automatc", 5};

    // Refinement of the selection.
    Frame frameZizz{*this, "frameZizz", "Selection refinement"};
    Entry txtZizzRange{*this, "txtZizzRange"};
    ListBox comboBzz{*this, "comboBzz"};
    Label lblBzzPlot{*this, "lblBzzPlot", "testing according to:"};
    ListBox comboBzzPlot{*this, "comboBzzPlot"};
    Label lblBzzMethod{*this, "lblBzzMethod", "parameter optimized:"};
    ListBox comboBzzMethod{*this, "comboBzzMethod"};
    CheckBox chkBzzPrompt_UP{*this, "chkBzzPrompt_UP", "Accept prompt the optimized selection"};

    // Results, errors and output.
    Frame frameAver{*this, "frameAver", "Isotope ratios based on"};
    ControlArray<OptionButton> optAverage{*this, "optAverage", 0, 1, "Tzero intercept", 6};
    Frame Frame15{*this, "Frame15", "Average calculated as"};
    ControlArray<OptionButton> optMean{*this, "optMean", 0, 1, "Median", 7};
    Frame Frame9{*this, "Frame9", "Intercept calculated at"};
    ControlArray<OptionButton> optTzero{*this, "optTzero", 0, 2, "", 8};
    Entry txtDelay{*this, "txtDelay"};
    Label lblDelay{*this, "lblDelay", "slices after start laser"};
    CheckBox chkPbAver{*this, "chkPbAver", "Pb207/Pb206 ratio calculated as average"};
    Frame frameErr{*this, "frameErr", "Error given as .."};
    ListBox comboErr{*this, "comboErr"};
    Label lblErr{*this, "lblErr", "times"};
    ControlArray<OptionButton> optErr{*this, "optErr", 0, 3, "", 9};
    Frame framePasteDat{*this, "framePasteDat", "Output data"};
    ControlArray<OptionButton> optPasteDat{*this, "optPasteDat", 0, 1, "Copy/save all data", 10};
    Label lblComments{*this, "lblComments", "Comments to this setting file:"};
    Entry txtComments{*this, "txtComments"};

    // Choices that no calculation reads.
    Frame frameUnused{*this, "frameUnused", "Pooling and weights"};
    OptionButton Option10{*this, "Option10", "from pooled data", 11};
    OptionButton Option11{*this, "Option11", "from isotope ratios", 11};
    OptionButton Option12{*this, "Option12", "from raw cps data", 11};
    OptionButton Option18{*this, "Option18", "1 slice", 12};
    OptionButton Option19{*this, "Option19", "2 slices", 12};
    OptionButton Option20{*this, "Option20", "5 slices", 12};
    ListBox Combo3{*this, "Combo3"};
    OptionButton Option21{*this, "Option21", "no weights", 13};
    OptionButton Option22{*this, "Option22", "by counts", 13};
    OptionButton Option23{*this, "Option23", "by errors", 13};

    // A sign that tells, when it is clicked, what becomes of the changes.
    Picture Picture1{*this, "Picture1"};
    Label lblPicture1{*this, "lblPicture1",
                      "Apply: until another default file is opened. Save As: for the next start as well."};
    Button cmdApply{*this, "cmdApply", "Apply"};
    Button cmdSaveAs{*this, "cmdSaveAs", "Save As"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

    // The controls that are there and change no result.
    std::vector<Control*> without_effect;

protected:
    // The tabulator comes to the controls from `first` on, which a window adds, behind the minerals.
    void next_after_minerals(const Control& first);
};

}  // namespace kolvar
