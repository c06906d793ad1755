// Every control of the two windows of the defaults under its name, with the caption that stands beside it, on it or
// over it; and text in each field that wants a number.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;
struct Named {
    const char* control;
    int index;
    const char* caption;
};

// Captions of the controls themselves.
const Named on_both[] = {
    {"optMethod", 0, "LA with int. std."},
    {"optMethod", 1, "LA U/Pb"},
    {"optMethod", 2, "Solution"},
    {"optMethod", 3, "Solution           U + Th + Sm"},
    {"optLin", 0, "Log"},
    {"optLin", 1, "Linear"},
    {"optLinRatios", 0, "Log"},
    {"optLinRatios", 1, "Linear"},
    {"chk_LinReg", -1, "Show linear regression"},
    {"chkBzzPrompt_UP", -1, "Accept prompt the optimized selection"},
    {"optConcordia", 0, "Wetherill"},
    {"optConcordia", 1, "Tera-Wasserburg"},
    {"chkShowOL", -1, "Show outliers"},
    {"optManual", 0, "User controlled"},
    {"optManual", 1, "Automatc"},
    {"chkU235calc", -1, "U235 cps calculated from U238"},
    {"optAverage", 0, "Avearge"},
    {"optAverage", 1, "Tzero intercept"},
    {"optMean", 0, "Arithmetic mean"},
    {"optMean", 1, "Median"},
    {"optTzero", 0, "Tzero = start selection"},
    {"optTzero", 1, "Tzero = start laser"},
    {"optTzero", 2, "Tzero =                time"},
    {"chkPbAver", -1, "Pb207/Pb206 ratio calculated as average"},
    {"optPasteDat", 0, "Copy/save major data  (CPH - FRA format)"},
    {"optPasteDat", 1, "Copy/save all data"},
    {"optErr", 1, "relative st. dev. [%]"},
    {"Label7", -1, "After typing press Enter"},
    {"Option10", -1, "from pooled data"},
    {"Option11", -1, "from isotope ratios"},
    {"Option12", -1, "from raw cps data"},
    {"cmdApply", -1, "Apply"},
    {"cmdSaveAs", -1, "Save As"},
    {"cmdCancel", -1, "Cancel"},
};
const Named of_uranium_lead[] = {
    {"cmdNewSTD", -1, "Add new standard"},
    {"cmdCancelNewStd", -1, "Cancel"},
    {"chkFormerSel", -1, "Show former selection"},
    {"chkHgCorr1", -1, "Hg --> Pb204 correction"},
    {"chkCommLead1", -1, "Common lead correction"},
    {"Option1", -1, "No correction"},
    {"Option2", -1, "Using recent Pb isotope ratios"},
    {"Option3", -1, "Using Pb isotope ratios according to the  206/238 age of the crystal"},
    {"Option13", -1, "Using Pb isotope ratios for"},
    {"Check4", -1, "Apparent common Pb age"},
    {"Check6", -1, "Apply when"},
};

// Captions of the frame around a control.
const Named framed_on_both[] = {
    {"txtDwe1", -1, "Dwell times [ms]"},
    {"txtDwe7", -1, "Dwell times [ms]"},
    {"optLin", 0, "Cps values plotted"},
    {"optLinRatios", 0, "Isotope ratios plotted"},
    {"chk68", -1, "Show on plots"},
    {"chk75", -1, "Show on plots"},
    {"chk82", -1, "Show on plots"},
    {"chkUTh", -1, "Show on plots"},
    {"chkPbPb", -1, "Show on plots"},
    {"txtZizzRange", -1, "Selection refinement"},
    {"comboBzz", -1, "Selection refinement"},
    {"optConcordia", 0, "X-Y plot"},
    {"optAverage", 0, "Isotope ratios based on"},
    {"optMean", 0, "Average calculated as"},
    {"optTzero", 0, "Intercept calculated at"},
    {"txtDelay", -1, "Intercept calculated at"},
    {"comboErr", -1, "Error given as .."},
    {"optErr", 3, "Error given as .."},
    {"optPasteDat", 0, "Output data"},
};
const Named framed_on_uranium_lead[] = {
    {"comboStd", -1, "Standard"},
    {"Option1", -1, "Common lead correction"},
};
const Named framed_on_flex[] = {
    {"comboPref", 1, "Preferred analytes"},        {"comboPref", 15, "Preferred analytes"},
    {"comboRatio", 0, "Preferred analyte ratios"}, {"comboRatio", 11, "Preferred analyte ratios"},
    {"chkRatio1", -1, "Preferred analyte ratios"}, {"chkRatio6", -1, "Preferred analyte ratios"},
};

