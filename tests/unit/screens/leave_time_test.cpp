// Leaving the time selection: what must be marked, the question about a noisy blank, what is kept for the next file.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

constexpr int left = 1;
constexpr int right = 2;
using Names = std::vector<std::string>;

const std::string noisy_head = "The blank is very noisy!\n\nThe selected blank range contains ";
const std::string noisy_tail =
    " data, which differ from the means of isotopes by more than 3 S.D. These spikes in the blank can seriously bias "
    "the "
    "trace element  concentrations (even resulting in negative concentrations!). It is worth to check them by "
    "statistical "
    "tests.\n\nFor this you have to start the procedure again; press [Back], choose option 'Creating a Blank File', "
    "perform "
    "the outlier test on the selected blank range and the rejections if they are necessary, and save the average "
    "signals of "
    "the blank interval into a 'Blank File'.\nThen choose the option 'Blank from the Blank File', load the formerly "
    "saved "
    "BLK file and the datafile and perform the time range selection and further steps.\n\n\n                      "
    "Perform "
    "test and save selected blank interval into a file?";

class LeaveTime : public ProgramOnKit {
protected:
    Frm2Time& form() { return forms().frm2_Time; }
    // Three isotopes: a standard of 1000, one of 2000, one of 3000, 4000, 5000 ... In the blank (slices 1 to 12) of the
    // last two stand eleven times 10 and once `spike`.
    void write_run(double spike) {
        std::string table = "t,Si29,Ca43,U238\r\n";
        for (int t = 1; t <= 20; ++t) {
            const std::string blank = std::to_string(t == 7 ? spike : 10.0);
            const std::string row =
                t <= 12 ? "10," + blank + "," + blank : "1010,2010," + std::to_string(10 + 1000 * (t - 10));
            table += std::to_string(t) + "," + row + "\r\n";
        }
        write_kit("example-1.csv", table);
    }
    void go() {
        program->start(0);
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        ASSERT_EQ(shown_windows(), Names{"frm2_Time"});
        forget_boxes();
    }
    void go_creating(const std::string& option) {
        program->start(0);
        click(forms().frm1_Settings, option);
        click(forms().frm1_Settings, "cmdOK");
        ASSERT_EQ(shown_windows(), Names{"frm2_Time"});
        forget_boxes();
    }
    Names leave() {
        forget_boxes();
        form().focus_wanted = nullptr;
        click(form(), "cmdNext");
        return box_texts();
    }
};

TEST_F(LeaveTime, FourGuardsComeInTheirOrderAndPutTheFocusOnThePlot) {
    write_run(10);
    go();
    const auto refused = [&](const char* text) {
        EXPECT_EQ(leave(), Names{text});
        EXPECT_EQ(os.boxes[0].title, "");
        EXPECT_EQ(form().focus_wanted, &form().pict1);
        EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    };
    refused("Select time interval by left and right mouse clicks before leaving this step!");
    mark(left, 0, 15);
    refused("Select time interval by left and right mouse clicks before leaving this step!");
    mark(right, 0, 15);
    refused("Select blank time interval by SHIFT + left and right mouse clicks before leaving this step!");
    mark(left, 1, 5);
    refused("Select blank time interval by SHIFT + left and right mouse clicks before leaving this step!");
    mark(right, 1, 5);
    refused(
        "The selected time interval is too short. Select longer interval or confirm the former selection by left and "
        "right mouse clicks, please.");
    mark(right, 0, 16);
    refused(
        "You have to mark an interval for the blank. Press SHIFT + left and right mouse buttons for the lower and "
        "upper "
        "limits of the blank range.");
    mark(right, 1, 6);  // two slices are enough for either
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().SelN, Limit(2));
    EXPECT_EQ(rs().SelNGood, 2);
}

TEST_F(LeaveTime, AStandardMeasurementWithoutABlankIsAskedForAnInterval) {
    write_run(10);
    go_creating("optCreatSTM");
    mark(left, 0, 14);
    mark(right, 0, 18);
    EXPECT_EQ(leave(),
              Names{"You have to mark an interval for the blank. Press SHIFT + left and right mouse buttons for the "
                    "lower and upper limits of the blank range."});
}

TEST_F(LeaveTime, ABlankFileNeedsNoBlankInterval) {
    write_run(1000);
    go_creating("optCreatBLK");
    mark(left, 0, 2);
    mark(right, 0, 12);
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().FormerLow, Limit(2));
    EXPECT_EQ(rs().FormerBlkLow, Limit());
}

