// The windows of the defaults: how they open, what closes them, and what a save does to the name of the settings.
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;

class DefaultsWindow : public ProgramOnKit {
protected:
    FrmSetUP& form() { return forms().frm_SetUP; }
    FrmSetFLEX& flex() { return forms().frm_Set_FLEX; }
    void open() {
        if (program->shell().active() == nullptr) program->start(1);
        click(forms().frm1_Settings, "cmdSet_1");
        ASSERT_EQ(shown_windows().back(), "frm_SetUP");
    }
    void open_flex() {
        program->start(3);
        click(forms().frm1_Settings, "Command9");
        click(forms().frm2_UP, "cmdSett");
        ASSERT_EQ(shown_windows().back(), "frm_Set_FLEX");
    }
    void save_as(const std::string& path) {
        os.saves.emplace_back(path);
        click(form(), "cmdSaveAs");
    }
};

TEST_F(DefaultsWindow, OpensFromTheStartWindowAndItsMenus) {
    program->start(1);
    for (const auto& [control, index] :
         std::vector<std::pair<std::string, int>>{{"cmdSet_1", -1}, {"mnuDefault", 1}, {"mnuSettings", 1}}) {
        click(forms().frm1_Settings, control, index);
        EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_SetUP"})) << control;
        click(form(), "cmdCancel");
        EXPECT_EQ(shown_windows(), Names{"frm1_Settings"}) << control;
    }
}

TEST_F(DefaultsWindow, ModifyDefaultsOpensTheWindowOfAgesAlsoOnTheThirdPath) {
    program->start(3);
    ASSERT_EQ(rs().Method, 3);
    click(forms().frm1_Settings, "mnuDefault", 1);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_SetUP"}));
}

TEST_F(DefaultsWindow, ShowSettingsOpensNothingOnThePathsThatHaveNoSettingsOfTheirOwn) {
    program->start(1);
    for (const int method : {2, 3}) {
        rs().Method = method;
        click(forms().frm1_Settings, "mnuSettings", 1);
        EXPECT_EQ(shown_windows(), Names{"frm1_Settings"}) << method;
    }
}

TEST_F(DefaultsWindow, OpensOverTheScreenOfThePathInUse) {
    program->start(1);
    click(forms().frm1_Settings, "cmdOK1");
    rs().Method = 1;
    click(forms().frm2_UP, "cmdSett");
    EXPECT_EQ(shown_windows(), (Names{"frm2_UP", "frm_SetUP"}));
    click(form(), "cmdApply");
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
    rs().Method = 3;
    click(forms().frm2_UP, "cmdSett");
    EXPECT_EQ(shown_windows(), (Names{"frm2_UP", "frm_Set_FLEX"}));
    click(flex(), "cmdCancel");
    // The other paths have no such window.
    rs().Method = 2;
    click(forms().frm2_UP, "cmdSett");
    EXPECT_EQ(shown_windows(), Names{"frm2_UP"});
}

TEST_F(DefaultsWindow, CaptionsStandAsTheyAlwaysDid) {
    EXPECT_EQ(form().title, "Defaults for the U/Pb data reduction");
    EXPECT_EQ(flex().title, "Defaults for Kolv_FLEX data reduction");
    EXPECT_EQ(form().optAverage(0).text, "Avearge");
    EXPECT_EQ(form().optManual(1).text, "Automatc");
    EXPECT_EQ(form().lblStd(5).text, " 207/235: ");
    EXPECT_EQ(form().lblPb6_4.text, "Pb206 /  Pb204");
    EXPECT_EQ(form().optMethod(3).text, "Solution           U + Th + Sm");
    EXPECT_EQ(form().Option3.text, "Using Pb isotope ratios according to the  206/238 age of the crystal");
}

TEST_F(DefaultsWindow, TypedValuesAreTakenByApplyAndNotByCancel) {
    open();
    type(form(), "txtDwe1", "40");
    EXPECT_EQ(rs().dweU238, Value(0.01));
    click(form(), "cmdCancel");
    EXPECT_EQ(rs().dweU238, Value(0.01));
    open();
    EXPECT_EQ(form().txtDwe1.text, "10");
    type(form(), "txtDwe1", "40");
    close(form());
    EXPECT_EQ(rs().dweU238, Value(0.01));
    open();
    type(form(), "txtDwe1", "10");
    click(form(), "cmdApply");
    EXPECT_EQ(rs().dweU238, Value(0.01));
    EXPECT_FALSE(form().shown);
}

