// The road of a measurement from the start to the result table, by events alone.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Road = ProgramOnKit;

TEST_F(Road, StartOnAFreshKitShowsNoBoxAndTheFirstWindow) {
    program->start(0);
    EXPECT_TRUE(os.boxes.empty()) << os.boxes.front().text;
    EXPECT_TRUE(forms().frm1_Settings.shown);
    EXPECT_EQ(rs().nIso, 25);
    EXPECT_EQ(rs().nSlices, 150);
    EXPECT_EQ(forms().frm1_Settings.txtDwell.text, "20");
    EXPECT_EQ(forms().frm1_Settings.comboIso.text, "Si29");
    EXPECT_EQ(forms().frm1_Settings.title, "KOLVAR  -  Step 1: File selection, internal standard");
}

TEST_F(Road, ExampleGivesTheConcentrationsThatItsDocumentStates) {
    go_to_marked_selection();
    ASSERT_TRUE(forms().frm2_Time.shown);
    EXPECT_EQ(rs().SelLow, Limit(60));
    EXPECT_EQ(rs().SelUpp, Limit(120));
    EXPECT_EQ(rs().BlkLow, Limit(5));
    EXPECT_EQ(rs().BlkUpp, Limit(45));
    os.yes_or_no.push_back(false);
    click(forms().frm2_Time, "cmdNext");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text.substr(0, 24), "The blank is very noisy!");
    EXPECT_NE(os.boxes[0].text.find("contains 10 data"), std::string::npos);
    ASSERT_TRUE(forms().frm3_Matrix.shown);
    click(forms().frm3_Matrix, "cmdNext");
    ASSERT_TRUE(forms().frm4_Output.shown);
    // Computed apart from this program, by the generator of the example.
    const std::pair<const char*, double> expected[] = {{"Li7", 6.21539638},   {"Ca43", 77639.4921},
                                                       {"Sr88", 320.030738},  {"La139", 14.883426},
                                                       {"Pb208", 2.58244716}, {"U238", 0.467763644}};
    for (const auto& [name, ppm] : expected)
        for (int i = 1; i <= rs().nIso; ++i)
            if (rs().IsoName(i) == name) {
                EXPECT_NEAR(rs().ConcMean(i).number(), ppm, ppm * 1e-8) << name;
            }

    os.saves.push_back(folder.path("result.txt"));
    click(forms().frm4_Output, "cmdSave");
    EXPECT_EQ(os.boxes.size(), 1U);
    const std::string table = folder.read("result.txt");
    EXPECT_EQ(table.substr(0, 20), "\"* * *  KOLVAR  -  E");
    EXPECT_EQ(table.substr(table.size() - 3), "\"\r\n");
}

TEST_F(Road, GlassOfTheKitGivesItsStandardMeasurementFileByteForByte) {
    program->start(0);
    os.opens.push_back(folder.path("start-kit/nist-610-1.csv"));
    click(forms().frm1_Settings, "cmdLoadCSV");
    click(forms().frm1_Settings, "optCreatSTM");
    click(forms().frm1_Settings, "cmdOK");
    ASSERT_TRUE(forms().frm2_Time.shown);
    mark(1, 1, 5);
    mark(2, 1, 45);
    mark(1, 0, 60);
    mark(2, 0, 120);
    click(forms().frm2_Time, "cmdNext");
    ASSERT_TRUE(forms().frm3_Matrix.shown);
    EXPECT_EQ(forms().frm3_Matrix.cmdNext.text, "Save STM file");
    os.saves.push_back(folder.path("made.stm"));
    click(forms().frm3_Matrix, "cmdNext");
    EXPECT_EQ(os.dialogs.back().name, "nist-610-1_t60-t120.stm");
    EXPECT_EQ(folder.read("made.stm"), folder.read("start-kit/nbs-610-2004-12-19-1.stm"));
    EXPECT_TRUE(forms().frm1_Settings.shown);
    EXPECT_EQ(rs().DataFileName, "");
}

TEST_F(Road, BlankOfTheKitGivesItsBlankFileByteForByte) {
    program->start(0);
    os.opens.push_back(folder.path("start-kit/nist-610-1.csv"));
    click(forms().frm1_Settings, "cmdLoadCSV");
    click(forms().frm1_Settings, "optCreatBLK");
    click(forms().frm1_Settings, "cmdOK");
    mark(1, 0, 5);
    mark(2, 0, 45);
    click(forms().frm2_Time, "cmdNext");
    ASSERT_TRUE(forms().frm3_Matrix.shown);
    EXPECT_EQ(forms().frm3_Matrix.cmdNext.text, "Save BLK file");
    os.saves.push_back(folder.path("made.blk"));
    click(forms().frm3_Matrix, "cmdNext");
    EXPECT_EQ(folder.read("made.blk"), folder.read("start-kit/2004-12-19-a.blk"));
}

TEST_F(Road, NoisyBlankBecomesTheSelectionOfABlankFileRun) {
    go_to_marked_selection();
    os.yes_or_no.push_back(true);
    const double lower = rs().BlkLowX;
    const double upper = rs().BlkUppX;
    click(forms().frm2_Time, "cmdNext");
    EXPECT_TRUE(forms().frm1_Settings.shown);
    EXPECT_FALSE(forms().frm2_Time.shown);
    EXPECT_TRUE(forms().frm1_Settings.optCreatBLK.on());
    EXPECT_EQ(rs().SelLow, Limit(5));
    EXPECT_EQ(rs().SelUpp, Limit(45));
    EXPECT_EQ(rs().BlkLow, Limit(0));
    EXPECT_EQ(rs().BlkUpp, Limit(0));
    EXPECT_EQ(rs().SelLowX, lower);
    EXPECT_EQ(rs().SelUppX, upper);
    EXPECT_EQ(rs().BlkLowX, 0);
    EXPECT_EQ(rs().BlkUppX, upper);
    EXPECT_EQ(rs().BlkSpikes, 0);
}

}  // namespace
}  // namespace kolvar::test
