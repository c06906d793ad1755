// The one gate of all events: what it refuses, what becomes of a fault, and when a window becomes active.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Dispatcher = ProgramOnKit;
using Names = std::vector<std::string>;

// A measured blank with one line too few: its second line of data has none to throw away behind it.
const char* const odd_blank = "title\r\nt,Si29\r\n1,5\r\n2,6\r\n3,7\r\n";

TEST_F(Dispatcher, AFaultShowsOneBoxAndTheProgramGoesOnInItsWindow) {
    program->start(0);
    write_kit("odd.xl", odd_blank);
    os.opens.push_back(kit("odd.xl"));
    click(forms().frm1_Settings, "cmdLoadBLK");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].kind, "fault");
    EXPECT_EQ(os.boxes[0].text.substr(0, 16), "Run-time error: ");
    EXPECT_NE(os.boxes[0].text.find(", in LoadBlankTable\n" + kit("odd.xl")), std::string::npos) << os.boxes[0].text;
    EXPECT_EQ(rs().nBLK, 0);  // no half-read table stays in use
    EXPECT_FALSE(program->ended());
    EXPECT_FALSE(program->busy());
    EXPECT_STREQ(rs().procedure, "");
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    click(forms().frm1_Settings, "cmdOK");
    EXPECT_TRUE(forms().frm1_Settings.cmdNext.enabled);
}

TEST_F(Dispatcher, AFaultThatIsAnsweredWithEndEndsTheProcessWithStatusOne) {
    program->start(0);
    write_kit("odd.xl", odd_blank);
    os.opens.push_back(kit("odd.xl"));
    os.fault_answers.push_back(Platform::FaultAnswer::end);
    click(forms().frm1_Settings, "cmdLoadBLK");
    EXPECT_TRUE(program->ended());
    EXPECT_EQ(program->status(), 1);
    click(forms().frm1_Settings, "cmdOK");
    EXPECT_FALSE(forms().frm1_Settings.cmdNext.enabled);
}

TEST_F(Dispatcher, AWindowWhoseOpeningFailedIsNotShownAndOpensAnewTheNextTime) {
    program->start(0);
    int openings = 0;
    program->shell().set_hooks(forms().frm_ChoseDir, {[&] {
                                                          if (++openings == 1) fail(FaultKind::index);
                                                      },
                                                      {}});
    click(forms().frm1_Settings, "mnuSettings", 3);
    EXPECT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    click(forms().frm1_Settings, "mnuSettings", 3);
    EXPECT_EQ(openings, 2);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_ChoseDir"}));
}

TEST_F(Dispatcher, AFaultThatLeavesNoWindowOpensTheFirstOneWithItsPanel) {
    program->start(0);
    program->on(forms().frm1_Settings, "cmdModiSet", EventKind::click, [this](const Event&) {
        program->shell().close(forms().frm1_Settings);
        fail(FaultKind::overflow);
    });
    forms().frm1_Settings.pict_IS.visible = false;
    click(forms().frm1_Settings, "cmdModiSet");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_NE(os.boxes[0].text.find(", in frm1_Settings.cmdModiSet"), std::string::npos) << os.boxes[0].text;
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    EXPECT_TRUE(forms().frm1_Settings.pict_IS.visible);  // it became active
}

TEST_F(Dispatcher, AFaultInAnActivationIsToldOnce) {
    program->start(0);
    program->shell().set_hooks(forms().frm_ChoseDir, {{}, [] { fail(FaultKind::type); }});
    click(forms().frm1_Settings, "mnuSettings", 3);
    EXPECT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_ChoseDir"}));
    EXPECT_FALSE(program->busy());
}

TEST_F(Dispatcher, RunningOperationIsIdleAgainAfterAFault) {
    program->start(0);
    rs().ZizzRunning = rs().AcceptBest = true;
    program->on(forms().frm1_Settings, "cmdModiSet", EventKind::click, [](const Event&) { fail(FaultKind::domain); });
    click(forms().frm1_Settings, "cmdModiSet");
    EXPECT_FALSE(rs().ZizzRunning || rs().AcceptBest);
}

TEST_F(Dispatcher, EventsForWindowsThatAreNotShownAreRefused) {
    program->start(0);
    const std::size_t lines = program->journal().lines().size();
    click(forms().frm2_Time, "cmdExit");
    close(forms().frm4_Output);
    click(forms().frm3_Matrix, "cmdNext");
    EXPECT_FALSE(program->ended());
    EXPECT_EQ(program->journal().lines().size(), lines);
    Event nowhere = event_of(EventKind::click, forms().frm1_Settings, "cmdOK");
    nowhere.window = "frm_Nowhere";
    program->dispatch(nowhere);
    EXPECT_FALSE(forms().frm1_Settings.cmdNext.enabled);
}