TEST_F(LeaveTime, TheSelectedSlicesAreCountedAnewInBothCells) {
    write_run(10);
    go();
    mark(left, 1, 2);
    mark(right, 1, 12);
    mark(left, 0, 13);
    mark(right, 0, 16);
    rs().SelN = 99;
    rs().SelNGood = 99;
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(rs().SelN, Limit(4));
    EXPECT_EQ(rs().SelNGood, 4);
}

TEST_F(LeaveTime, LimitsOfABlankThatIsNotUsedAreNotKeptForTheNextFile) {
    set_key("setBLK_IS", "0");
    write_kit("2004-12-19-a.blk", "\"Si29\",0,1\r\n\"Ca43\",0,1\r\n\"U238\",0,1\r\n");
    write_run(10);
    go();
    mark(left, 0, 13);
    mark(right, 0, 16);
    rs().BlkLow = 3;
    rs().BlkUpp = 9;
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(rs().FormerLow, Limit(13));
    EXPECT_EQ(rs().FormerBlkLow, Limit());
    EXPECT_EQ(rs().FormerBlkUpp, Limit());
}

// Mean 220 / 12 = 18.33; the spike lies 91.67 above it. s.d. = root((11 x 8.33^2 + 91.67^2) / 11) = root(833.33)
// = 28.87, three times that 86.60: a spike, in two isotopes.
TEST_F(LeaveTime, NoisyBlankIsAskedAboutWithTheCountOfAllIsotopesTogether) {
    write_run(110);
    go();
    mark(left, 1, 1);
    mark(right, 1, 12);
    mark(left, 0, 13);
    mark(right, 0, 15);
    os.yes_or_no.push_back(false);
    EXPECT_EQ(leave(), Names{noisy_head + "2" + noisy_tail});
    EXPECT_EQ(os.boxes[0].kind, "question");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().FormerLow, Limit(13));
    EXPECT_EQ(rs().FormerUpp, Limit(15));
    EXPECT_EQ(rs().FormerLowX, rs().SelLowX);
    EXPECT_EQ(rs().FormerUppX, rs().SelUppX);
    EXPECT_EQ(rs().FormerBlkLow, Limit(1));
    EXPECT_EQ(rs().FormerBlkUpp, Limit(12));
}

TEST_F(LeaveTime, NoisyBlankPassesInSilenceWhenItsTestIsOff) {
    set_key("setTestBlank", "0");
    write_run(110);
    go();
    mark(left, 1, 1);
    mark(right, 1, 12);
    mark(left, 0, 13);
    mark(right, 0, 15);
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
}

TEST_F(LeaveTime, AnsweredYesTheBlankBecomesTheSelectionOfABlankFileRun) {
    write_run(110);
    go();
    mark(left, 1, 1);
    mark(right, 1, 12);
    mark(left, 0, 13);
    mark(right, 0, 15);
    rs().KeepData = true;
    rs().SelCount = 3;
    os.yes_or_no.push_back(true);
    const double upper = rs().BlkUppX;
    leave();
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    EXPECT_FALSE(rs().KeepData);
    EXPECT_EQ(rs().SelCount, 0);
    EXPECT_EQ(rs().SelLow, Limit(1));
    EXPECT_EQ(rs().SelUpp, Limit(12));
    EXPECT_EQ(rs().BlkLow, Limit(0));  // 0, not unmarked
    EXPECT_EQ(rs().BlkUpp, Limit(0));
    EXPECT_EQ(rs().BlkLowX, 0);
    EXPECT_EQ(rs().BlkUppX, upper);  // keeps its place
    EXPECT_EQ(rs().BlkSpikes, 0);
    EXPECT_EQ(rs().FormerLow, Limit());
    EXPECT_EQ(form().pict1.canvas.commands().size(), 1U);  // both plots are empty
    EXPECT_EQ(form().pict2.canvas.commands().size(), 1U);
    Frm1Settings& settings = forms().frm1_Settings;
    EXPECT_TRUE(settings.optCreatBLK.on());
    EXPECT_FALSE(settings.Frame1.enabled || settings.cmdLoadSTC.enabled || settings.cmdNext.enabled);
    EXPECT_TRUE(settings.cmdLoadCSV.enabled);
    // From here the blank file is three clicks away.
    click(settings, "cmdOK");
    ASSERT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(form().lblLow.text, "1");
    EXPECT_EQ(form().lblUpp.text, "12");
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(forms().frm3_Matrix.cmdNext.text, "Save BLK file");
    os.saves.push_back(folder.path("noisy.blk"));
    click(forms().frm3_Matrix, "cmdNext");
    EXPECT_EQ(os.dialogs.back().name, "example-1_t1-t12.blk");
    // The first slice of a table is never corrected and holds nothing yet: 11 x 10 / 12.
    EXPECT_EQ(folder.read("noisy.blk").substr(0, 13), "\"Si29\",9.167,");
}