TEST_F(DefaultsWindow, DwellTimesAreShownTimesAThousandAsTheyWereTyped) {
    open();
    for (const char* typed : {"10", "0.07", "0.3", "1001", "12.345"}) {
        type(form(), "txtDwe1", typed);
        click(form(), "cmdApply");
        EXPECT_EQ(rs().dweU238, Value(Val(typed) / 1000)) << typed;
        open();
        EXPECT_EQ(form().txtDwe1.text, typed);
    }
}

TEST_F(DefaultsWindow, WithoutU235TheOnlyDiagramIsCountedFromNought) {
    program->start(1);
    ASSERT_EQ(rs().ColU235, 0);
    rs().setBzzPlot = 1;
    open();
    EXPECT_EQ(form().comboBzzPlot.items, Names{"Tera-Wasserburg"});
    EXPECT_EQ(form().comboBzzPlot.value, 0);
    EXPECT_FALSE(form().optConcordia(0).enabled);
    EXPECT_TRUE(form().optConcordia(1).on());
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setBzzPlot, Value(0));
    EXPECT_EQ(rs().setConcordia, Value(1));
}

TEST_F(DefaultsWindow, WithU235BothDiagramsCanBeChosen) {
    program->start(1);
    rs().ColU235 = 2;
    open();
    EXPECT_EQ(form().comboBzzPlot.items, (Names{"Wetherill", "Tera-Wasserburg"}));
    EXPECT_TRUE(form().optConcordia(0).enabled && form().optConcordia(0).on());
}

TEST_F(DefaultsWindow, ANumberThatNoChoiceStandsForIsShownAsNoneAndStays) {
    program->start(1);
    rs().setErr = 7;
    rs().setErr_times = 5;
    rs().setPrefSTD = 40;
    open();
    for (const OptionButton& option : form().optErr) EXPECT_FALSE(option.on());
    EXPECT_EQ(form().comboErr.value, -1);
    EXPECT_EQ(form().comboStd.value, -1);
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setErr, Value(7));
    EXPECT_EQ(rs().setErr_times, Value(5));
    EXPECT_EQ(rs().setPrefSTD, Value(40));
}

TEST_F(DefaultsWindow, ANumberBeyondAllNumbersIsAFaultAndTheWindowStays) {
    open();
    type(form(), "txtU8_5", "1e999");
    click(form(), "cmdSaveAs");
    EXPECT_EQ(box_texts(), Names{"Run-time error: overflow, in Take_New_Values"});
    EXPECT_EQ(rs().SaveRequest, "");
    EXPECT_EQ(rs().UU8_5, Value(137.818));
    EXPECT_TRUE(form().shown);
}

TEST_F(DefaultsWindow, OnlyTheChosenKindOfResultIsOpen) {
    open();
    const auto open_ones = [&](DefaultsForm& f) {
        Names names;
        for (const Control* control : std::initializer_list<const Control*>{
                 &f.Frame9, &f.optTzero(0), &f.optTzero(1), &f.optTzero(2), &f.txtDelay, &f.lblDelay, &f.chkPbAver,
                 &f.Frame15, &f.optMean(0), &f.optMean(1)})
            if (control->enabled) names.push_back(control->address());
        return names;
    };
    const Names average{"Frame15", "optMean(0)", "optMean(1)"};
    const Names tzero{"Frame9", "optTzero(0)", "optTzero(1)", "optTzero(2)", "txtDelay", "lblDelay", "chkPbAver"};
    EXPECT_EQ(open_ones(form()), average);
    click(form(), "optAverage", 1);
    EXPECT_EQ(open_ones(form()), tzero);
    click(form(), "optAverage", 0);
    EXPECT_EQ(open_ones(form()), average);
    rs().setAver = 1;
    click(form(), "cmdCancel");
    open();
    EXPECT_EQ(open_ones(form()), tzero);
    program->shell().open(flex());
    EXPECT_EQ(open_ones(flex()), tzero);
    click(flex(), "optAverage", 0);
    EXPECT_EQ(open_ones(flex()), average);
}