TEST_F(Dispatcher, EventsThatArriveWhileOneRunsAreRefused) {
    program->start(0);
    int during = 0;
    program->on_change = [&] {
        if (!program->busy()) return;
        ++during;
        click(forms().frm1_Settings, "cmdClose");  // would end the program
    };
    rs().DataFileName = "";
    click(forms().frm1_Settings, "cmdOK");  // a box: the surface is brought up to date before it
    EXPECT_GE(during, 1);
    EXPECT_FALSE(program->ended());
    EXPECT_EQ(box_texts(), Names{"Choose a Data File."});
}

TEST_F(Dispatcher, SurfaceIsUpToDateBeforeABoxComesUp) {
    program->start(0);
    std::string seen;
    program->on_change = [&] {
        if (program->busy() && os.boxes.empty()) seen = forms().frm1_Settings.lblCSV.text;
    };
    write_kit("empty.csv", "");
    os.opens.push_back(kit("empty.csv"));
    click(forms().frm1_Settings, "cmdLoadCSV");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(seen, "  example-1.csv  ");
    EXPECT_EQ(forms().frm1_Settings.lblCSV.text, "  empty.csv  ");
}

TEST_F(Dispatcher, CloseBoxOfAStepIsItsExitAndOfAnyOtherWindowItsWayBack) {
    go_to_marked_selection();
    rs().setTestBlank = 0;
    click(forms().frm2_Time, "cmdShowConc");
    close(forms().frm_AverConc);
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    click(forms().frm2_Time, "cmdNext");
    click(forms().frm3_Matrix, "cmdNext");
    click(forms().frm4_Output, "cmdPreview");
    close(forms().frm5_Preview);
    EXPECT_EQ(shown_windows(), Names{"frm4_Output"});
    EXPECT_FALSE(program->ended());
    close(forms().frm4_Output);
    EXPECT_TRUE(program->ended());
    EXPECT_EQ(program->status(), 0);
}

TEST_F(Dispatcher, OpeningAWindowThatIsOpenBringsItToTheFront) {
    program->start(0);
    click(forms().frm1_Settings, "mnuSettings", 3);
    choose(forms().frm_ChoseDir, "Dir1", folder.path());
    click(forms().frm1_Settings, "cmdSeq");
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_ChoseDir", "frm_Batch_IS"}));
    click(forms().frm1_Settings, "mnuSettings", 3);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frm_Batch_IS", "frm_ChoseDir"}));
    EXPECT_EQ(forms().frm_ChoseDir.lblPath.text, folder.path());  // the same window, as the user left it
}

TEST_F(Dispatcher, JournalHoldsEventsWithTheirAnswersBeforeAndTheirBoxesBehindThem) {
    program->start(0);
    os.opens.push_back("");
    click(forms().frm1_Settings, "cmdLoadCSV");
    type(forms().frm1_Settings, "txtDwell", "5 \"ms\"");
    rs().DataFileName = "";
    click(forms().frm1_Settings, "cmdOK");
    click(forms().frm1_Settings, "mnuSettings", 3);
    choose(forms().frm_ChoseDir, "Dir1", "C:\\kit");
    EXPECT_EQ(program->journal().lines(),
              (Names{"start", "answer cancel", "click frm1_Settings.cmdLoadCSV",
                     "type frm1_Settings.txtDwell \"5 \\\"ms\\\"\"", "click frm1_Settings.cmdOK",
                     "expect message \"Choose a Data File.\" title \"\"", "click frm1_Settings.mnuSettings(3)",
                     "choose frm_ChoseDir.Dir1 \"C:\\\\kit\""}));
}

TEST_F(Dispatcher, JournalHoldsWhatTheProgramWasToldByTheMachine) {
    struct CommaMachine : ScriptedPlatform {
        std::string decimal_sign() override { return ","; }
    } machine;
    machine.clip = "a\tb\n";
    Program there(machine, folder.path());
    there.on(there.forms().frm1_Settings, "cmdModiSet", EventKind::click, [&](const Event&) {
        EXPECT_EQ(there.context().os.clipboard(), "a\tb\n");
        EXPECT_EQ(there.context().os.decimal_sign(), ",");
        EXPECT_EQ(there.context().os.now().year, 2009);
        EXPECT_TRUE(there.context().os.ask("Go on?"));
    });
    machine.yes_or_no.push_back(true);
    there.start(0);
    there.dispatch(event_of(EventKind::click, there.forms().frm1_Settings, "cmdModiSet"));
    EXPECT_EQ(there.journal().lines(),
              (Names{"start", "clipboard \"a\\tb\\n\"", "decimal \",\"", "today 2009-01-07 14:03:22", "answer yes",
                     "click frm1_Settings.cmdModiSet", "expect message \"Go on?\" title \"\""}));
}

}  // namespace
}  // namespace kolvar::test