// Captions of labels beside a control, which are the control before it in its window.
const Named beside_on_both[] = {
    {"txtAbbrSTD", -1, "Abbr. of standards in file names: "},
    {"txtHg8_4", -1, "Hg198 / Hg204"},
    {"txtHg9_4", -1, "Hg199 / Hg204"},
    {"txtHg0_4", -1, "Hg200 / Hg204"},
    {"txtHg1_4", -1, "Hg201 / Hg204"},
    {"txtHg2_4", -1, "Hg202 / Hg204"},
    {"txtPb6_4", -1, "Pb206 /  Pb204"},
    {"txtPb7_4", -1, "Pb207 / Pb204"},
    {"txtPb8_4", -1, "Pb208 / Pb204"},
    {"txtU8_5", -1, "U238 / U235"},
    {"comboBzzPlot", -1, "testing according to:"},
    {"comboBzzMethod", -1, "parameter optimized:"},
    {"chkOL68", -1, "Test based on:"},
    {"txtOL_SD", -1, "Test / reject if deviation >"},
    {"optManual", 0, "Rejection"},
    {"txtComments", -1, "Comments to this setting file:"},
};

const char* const columns[] = {"Abbr. in file names: ",
                               "U [ppm]: ",
                               "Th [ppm]: ",
                               "Pb [ppm]: ",
                               "206/238: ",
                               " 207/235: ",
                               "208/232: ",
                               "207/206: ",
                               "Age [Ma]:"};

const char* const not_on_flex[] = {"comboStd",  "txtStd",     "txtStdEr",     "cmdNewSTD",    "Picture2",
                                   "txtNewSTD", "chkHgCorr1", "chkCommLead1", "chkFormerSel", "cmdOKnewSTD"};

const char* const numeric[] = {"txtHg8_4", "txtHg9_4", "txtHg0_4", "txtHg1_4",     "txtHg2_4", "txtPb6_4", "txtPb7_4",
                               "txtPb8_4", "txtU8_5",  "txtDwe1",  "txtDwe2",      "txtDwe3",  "txtDwe4",  "txtDwe5",
                               "txtDwe6",  "txtDwe7",  "txtOL_SD", "txtZizzRange", "txtDelay"};

class DefaultsCaptions : public ProgramOnKit {
protected:
    static std::string around(const Control* control) { return control->parent ? control->parent->text : ""; }
    static std::string beside(const Control* control) {
        const std::vector<Control*>& all = control->form.controls;
        const auto at = std::find(all.begin(), all.end(), control);
        return at == all.begin() ? std::string() : (*std::prev(at))->text;
    }
    static std::string own(const Control* control) { return control->text; }

    template <class Table, class Caption>
    void expect_captions(const Form& form, const Table& table, Caption&& caption) {
        for (const auto& [control, index, text] : table) {
            const Control* const found = form.find(control, index);
            ASSERT_NE(found, nullptr) << form.name << "." << control;
            EXPECT_EQ(caption(found), text) << form.name << "." << control;
        }
    }
    // On both windows the same settings.
    std::vector<Value> numbers() {
        const RunState& r = rs();
        return {r.Hg8_4,    r.Hg9_4,    r.Hg0_4,    r.Hg1_4,        r.Hg2_4,    r.Pb6_4,    r.Pb7_4,
                r.Pb8_4,    r.UU8_5,    r.dweU238,  r.dweU235,      r.dweTh232, r.dwePb208, r.dwePb207,
                r.dwePb206, r.dwePb204, r.setOL_SD, r.setZizzRange, r.setDelay};
    }
};