TEST_F(DefaultsWindow, ASaveNamesTheSettingsByTheLastCharactersOfTheAnswerAsManyAsTheFolderAndTwo) {
    // "ab/name.def": the separator is the third character, so five are left. Without a folder two are.
    for (const auto& [answer, name] :
         std::vector<std::pair<std::string, std::string>>{{"plain.def", "ef"},
                                                          {"C:\\a\\b.def", "a\\b.def"},
                                                          {"C:\\ab.def", "b.def"},
                                                          {"/x\xC3\xA9/\xC3\xBC-\xC3\xBC.def", "-\xC3\xBC.def"},
                                                          {"/a/b/c/d/e/f/g.def", "b/c/d/e/f/g.def"},
                                                          {"/long/folder/x", "/long/folder/x"}}) {
        open();
        save_as(answer);
        EXPECT_EQ(rs().SettingsName, name) << answer;
        EXPECT_EQ(rs().SetFilePath, answer);
        EXPECT_EQ(rs().SettingsPath, join_path(rs().WorkPath, "KolvAge-default-b01.def"));
        EXPECT_FALSE(form().shown);
        std::filesystem::remove(answer);
    }
}

TEST_F(DefaultsWindow, TheStartWindowShowsTheNameOfTheSave) {
    open();
    save_as(folder.path("own.def"));
    EXPECT_EQ(forms().frm1_Settings.lblUPset.text, rs().SettingsName);
    EXPECT_NE(rs().SettingsName, "KolvAge-default-b01.def");
}

TEST_F(DefaultsWindow, ACancelledSaveGoesOnWithTheProposedNameAndItsQuestion) {
    const std::string before = folder.read("start-kit/KolvAge-default-b01.def");
    open();
    type(form(), "txtU8_5", "137.88");
    os.saves.emplace_back(std::nullopt);
    os.yes_or_no = {false};
    click(form(), "cmdSaveAs");
    EXPECT_EQ(box_texts(), Names{"Overwrite existing file?"});
    EXPECT_EQ(folder.read("start-kit/KolvAge-default-b01.def"), before);
    EXPECT_EQ(rs().SetFilePath, rs().SettingsPath);
    EXPECT_EQ(rs().UU8_5, Value(137.88));
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().SaveRequest, "");
}

