// The drift of a batch: what its window shows, and what accepting the interpolation writes.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

// Standard, two samples, standard. Factors of 206/238 0.8 and 1.4, of 207/206 1 and 1.2.
class DriftWindow : public ProgramOnKit {
protected:
    DriftWindow() {
        program->start(1);
        RunState& state = rs();
        state.setNumSTD = 1;
        state.Std_Name(1) = "Plesovice";
        state.Std_68(1) = 0.28;
        state.Std_76(1) = 0.06;
        state.SeqCount = 4;
        state.SeqStdCount = state.SeqStdDone = 2;
        state.SeqPhase = 2;
        state.SeqPos = 4;
        state.MasterName = "0-day.msf";
        state.MasterPath = folder.path("0-day.msf");
        for (int i = 1; i <= 4; ++i) state.MasterRecs(i, 0) = "00" + std::to_string(i) + ".csv";
        standard(1, 0.35, 1.4, 0.06);
        standard(4, 0.2, 1.1, 0.05);
        forget_boxes();
        form().loaded = false;
    }
    void standard(int line, double r68, double r75, double r76) {
        rs().MasterRecs(line, 2) = "Std";
        rs().MasterRecs(line, 3) = "Plesovice";
        rs().MasterRecs(line, 11) = r68;
        rs().MasterRecs(line, 12) = r75;
        rs().MasterRecs(line, 13) = r76;
    }
    FrmDrift& form() { return forms().frm_drift; }
    void open() { program->shell().open(form()); }
    std::string master_file() const { return folder.read("0-day.msf"); }
};

TEST_F(DriftWindow, TitleNamesTheMasterFileAndNothingCanBeAcceptedBeforeAPlot) {
    open();
    EXPECT_EQ(form().title, "Drift plot of 0-day.msf");
    EXPECT_TRUE(form().cmdAccept.visible);
    EXPECT_FALSE(form().cmdAccept.enabled);
    EXPECT_EQ(form().lblCF.text, "Correction factor (CF)");
    EXPECT_EQ(form().lblExpected.text, "[expected / measured]");
    EXPECT_EQ(form().lblResidual.text, "Average residual error of standards:");
    EXPECT_EQ(form().Command3.text, "Reject a standard");
    EXPECT_EQ(form().Command8.text, "Restore all rejected");
    EXPECT_EQ(form().cmdAccept.text, "Accept interpolation and write the values into the master file");
    click(form(), "Command1");
    EXPECT_TRUE(form().cmdAccept.enabled);
    EXPECT_EQ(form().lblLR68b.text, "0.2000");
    EXPECT_EQ(form().lblLR75r.text, "-1.0000");
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
}

TEST_F(DriftWindow, AcceptingWritesTheFactorsAndGoesOnWithTheSamples) {
    open();
    click(form(), "Command1");
    rs().ListMode = 2;
    click(form(), "cmdAccept");
    EXPECT_FALSE(form().shown);
    EXPECT_FALSE(form().cmdAccept.enabled);
    EXPECT_EQ(rs().SeqPhase, 3);
    EXPECT_EQ(rs().SeqSamDone, 2);  // it begins with the standards
    EXPECT_EQ(rs().ListMode, 1);
    EXPECT_EQ(rs().MasterRecs(2, 5), Value(1));
    EXPECT_EQ(rs().MasterRecs(3, 7), Value(1.13333));
    EXPECT_TRUE(rs().MasterRecs(3, 6).is_unset());
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
    const std::string file = master_file();
    EXPECT_EQ(file.substr(0, 21), "\"0004/0002/0002/0002\"");
    EXPECT_NE(file.find("\r\n\"001.csv\",,\"Std\",\"Plesovice\",,0.8,,1,,,,0.35,1.4,0.06,"), std::string::npos) << file;
    EXPECT_NE(file.find("\r\n\"002.csv\",,,,,1,,1.06667,,"), std::string::npos) << file;
    EXPECT_NE(file.find("\r\n\"003.csv\",,,,,1.2,,1.13333,,"), std::string::npos) << file;
    EXPECT_NE(file.find("\r\n\"004.csv\",,\"Std\",\"Plesovice\",,1.4,,1.2,,"), std::string::npos) << file;
}

TEST_F(DriftWindow, AMasterFileThatCannotBeWrittenIsToldAndListAndFileStayUntilTheRetry) {
    folder.write("0-day.msf", "as it was");
    open();
    click(form(), "Command1");
    os.disk_room = 0;
    click(form(), "cmdAccept");
    EXPECT_EQ(box_texts(),
              std::vector<std::string>{"Error occurred while trying to save the master file, please retry."});
    EXPECT_EQ(master_file(), "as it was");
    EXPECT_EQ(rs().SeqPhase, 2);
    EXPECT_EQ(rs().SeqSamDone, 0);
    for (const int factor : {5, 7}) EXPECT_TRUE(rs().MasterRecs(2, factor).is_unset());
    EXPECT_TRUE(form().shown && form().cmdAccept.enabled);
    os.disk_room = 1000000;
    click(form(), "cmdAccept");
    EXPECT_EQ(master_file().substr(0, 21), "\"0004/0002/0002/0002\"");
    EXPECT_EQ(rs().SeqPhase, 3);
    EXPECT_FALSE(form().shown);
}

TEST_F(DriftWindow, AfterTheFactorsAreWrittenItPlotsAndCannotBeAccepted) {
    rs().SeqPhase = 3;
    open();
    EXPECT_FALSE(form().cmdAccept.visible);
    click(form(), "Command1");
    EXPECT_EQ(form().lblLR68b.text, "0.2000");
    EXPECT_FALSE(form().cmdAccept.visible || form().cmdAccept.enabled);
}

