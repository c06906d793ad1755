#include "ui/forms/frm_set_is.hpp"

#include <array>

#include "core/fault.hpp"

namespace kolvar {

FrmSetIS::FrmSetIS() : Form("frm_SetIS", "Settings for LA-ICP-MS calculations using internal standard") {
    optCPSinData(0).text = "Counts";
    optBLK_IS(0).text = "Will be extracted from the Data File";
    optDWE(0).text = "Uniform Dwell Time of ";
    optPeriod(0).text = "IS according to amu  (1, 2 or 3 IS)";
    optLin(0).text = "Linear";
    optResultPlot(0).text = "Cps ratios (Sample / Int. Stand.)";
    optResultPlot(1).text = "Concentrations (ppm)";
    optTable(0).text = "CPS (blank corr.)";
    optTable(1).text = "Relative Std. Dev. (CPS)";
    optTable(2).text = "Isotope / Internal Standard";
    optTable(3).text = "Relative Std. Deviation  (Isotope / Internal Standard)";
    optMean(0).text = "Median";
    optOneLine(0).text = "Results in one line, only concentrations";
    optLinesTables(0).text = "Lines are elements";
    // A line of words for each standard: where its range begins and where it ends.
    const std::array<const char*, 10> words = {"for isotopes",      "up to", "amu", "for isotopes from", "up to", "amu",
                                               "for isotopes from", "up to", "amu", "Range of masses"};
    for (std::size_t k = 0; k < words.size(); ++k) lblRizsa(50 + static_cast<int>(k)).text = words[k];

    put_into(frameFiles,
             {&lblAbbrSTD, &txtAbbrSTD, &lblSTC, &txtSTCpath, &cmdBrowSTC, &lblSTM, &txtSTMpath, &cmdBrowSTM});
    for (OptionButton& option : optCPSinData) put_into(frameUnits, {&option});
    for (OptionButton& option : optBLK_IS) put_into(frameBlank, {&option});
    for (OptionButton& option : optDWE) put_into(frameDwell, {&option});
    put_into(frameDwell, {&txtDWEtime, &lblDWEtime, &txtDwePath, &cmdBrowDwe});
    put_into(frameStandards, {&opt1IS, &opt2IS, &opt3IS, &optPeriod(0), &optPeriod(1), &lblHeadIso, &lblHeadConc,
                              &lblHeadErr, &comboIso, &txtISppm1, &txtISerr1, &comboIso2, &txtISppm2, &txtISerr2,
                              &comboIso3, &txtISppm3, &txtISerr3, &pictMass, &cmdShow});
    for (Label& label : lblRizsa) put_into(pictMass, {&label});
    put_into(pictMass, {&txtMass2, &txtMass3, &lblMass1, &lblMass2, &lblMass3});
    put_into(framePlots, {&chkFormerSel, &optLin(0), &optLin(1), &chkHorizLines, &optResultPlot(0), &optResultPlot(1),
                          &optResultPlot(2), &Frame6});
    for (ListBox& list : comboRatio) put_into(Frame6, {&list});
    // The quick results hold the ratios whatever is plotted: their blank correction is open also while the frame is
    // not.
    for (int pair = 1; pair <= 6; ++pair) {
        put_into(Frame6, {&chkRatio(pair)});
        put_into(framePlots, {&chkBLK1(pair), &chkBLK2(pair)});
    }
    put_into(frameTests, {&chkTestBlank, &frameTable, &optShowMiMa, &optMiMa, &optShowGrubbs, &optGrubbs, &optShowStDev,
                          &optStDev, &txtSD, &lblSD});
    for (OptionButton& option : optTable) put_into(frameTable, {&option});
    for (auto* pair : {&optMean, &optOneLine, &optLinesTables})
        for (OptionButton& option : *pair) put_into(frameResults, {&option});

    // A name can be typed that no column has.
    comboIso.editable = comboIso2.editable = comboIso3.editable = true;
    for (ListBox& list : comboRatio) list.editable = true;
    txtComments.multiline = true;
    cmdShow.visible = false;
}

CheckBox& FrmSetIS::chkRatio(int pair) {
    const std::array<CheckBox*, 6> boxes{&chkRatio1, &chkRatio2, &chkRatio3, &chkRatio4, &chkRatio5, &chkRatio6};
    if (pair < 1 || pair > 6) fail(FaultKind::index);
    return *boxes[static_cast<std::size_t>(pair) - 1];
}

}  // namespace kolvar
