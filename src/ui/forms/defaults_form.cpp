#include "ui/forms/defaults_form.hpp"

#include <algorithm>
#include <array>

namespace kolvar {

DefaultsForm::DefaultsForm(const char* named, const char* titled) : Form(named, titled) {
    optMethod(0).text = "LA with int. std.";
    optMethod(1).text = "LA U/Pb";
    optMethod(2).text = "Solution";
    optMethod(3).text = "Solution           U + Th + Sm";
    optLin(0).text = optLinRatios(0).text = "Log";
    optConcordia(0).text = "Wetherill";
    optManual(0).text = "User controlled";
    optAverage(0).text = "Avearge";
    optMean(0).text = "Arithmetic mean";
    optTzero(0).text = "Tzero = start selection";
    optTzero(1).text = "Tzero = start laser";
    optTzero(2).text = "Tzero =                time";
    optErr(0).text = "standard deviation";
    optErr(1).text = "relative st. dev. [%]";
    optErr(2).text = "standard error";
    optErr(3).text = "relative s.e. [%]";
    optPasteDat(0).text = "Copy/save major data  (CPH - FRA format)";
    const std::array<const char*, 7> isotopes = {"U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", "Pb204"};
    for (Label& label : lblDwe) label.text = isotopes[static_cast<std::size_t>(label.index) - 1];

    for (OptionButton& option : optMethod) put_into(frameMethod, {&option});
    put_into(frameMinerals, {&comboMineral, &txtMineral, &Label7});
    for (Label& label : lblDwe) put_into(frameDwell, {&label});
    put_into(frameDwell, {&txtDwe1, &txtDwe2, &txtDwe3, &txtDwe4, &txtDwe5, &txtDwe6, &txtDwe7});
    put_into(frameIsotopes,
             {&lblHg8_4, &txtHg8_4, &lblHg9_4, &txtHg9_4, &lblHg0_4, &txtHg0_4, &lblHg1_4, &txtHg1_4, &lblHg2_4,
              &txtHg2_4, &lblPb6_4, &txtPb6_4, &lblPb7_4, &txtPb7_4, &lblPb8_4, &txtPb8_4, &lblU8_5, &txtU8_5});
    put_into(frameLin, {&optLin(0), &optLin(1)});
    put_into(frameLinRatios, {&optLinRatios(0), &optLinRatios(1)});
    put_into(frameShow, {&chk68, &chk75, &chk82, &chkUTh, &chkPbPb, &chk_LinReg});
    put_into(frameConcordia, {&optConcordia(0), &optConcordia(1)});
    put_into(frameOutliers, {&chkShowOL, &lblOL, &chkOL68, &chkOL75, &chkOL82, &chkOLUTh, &chkOLPbPb, &lblOL_SD,
                             &txtOL_SD, &lblOL_SD2, &lblManual, &optManual(0), &optManual(1)});
    put_into(frameZizz,
             {&txtZizzRange, &comboBzz, &lblBzzPlot, &comboBzzPlot, &lblBzzMethod, &comboBzzMethod, &chkBzzPrompt_UP});
    put_into(frameAver, {&optAverage(0), &optAverage(1)});
    put_into(Frame15, {&optMean(0), &optMean(1)});
    put_into(Frame9, {&optTzero(0), &optTzero(1), &optTzero(2), &txtDelay, &lblDelay, &chkPbAver});
    put_into(frameErr, {&comboErr, &lblErr, &optErr(0), &optErr(1), &optErr(2), &optErr(3)});
    put_into(framePasteDat, {&optPasteDat(0), &optPasteDat(1)});
    put_into(frameUnused, {&Option10, &Option11, &Option12, &Option18, &Option19, &Option20, &Combo3, &Option21,
                           &Option22, &Option23});

    comboBzz.set_items({"%", "data"});
    comboBzzMethod.set_items({"RMS", "Skewness"});
    comboErr.set_items({"1x", "2x", "3x"});
    comboMineral.set_items({"sphene", "rutil", "monacite", "zircon", "xenotime", "allanite", "perovskite", "other"});
    Combo3.set_items({"linear", "quadratic"});
    Label7.visible = lblPicture1.visible = false;
    txtComments.multiline = true;
    // An "i" in a ring.
    Picture1.canvas.Circle(180, 180, 150, palette(1));
    Picture1.canvas.FillRect(165, 90, 195, 120, palette(1));
    Picture1.canvas.FillRect(165, 150, 195, 270, palette(1));
    without_effect = {&Option10, &Option11, &Option12, &Option18, &Option19,
                      &Option20, &Combo3,   &Option21, &Option22, &Option23};
}

void DefaultsForm::next_after_minerals(const Control& first) {
    const auto rest = std::find(controls.begin(), controls.end(), &frameDwell);
    std::rotate(rest, std::find(rest, controls.end(), &first), controls.end());
}

}  // namespace kolvar