TEST_F(DriftWindow, AFaultOfThePlotLeavesNothingToAcceptAndTheMasterFileAsItWas) {
    rs().MasterRecs(4, 11) = "";
    open();
    click(form(), "Command1");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].kind, "fault");
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    EXPECT_EQ(os.boxes[0].text, "Run-time error: division by zero, in frm_drift.Command1");
    EXPECT_FALSE(form().cmdAccept.enabled);
    EXPECT_EQ(rs().SeqPhase, 2);
    EXPECT_TRUE(rs().MasterRecs(1, 5).is_unset());
    EXPECT_EQ(master_file(), "");
    // Once the standard is measured, the plot can be made.
    rs().MasterRecs(4, 11) = 0.2;
    click(form(), "Command1");
    EXPECT_TRUE(form().cmdAccept.enabled);
}

TEST_F(DriftWindow, AListOfTwoLinesGetsFactorsOfZeroAlsoAfterAnotherBatch) {
    open();
    click(form(), "Command1");
    EXPECT_GT(rs().DriftA68, 0.5);
    click(form(), "cmdClose");
    rs().SeqCount = 2;
    standard(2, 0.2, 1.1, 0.05);
    open();
    EXPECT_EQ(form().lblLR68b.text, "");
    click(form(), "Command1");
    click(form(), "cmdAccept");
    EXPECT_EQ(rs().MasterRecs(1, 5), Value(0));
    EXPECT_EQ(rs().MasterRecs(2, 7), Value(0));
    EXPECT_EQ(rs().SeqPhase, 3);
}

TEST_F(DriftWindow, ThePlotFollowsTheSizeOfTheWindowAndNothingElseChanges) {
    open();
    resize(form(), 15000, 9000);
    EXPECT_EQ(form().pictDrift.canvas.draws(), 0);  // nothing was plotted yet
    const int width = form().pictDrift.width, height = form().pictDrift.height;
    click(form(), "Command1");
    const double step = rs().DriftStep;
    EXPECT_NEAR(step, 0.95 * width / 3, 1e-9);
    rs().MasterRecs(4, 11) = 0.3;  // not asked for by a change of the size
    form().cmdAccept.enabled = false;
    resize(form(), 16500, 9600);
    EXPECT_EQ(form().pictDrift.width, width + 1500);
    EXPECT_EQ(form().pictDrift.height, height + 600);
    EXPECT_EQ(form().pictDrift.canvas.draws(), 2);
    EXPECT_NEAR(rs().DriftStep, step + 475, 1e-9);
    EXPECT_NEAR(rs().DriftCF68(4), 1.4, 1e-12);
    EXPECT_FALSE(form().cmdAccept.enabled);
}

TEST_F(DriftWindow, TicksAndNumbersStandAroundThePlotWithinTheWindow) {
    open();
    for (const auto& [width, height] : {std::pair{13800, 7800}, std::pair{10800, 6450}, std::pair{24000, 15000}}) {
        resize(form(), width, height);
        click(form(), "Command1");
        const FrmDrift& f = form();
        EXPECT_EQ(f.pictTicksX.left, f.pictDrift.left);
        EXPECT_EQ(f.pictTicksX.width, f.pictDrift.width);
        EXPECT_EQ(f.pictTicksX.top, f.pictDrift.top + f.pictDrift.height);
        EXPECT_EQ(f.pictTicksY.left + f.pictTicksY.width, f.pictDrift.left);
        EXPECT_EQ(f.pictTicksY.height, f.pictDrift.height);
        EXPECT_GE(f.lbl1_00.left, 0);
        EXPECT_LE(f.pictDrift.left + f.pictDrift.width, f.pictSide.left);
        EXPECT_LE(f.lblPosition.top + f.lblPosition.height, f.pictButtons.top);
        EXPECT_LE(f.pictButtons.top + f.pictButtons.height, height);
    }
}

TEST_F(DriftWindow, APlotOfItsOwnSizeIsDrawnInThatSize) {
    open();
    click(form(), "Command1");
    Event event = event_of(EventKind::resize, form(), "pictDrift");
    event.x = 4000;
    event.y = 2000;
    program->dispatch(event);
    EXPECT_EQ(form().pictDrift.width, 4000);
    EXPECT_EQ(form().pictTicksX.width, 4000);
    EXPECT_NEAR(rs().DriftStep, 0.95 * 4000 / 3, 1e-9);
}

TEST_F(DriftWindow, ChoicesWithoutEffectChangeNeitherPlotNorLine) {
    open();
    click(form(), "Command1");
    const auto commands = form().pictDrift.canvas.commands().size();
    EXPECT_TRUE(form().optLinear.on());
    for (const char* control : {"Command3", "Command8", "optLog", "chk68", "chk75", "chk82", "chk76", "chkUTh"})
        click(form(), control);
    EXPECT_EQ(form().pictDrift.canvas.draws(), 1);
    click(form(), "Command1");
    EXPECT_EQ(form().pictDrift.canvas.commands().size(), commands);
    EXPECT_EQ(form().lblLR68b.text, "0.2000");
    for (int i = 1; i <= 4; ++i) EXPECT_TRUE(rs().DriftRej(i).is_unset());
}

TEST_F(DriftWindow, ItOpensEmptyForTheNextBatch) {
    open();
    click(form(), "Command1");
    click(form(), "cmdClose");
    EXPECT_FALSE(form().shown);
    rs().MasterName = "0-next.msf";
    open();
    EXPECT_EQ(form().title, "Drift plot of 0-next.msf");
    EXPECT_EQ(form().pictDrift.canvas.commands().size(), 1U);
    EXPECT_FALSE(form().cmdAccept.enabled || form().lbl1_00.visible);
    EXPECT_EQ(form().lblLR76r.text, "");
}

}  // namespace
}  // namespace kolvar::test