// Net signals are the raw ones: all blanks of the file are 0. Ratios of U238 to the standard in slices 13 to 15: 3010,
// 4010 and 5010 over 1010; sum of squares about their mean = 2 x (1000 / 1010)^2 = 1.9605920988138417.
TEST_F(LeaveTime, WithABlankFileTheQuestionComesOnTheWayBackFromTheMatrixWithWhatTheCellHolds) {
    set_key("setBLK_IS", "0");
    write_kit("2004-12-19-a.blk", "\"Si29\",0,1\r\n\"Ca43\",0,1\r\n\"U238\",0,1\r\n");
    write_run(110);
    go();
    mark(left, 0, 13);
    mark(right, 0, 15);
    EXPECT_EQ(leave(), Names{});  // nothing was calculated yet: silent, however noisy
    ASSERT_EQ(shown_windows(), Names{"frm3_Matrix"});
    click(forms().frm3_Matrix, "cmdBack");
    ASSERT_EQ(shown_windows(), Names{"frm2_Time"});
    os.yes_or_no.push_back(false);
    const Names asked = leave();
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].substr(0, noisy_head.size() + 10), noisy_head + "1.96059209");
    EXPECT_EQ(asked[0].substr(asked[0].size() - noisy_tail.size()), noisy_tail);
    EXPECT_EQ(shown_windows(), Names{"frm3_Matrix"});
    EXPECT_EQ(rs().FormerBlkLow, Limit());  // no blank of the data to keep
}

TEST_F(LeaveTime, SelectionThatBeginsAtTheFirstSliceReadsItUncorrected) {
    write_run(10);
    go();
    mark(left, 1, 2);
    mark(right, 1, 12);
    rs().Sig2(1, 1) = 77;
    mark(left, 0, 1);
    mark(right, 0, 3);
    rs().Sig2(1, 1) = 77;
    EXPECT_EQ(leave(), Names{});
    EXPECT_EQ(forms().frm3_Matrix.FlexGrid1.cell(1, 1).text, "77");
    EXPECT_EQ(forms().frm3_Matrix.FlexGrid1.cell(1, 2).text, "0");  // 10 less the blank of 10
}

TEST_F(LeaveTime, ADoubleClickBesideThePlotsShowsAveragesOnceAllLimitsStand) {
    write_run(10);
    go();
    const auto double_click = [&](const std::string& place) {
        program->dispatch(event_of(EventKind::dblclick, form(), place));
        return shown_windows();
    };
    const Names time_alone{"frm2_Time"};
    rs().nData(1) = rs().nData(3) = 77;
    EXPECT_EQ(double_click("pictRightSide"), time_alone);  // nothing is marked
    EXPECT_EQ(rs().nData(1), 77);
    mark(left, 0, 13);
    EXPECT_EQ(double_click(""), time_alone);
    EXPECT_EQ(rs().nData(1), 77);
    mark(right, 0, 16);
    // Without a blank the data are counted, and no more.
    rs().ConcMean(3) = 5.0;
    forget_boxes();
    EXPECT_EQ(double_click("pictRightSide"), time_alone);
    EXPECT_EQ(rs().nData(1), 4);
    EXPECT_EQ(rs().nData(3), 4);
    EXPECT_EQ(rs().ConcMean(3), Cell(5.0));
    EXPECT_EQ(box_texts(), Names{});
    mark(left, 1, 2);
    mark(right, 1, 12);
    for (const char* place : {"", "pictRightSide"}) {
        EXPECT_EQ(double_click(place), (Names{"frm2_Time", "frm_AverConc"})) << place;
        EXPECT_EQ(rs().ConcMean(3), Cell(Mark::empty)) << place;  // the preview has used them up
        program->dispatch(event_of(EventKind::close, forms().frm_AverConc, ""));
    }
}

TEST_F(LeaveTime, FormerSelectionIsShownBelowThePlotOfTheNextFile) {
    write_run(10);
    go();
    mark(left, 1, 1);
    mark(right, 1, 12);
    mark(left, 0, 13);
    mark(right, 0, 15);
    EXPECT_FALSE(form().lblFormer1.visible);
    leave();
    click(forms().frm3_Matrix, "cmdBack");
    EXPECT_TRUE(form().lblFormer1.visible && form().lblFormer2.visible && form().pictFormer.visible);
    EXPECT_EQ(form().lblFormer2.text, "13 - 15");
    EXPECT_EQ(form().lblFormerBL2.text, "1 - 12");
}

}  // namespace
}  // namespace kolvar::test