TEST_F(DefaultsWindow, ASaveThatFailsSaysSoAndClosesTheWindow) {
    open();
    save_as(folder.path("no such folder/own.def"));
    EXPECT_EQ(box_texts(), Names{"Error occurred while trying to save file, please retry."});
    EXPECT_FALSE(form().shown);
    // The next Apply saves nothing.
    forget_boxes();
    open();
    click(form(), "cmdApply");
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(DefaultsWindow, MineralsKeepTheSpellingsOfTheListAndOtherShowsNothing) {
    program->start(1);
    rs().setMineral(7) = "apatite";
    open();
    EXPECT_EQ(form().comboMineral.items,
              (Names{"sphene", "rutil", "monacite", "zircon", "xenotime", "allanite", "perovskite", "other"}));
    EXPECT_EQ(form().txtMineral.text, "sphene");
    choose(form(), "comboMineral", "rutil");
    EXPECT_EQ(form().txtMineral.text, "rutile");
    choose(form(), "comboMineral", "other");
    EXPECT_EQ(form().txtMineral.text, "");
    type(form(), "txtMineral", "garnet");
    enter(form(), "txtMineral");
    EXPECT_EQ(rs().setMineral(7), Value("garnet"));
    choose(form(), "comboMineral", "zircon");
    choose(form(), "comboMineral", "other");
    EXPECT_EQ(form().txtMineral.text, "");
}

TEST_F(DefaultsWindow, AMineralIsStoredByEnterAndCancelDoesNotTakeItBack) {
    open();
    EXPECT_FALSE(form().Label7.visible);
    choose(form(), "comboMineral", "monacite");
    EXPECT_FALSE(form().Label7.visible);  // the program has written
    type(form(), "txtMineral", "cheralite");
    EXPECT_TRUE(form().Label7.visible);
    EXPECT_EQ(rs().setMineral(2), Value("monazite"));
    enter(form(), "txtMineral");
    EXPECT_FALSE(form().Label7.visible);
    EXPECT_EQ(rs().setMineral(2), Value("cheralite"));
    type(form(), "txtMineral", "not entered");
    click(form(), "cmdCancel");
    EXPECT_EQ(rs().setMineral(2), Value("cheralite"));
    open();
    EXPECT_FALSE(form().Label7.visible);
}

TEST_F(DefaultsWindow, TheSignShowsTheHiddenLabel) {
    open();
    EXPECT_FALSE(form().lblPicture1.visible);
    click(form(), "Picture1");
    EXPECT_TRUE(form().lblPicture1.visible);
}

TEST_F(DefaultsWindow, FlexEmptiesTheCalculationOfU235AndLeavesWhatItDoesNotShow) {
    open_flex();
    rs().set235_Calc = 1;
    rs().setHg_corr = 1;
    rs().setComm_Pb = 1;
    rs().setFormer_Sel = 1;
    rs().setPrefSTD = 4;
    click(flex(), "cmdApply");
    EXPECT_EQ(rs().set235_Calc, Value(""));
    EXPECT_EQ(rs().set235_Calc.number(), 0);
    EXPECT_EQ(rs().setHg_corr, Value(1));
    EXPECT_EQ(rs().setComm_Pb, Value(1));
    EXPECT_EQ(rs().setFormer_Sel, Value(1));
    EXPECT_EQ(rs().setPrefSTD, Value(4));
    for (const char* other : {"comboStd", "txtStd", "chkHgCorr1", "chkCommLead1", "chkFormerSel"})
        EXPECT_FALSE(flex().has(other)) << other;
}

TEST_F(DefaultsWindow, AnalytesThatAreMeasuredAreWhiteAndTheOthersGreyAndTakenAsNone) {
    program->start(3);
    rs().FlexIso(3) = "Zr90";  // not among the columns
    click(forms().frm1_Settings, "Command9");
    click(forms().frm2_UP, "cmdSett");
    Names items{""};
    for (int i = 1; i <= rs().nIso; ++i) items.push_back(rs().IsoName(i));
    EXPECT_EQ(flex().comboPref(1).items, items);
    EXPECT_EQ(flex().comboPref(1).text, "ThO248");
    EXPECT_EQ(flex().comboPref(1).back, rgb(255, 255, 255));
    EXPECT_EQ(flex().comboPref(3).text, "");
    EXPECT_EQ(flex().comboPref(3).back, rgb(128, 128, 128));
    EXPECT_EQ(flex().comboPref(15).back, rgb(128, 128, 128));
    const auto choose_at = [&](const char* list, int index, int item) {
        Event event = event_of(EventKind::choose, flex(), list, index);
        event.value = item;
        program->dispatch(event);
    };
    choose_at("comboPref", 15, 2);
    choose_at("comboPref", 2, 0);
    EXPECT_EQ(flex().comboPref(15).back, rgb(255, 255, 255));
    EXPECT_EQ(flex().comboPref(2).back, rgb(128, 128, 128));
    EXPECT_EQ(rs().FlexIso(2), Value("UO254"));
    click(flex(), "cmdApply");
    EXPECT_EQ(rs().FlexIso(1), Value("ThO248"));
    EXPECT_EQ(rs().FlexIso(2), Value(""));
    EXPECT_EQ(rs().FlexIso(3), Value(""));
    EXPECT_EQ(rs().FlexIso(15), Value(rs().IsoName(2)));
}

TEST_F(DefaultsWindow, AnEmptiedRatioPartnerIsForgottenAtOnce) {
    program->start(3);
    rs().ratioName(0) = "U238";
    rs().ratioName(1) = "Pt194";  // not among the columns
    rs().RatioCol(0) = 8;
    click(forms().frm1_Settings, "Command9");
    click(forms().frm2_UP, "cmdSett");
    EXPECT_EQ(flex().comboRatio(0).text, "U238");
    EXPECT_EQ(flex().comboRatio(0).back, rgb(255, 255, 255));
    EXPECT_EQ(flex().comboRatio(1).back, rgb(128, 128, 128));
    Event event = event_of(EventKind::choose, flex(), "comboRatio", 0);
    event.value = 0;
    program->dispatch(event);
    EXPECT_EQ(rs().RatioCol(0), 0);
    EXPECT_EQ(flex().comboRatio(0).back, rgb(128, 128, 128));
    // Also where the field was empty before.
    rs().RatioCol(1) = 5;
    event.index = 1;
    program->dispatch(event);
    EXPECT_EQ(rs().RatioCol(1), 0);
    click(flex(), "chkRatio3");
    click(flex(), "cmdApply");
    EXPECT_EQ(rs().ratioName(0), Value(""));
    EXPECT_EQ(rs().ratioName(1), Value("Pt194"));
    EXPECT_EQ(rs().setRatioShow(3), Value(0));
    EXPECT_EQ(rs().setRatioShow(4), Value(1));
}

}  // namespace
}  // namespace kolvar::test