TEST_F(DefaultsCaptions, EveryControlHasItsNameAndCaption) {
    for (const Form* form : std::initializer_list<const Form*>{&forms().frm_SetUP, &forms().frm_Set_FLEX}) {
        expect_captions(*form, on_both, own);
        expect_captions(*form, framed_on_both, around);
        expect_captions(*form, beside_on_both, beside);
        EXPECT_EQ(form->find("lblOL_SD2")->text, "s.d.");
        EXPECT_EQ(form->find("lblDelay")->text, "slices after start laser");
        EXPECT_EQ(form->find("lblErr")->text, "times");
        for (const char* unused : {"Option18", "Option19", "Option20", "Combo3", "Option21", "Option22", "Option23",
                                   "comboMineral", "txtMineral", "Picture1"})
            EXPECT_TRUE(form->has(unused)) << unused;
    }
}

TEST_F(DefaultsCaptions, TheStandardsAreOnOneWindowAndTheAnalytesOnTheOther) {
    const FrmSetUP& form = forms().frm_SetUP;
    expect_captions(form, of_uranium_lead, own);
    expect_captions(form, framed_on_uranium_lead, around);
    EXPECT_EQ(form.lblNewSTD.text,
              "Type the name of the new standard and press OK.   Note that the name can not be modified later.");
    for (int row = 0; row <= 8; ++row) {
        EXPECT_EQ(form.lblStd(row).text, columns[row]);
        EXPECT_NE(form.find("txtStd", row), nullptr) << row;
        EXPECT_EQ(form.find("txtStdEr", row) != nullptr, row > 0) << row;
    }
    const FrmSetFLEX& flex = forms().frm_Set_FLEX;
    expect_captions(flex, framed_on_flex, around);
    for (const char* other : not_on_flex) {
        EXPECT_TRUE(form.has(other)) << other;
        EXPECT_FALSE(flex.has(other)) << other;
    }
}

TEST_F(DefaultsCaptions, TextInEveryFieldThatWantsANumberIsTakenAsNought) {
    program->start(1);
    for (Form* form : std::initializer_list<Form*>{&forms().frm_SetUP, &forms().frm_Set_FLEX})
        for (const char* text : {"text", "", "-", "1e", ".", "+.5e1 x"}) {
            program->shell().open(*form);
            for (const char* field : numeric) type(*form, field, text);
            click(*form, "cmdApply");
            EXPECT_FALSE(form->shown);
            const std::string all = text;
            const double number = all == "1e" ? 1 : all == "+.5e1 x" ? 5 : 0;
            std::vector<Value> expected(std::size(numeric), Value(number));
            for (std::size_t dwell = 9; dwell <= 15; ++dwell) expected[dwell] = number / 1000;
            EXPECT_EQ(numbers(), expected) << form->name << " " << text;
        }
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(DefaultsCaptions, SettingsWithoutANumberAreShownAsTheyStand) {
    program->start(1);
    rs().UU8_5 = "about";
    rs().dweU238 = "ten";
    rs().setErr = "";
    rs().set_68 = "yes";
    program->shell().open(forms().frm_SetUP);
    const FrmSetUP& form = forms().frm_SetUP;
    EXPECT_EQ(form.txtU8_5.text, "about");
    EXPECT_EQ(form.txtDwe1.text, "0");
    EXPECT_TRUE(form.optErr(0).on());
    EXPECT_FALSE(form.chk68.on());
    EXPECT_EQ(box_texts(), Names{});
}

}  // namespace
}  // namespace kolvar::test
