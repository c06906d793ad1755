// What the U/Pb and FLEX screen shows when it comes up: by path, by kind of result, by what was measured.
#include <algorithm>

#include "up_fixture.hpp"
#include "upb/ratio_fields.hpp"

namespace kolvar::test {
namespace {

class UpPaths : public OnUpWindow {
protected:
    // Which of a row's mean, median and T-zero value are visible.
    std::string shown_of(int ratio) {
        const Frm2UP::RatioRow row = form().ratio_row(ratio);
        std::string list;
        for (const auto& [label, name] :
             {std::pair{&row.mean, "mean "}, std::pair{&row.median, "median "}, std::pair{&row.tzero, "tzero "}})
            if (label->visible) list += name;
        return list;
    }
    std::string heads_shown() {
        std::string list;
        for (const auto& [label, name] : {std::pair{&form().lblAv, "mean "}, std::pair{&form().lblMed, "median "},
                                          std::pair{&form().lblTz, "tzero "}})
            if (label->visible) list += name;
        return list;
    }
    void go_without_u235_and_thorium() {
        program->start(1);
        rs().setConcordia = 0;
        std::string bytes = "Pb204,Pb206,Pb207,Pb208,U238\n";
        for (int slice = 1; slice <= 10; ++slice)
            bytes += "1," + std::to_string(slice) + ",3,5," + std::to_string(7 + slice % 3) + "\n";
        choose(folder.write("short.csv", bytes));
    }
    void go_flex() {
        program->start(3);
        std::string bytes = "U238,U235,U233,Th230,Th232,Pt195,Pt198,Ca43,Sm147,ThO248\n";
        for (int slice = 1; slice <= 10; ++slice) bytes += "1,2,3,4,5,6,7,8,9," + std::to_string(slice) + "\n";
        choose(folder.write("flex.csv", bytes));
    }
};

TEST_F(UpPaths, ExactlyTheKindThatCarriesTheResultIsShown) {
    struct Case {
        int setAver, setMean_UP, setPbAver;
        const char *others, *lead;
    };
    go();
    for (const Case& each : {Case{0, 0, 0, "mean ", "mean "}, Case{0, 1, 0, "median ", "median "},
                             Case{1, 0, 0, "tzero ", "tzero "}, Case{1, 1, 0, "tzero ", "tzero "},
                             // The lead ratio may keep the average.
                             Case{0, 0, 1, "mean ", "mean "}, Case{0, 1, 1, "median ", "median "},
                             Case{1, 0, 1, "tzero ", "mean "}, Case{1, 1, 1, "tzero ", "median "}}) {
        rs().setAver = each.setAver;
        rs().setMean_UP = each.setMean_UP;
        rs().setPbAver = each.setPbAver;
        leave_and_return();
        const std::string at =
            std::to_string(each.setAver) + std::to_string(each.setMean_UP) + std::to_string(each.setPbAver);
        for (int ratio = 0; ratio < 4; ++ratio) EXPECT_EQ(shown_of(ratio), each.others) << at << " " << ratio;
        EXPECT_EQ(shown_of(4), each.lead) << at;
        EXPECT_EQ(heads_shown(), each.others) << at;
    }
}

TEST_F(UpPaths, HeadsTellTheErrorAndItsMultiple) {
    go();
    rs().setErr_times = 2;
    const char* const units[] = {"s.d.", "sd(%)", "s.e.", "se(%)"};
    for (int kind = 0; kind < 4; ++kind) {
        rs().setErr = kind;
        leave_and_return();
        EXPECT_EQ(form().lblAv.text, std::string("mean. +- 2") + units[kind]);
        EXPECT_EQ(form().lblTz.text, std::string("Tzero. +- 2") + units[kind]);
    }
}

TEST_F(UpPaths, RatiosOfMissingColumnsHaveNoRowNoBoxAndNoMark) {
    go_without_u235_and_thorium();
    rs().setAver = 0;
    rs().setMean_UP = 0;
    for (Value* key : {&rs().set_68, &rs().set_75, &rs().set_082, &rs().set_382, &rs().set_76, &rs().setOL_68,
                       &rs().setOL_75, &rs().setOL_082, &rs().setOL_382, &rs().setOL_76})
        *key = 1;
    leave_and_return();
    for (int ratio = 0; ratio < ratio_count; ++ratio) {
        const bool measured = ratio == 0 || ratio == 4;
        EXPECT_EQ(shown_of(ratio), measured ? "mean " : "") << ratio;
        EXPECT_EQ(form().ratio_row(ratio).box.on(), measured) << ratio;
        EXPECT_EQ(form().ratio_row(ratio).box.enabled, measured) << ratio;
        EXPECT_EQ(form().Shape(ratio + 1).visible, measured) << ratio;
    }
    EXPECT_TRUE(form().optConcord(1).on());
    EXPECT_FALSE(form().optConcord(0).on() || form().optConcord(0).enabled);
    EXPECT_EQ(form().Combo7.items, std::vector<std::string>{"Tera-Wasserburg"});
    EXPECT_EQ(form().lblFLEXiso(8).text, "Hg");
    EXPECT_TRUE(form().chkHgCorr.visible && form().chkCommLead.visible);
    EXPECT_FALSE(form().chkHgCorr.enabled || form().chkCommLead.enabled);
}

TEST_F(UpPaths, ControlsTakeTheirSettings) {
    go();
    rs().setHg_corr = 0;
    rs().setLinReg = 1;
    rs().setConcordia = 1;
    rs().setLinear = 1;
    rs().setLinearRatios = 1;
    rs().setZizzRange = 15;
    rs().setZizzType = 1;
    rs().setBzzPlot = 1;
    rs().setBzzMethod = 1;
    rs().setBzz_Prompt = 1;
    rs().set235_Calc = 1;
    rs().setOL_SD = 2.5;
    rs().setShowOL = 0;
    rs().set_68 = 0;
    rs().set_75 = 1;
    rs().set_082 = 0;
    rs().set_382 = 1;
    rs().set_76 = 0;
    leave_and_return();
    EXPECT_FALSE(form().chkHgCorr.on());
    EXPECT_TRUE(form().chkHgCorr.enabled && form().chkLinReg.on() && form().optConcord(1).on());
    EXPECT_TRUE(form().optConcord(0).enabled);
    EXPECT_TRUE(form().optLi.on() && rs().LinearView && form().optLiR.on());
    EXPECT_EQ(form().txtZizzRange.text, "15");
    EXPECT_EQ(form().comboBzz.items, (std::vector<std::string>{"%", "data"}));
    EXPECT_EQ(form().comboBzz.text, "data");
    EXPECT_EQ(form().Combo7.items, (std::vector<std::string>{"Wetherill", "Tera-Wasserburg"}));
    EXPECT_EQ(form().Combo7.text, "Tera-Wasserburg");
    EXPECT_EQ(form().Combo8.items, (std::vector<std::string>{"RMS", "Skewness"}));
    EXPECT_EQ(form().Combo8.text, "Skewness");
    EXPECT_TRUE(form().chkBzzPrompt.on() && form().lbl235C.visible);
    EXPECT_EQ(form().txtSD.text, "2.5");
    EXPECT_FALSE(form().chkShowSD.on());
    EXPECT_TRUE(form().Frame4.visible && form().cmdReject.visible && form().lblReject.visible && form().lblOM.visible);
    const std::vector<bool> ticked{false, true, false, true, false};
    for (int ratio = 0; ratio < ratio_count; ++ratio)
        EXPECT_EQ(form().ratio_row(ratio).box.on(), ticked[static_cast<std::size_t>(ratio)]);
    rs().setLinear = 0;
    rs().setLinearRatios = 0;
    rs().set235_Calc = 0;
    leave_and_return();
    EXPECT_TRUE(form().optLo.on() && form().optLoR.on());
    EXPECT_FALSE(rs().LinearView || form().lbl235C.visible || form().lblMaxCps2.visible);
}

TEST_F(UpPaths, ThirdPathNamesItsIsotopesAndHidesWhatIsForDating) {
    go_flex();
    EXPECT_EQ(form().title, "Kolv-AGE  -  Selection of time slices and results on screen");
    EXPECT_EQ(form().chk68.text, "U233/U238");
    EXPECT_EQ(form().chk82.text, "Th230/Th332");
    for (int i = 1; i <= 15; ++i) {
        EXPECT_EQ(form().lblFLEXiso(i).text, rs().FlexIso(i).text()) << i;
        EXPECT_TRUE(form().lblFLEXiso(i).visible) << i;
    }
    Frm2UP& f = form();
    for (const Control* hidden : std::initializer_list<const Control*>{
             &f.chk75,      &f.chk76, &f.lbl7_5,    &f.lbl7_6,   &f.lblTz7_5,     &f.lblTz7_6,    &f.Label15,
             &f.lblExPo75,  &f.pict3, &f.lblFusion, &f.VScroll2, &f.lblRizsa(6),  &f.chkHgCorr,   &f.chkCommLead,
             &f.cmdCopySel, &f.lblXY, &f.Frame1,    &f.Frame2,   &f.lblRizsa(12), &f.lblRizsa(13)})
        EXPECT_FALSE(hidden->visible) << hidden->address();
}

TEST_F(UpPaths, WhatTheThirdPathHidIsBackForDating) {
    go_flex();
    rs().setAver = 0;
    click(form(), "cmdBack");
    rs().Method = 1;
    rs().setMean_UP = 0;
    choose(std::string(KOLVAR_TEST_DATA) + "/results/panel.csv");
    Frm2UP& f = form();
    EXPECT_EQ(f.chk68.text, "Pb206/U238");
    EXPECT_EQ(f.chk82.text, "Pb208/Th232");
    for (const Control* shown : std::initializer_list<const Control*>{
             &f.chk75, &f.chk76, &f.lbl7_5, &f.lbl7_6, &f.Label15, &f.lblExPo75, &f.pict3, &f.lblFusion, &f.VScroll2,
             &f.lblRizsa(6), &f.chkHgCorr, &f.chkCommLead, &f.cmdCopySel, &f.lblXY, &f.Frame1, &f.Frame2,
             &f.lblRizsa(12), &f.lblRizsa(13)})
        EXPECT_TRUE(shown->visible) << shown->address();
    EXPECT_EQ(f.lblFLEXiso(1).text, "U238");
    EXPECT_EQ(f.lblFLEXiso(8).text, "Hg202");
    EXPECT_FALSE(f.lblFLEXiso(9).visible);
}

TEST_F(UpPaths, ThirdPathPoolsNothingSinceItsBarIsHidden) {
    go();
    scroll(form(), "VScroll2", 3);
    click(form(), "cmdBack");
    rs().Method = 3;
    for (int slot = 1; slot <= 15; ++slot) rs().FlexIso(slot) = rs().IsoName(std::min(slot, rs().nIso));
    click(forms().frm1_Settings, "Command9");
    ASSERT_TRUE(form().shown);
    EXPECT_EQ(rs().PlotPool, 1);
    EXPECT_EQ(form().VScroll2.value, 1);
}

TEST_F(UpPaths, HeadsWithoutARoleAreListedWithTheFormsThatHaveOne) {
    program->start(1);
    choose(folder.write("odd.csv", "pb204,Pb206,207Pb,Pb208,U238,Zr91\n1,2,3,4,5,6\n1,2,3,4,5,6\n"));
    EXPECT_EQ(form().lblStatus.text,
              "Columns without a role: pb204 Zr91.  Accepted forms: U238   U-238   U 238   238U   238-U  238 U  "
              "U238(LR)   U238(HR)");
    load_short_file();
    EXPECT_EQ(form().lblStatus.text, "");
}

}  // namespace
}  // namespace kolvar::test
