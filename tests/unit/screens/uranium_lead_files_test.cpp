// From a file to the screen of the U/Pb and FLEX paths: which isotopes are wanted, the question about Hg, the start
// panel.
#include "screens/uranium_lead_files.hpp"

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

class UraniumLeadFiles : public ProgramOnKit {
protected:
    Frm1Settings& panel() { return forms().frm1_Settings; }
    Frm2UP& screen() { return forms().frm2_UP; }
    // Four slices below these heads, chosen in the menu of the first window.
    void choose_file(const std::string& heads) {
        std::string row = "1";
        for (const char c : heads)
            if (c == ',') row += ",2";
        row += "\n";
        std::string bytes = heads + "\n";
        for (int slice = 0; slice < 4; ++slice) bytes += row;
        os.opens = {folder.write("spot.csv", bytes)};
        click(panel(), "mnuFile", 0);
    }
    void start(int method = 1) {
        program->start(method);
        rs().setFormer_Sel = 0;  // the short tables take over no interval
        ASSERT_TRUE(os.boxes.empty()) << os.boxes.front().text;
    }
    std::string only_window() {
        const std::vector<std::string> names = shown_windows();
        return names.size() == 1 ? names[0] : std::to_string(names.size()) + " windows";
    }
};

TEST_F(UraniumLeadFiles, EachOfTheFourIsotopesIsNeeded) {
    const std::vector<std::string> needed{"Pb206", "Pb207", "Pb208", "U238"};
    const std::vector<std::string> lists{"  Pb204  Pb206  Th232  U235", "  Pb204  Pb207  Th232  U235",
                                         "  Pb204  Pb208  Th232  U235", "  Pb204  Th232  U235  U238"};
    start();
    for (std::size_t missing = 0; missing < needed.size(); ++missing) {
        std::string heads = "Si29";
        for (std::size_t k = 0; k < needed.size(); ++k)
            if (k != missing) heads += "," + needed[k];
        choose_file(heads);
        EXPECT_EQ(only_window(), "frm_Missing_UPb") << needed[missing];
        EXPECT_EQ(forms().frm_Missing_UPb.lblLista.text, lists[missing]);
        click(forms().frm_Missing_UPb, "cmdSorry");
        EXPECT_EQ(only_window(), "frm1_Settings");
        EXPECT_FALSE(rs().HgChosen);
    }
}

TEST_F(UraniumLeadFiles, TheOtherIsotopesCanBeMissing) {
    start();
    rs().HgChosen = false;
    rs().BlankFromData = 0;
    panel().cmdOK1.visible = false;
    choose_file("Pb206,Pb207,Pb208,U238");
    EXPECT_EQ(only_window(), "frm2_UP");
    EXPECT_TRUE(rs().HgChosen);
    EXPECT_EQ(rs().PlotOn, 0);
    EXPECT_EQ(rs().BlankFromData, 1);
    EXPECT_EQ(panel().lblUP.text, "spot.csv");
    EXPECT_TRUE(panel().cmdOK1.visible);
    rs().BlankFromData = 0;
    os.opens = {folder.path("spot.csv")};
    click(screen(), "cmdNewFile");
    EXPECT_EQ(only_window(), "frm2_UP");
    EXPECT_EQ(rs().BlankFromData, 1);
}

TEST_F(UraniumLeadFiles, EachHgIsotopeCanBeTheAnswer) {
    start();
    for (int mass = 198; mass <= 202; ++mass) {
        choose_file("Hg198,Hg199,Hg200,Hg201,Hg202,Pb206,Pb207,Pb208,U238");
        ASSERT_EQ(only_window(), "frm_Hg_isot");
        EXPECT_FALSE(rs().HgChosen);
        EXPECT_EQ(rs().HgMass, 202);
        EXPECT_EQ(rs().PlotOn, 0);
        click(forms().frm_Hg_isot, "opt" + std::to_string(mass));
        EXPECT_EQ(only_window(), "frm2_UP");
        EXPECT_TRUE(rs().HgChosen);
        EXPECT_EQ(rs().HgMass, mass);
        EXPECT_EQ(rs().ColHg, mass - 197);
        EXPECT_EQ(screen().lblFLEXiso(8).text, "Hg" + std::to_string(mass));
        click(screen(), "cmdBack");
    }
}

TEST_F(UraniumLeadFiles, OneHgIsotopeOrTheThirdPathAsksNothing) {
    start();
    choose_file("Hg200,Pb206,Pb207,Pb208,U238");
    EXPECT_EQ(only_window(), "frm2_UP");
    EXPECT_EQ(rs().HgMass, 200);
    click(screen(), "cmdBack");
    rs().Method = 3;
    for (int slot = 1; slot <= 4; ++slot) rs().FlexIso(slot) = "none";
    rs().FlexIso(1) = "U238";
    rs().FlexIso(4) = "Pb208";
    choose_file("Hg200,Hg202,U238,Pb208,Sm147,Pt195");
    EXPECT_EQ(only_window(), "frm2_UP");
    EXPECT_EQ(rs().ColPb208, 4);
}

// Buttons of the other path: nothing leads to them on this one.
TEST_F(UraniumLeadFiles, TheButtonsOfTheHgWindowLeadToTheOtherTimeSelection) {
    start(3);
    rs().ColHg201 = 2;
    program->shell().open(forms().frm_Hg_isot);
    FrmHgIsot& form = forms().frm_Hg_isot;
    EXPECT_EQ(form.Label1.text, "Both Pt195 and Pt198 isotopes measured.");
    EXPECT_EQ(form.Label2.text, "Which count should KOLVAR use to present the Pt results?");
    EXPECT_EQ(form.cmd201.text, "Pt195");
    EXPECT_EQ(form.cmd202.text, "Pt198");
    EXPECT_TRUE(form.cmd201.visible && form.cmd202.visible);
    EXPECT_FALSE(form.opt201.visible || form.cmd198.visible);
    rs().HgChosen = false;
    click(form, "cmd201");
    EXPECT_FALSE(form.shown);
    EXPECT_TRUE(forms().frm2_Time.shown);
    EXPECT_EQ(rs().HgMass, 201);
    EXPECT_EQ(rs().ColHg, 2);
    EXPECT_TRUE(rs().HgChosen);
}

TEST_F(UraniumLeadFiles, ThePanelOffersWhatTheSequenceAllows) {
    start();
    const auto opened_again = [&](const Value& mode) {
        rs().SeqMode = mode;
        click(panel(), "cmdOK1");
        click(screen(), "cmdBack");
    };
    opened_again("");
    EXPECT_TRUE(panel().cmdIndividual.visible && panel().cmdSequential.visible);
    EXPECT_FALSE(panel().cmdChooseUP.enabled || panel().lblUP.enabled);
    EXPECT_TRUE(panel().cmdCreate.enabled && panel().cmdOpenMaster.enabled);
    opened_again(true);
    EXPECT_FALSE(panel().cmdIndividual.visible || panel().cmdSequential.visible);
    EXPECT_FALSE(panel().cmdChooseUP.enabled || panel().lblUP.enabled);
    EXPECT_TRUE(panel().cmdCreate.enabled && panel().cmdOpenMaster.enabled);
    opened_again(false);
    EXPECT_FALSE(panel().cmdIndividual.visible || panel().cmdSequential.visible);
    EXPECT_TRUE(panel().cmdChooseUP.enabled && panel().lblUP.enabled);
    EXPECT_FALSE(panel().cmdCreate.enabled || panel().cmdOpenMaster.enabled);
}

TEST_F(UraniumLeadFiles, ChoosingAFileHidesTheStartButtonsAlsoWhenItIsCancelled) {
    start();
    click(panel(), "cmdIndividual");
    EXPECT_EQ(rs().SeqMode, Value(false));
    EXPECT_TRUE(panel().cmdIndividual.visible);
    os.opens = {""};
    click(panel(), "cmdChooseUP");
    EXPECT_FALSE(panel().cmdIndividual.visible || panel().cmdSequential.visible);
    EXPECT_EQ(only_window(), "frm1_Settings");
    EXPECT_EQ(rs().DataFileName, "test-01-no-Hg-235-232.csv");
}

TEST_F(UraniumLeadFiles, WithoutTheThreeImportLinesOfTheExampleNoneIsLoaded) {
    for (const char* key : {"setCSVisoLINE", "setCSVdatLINE", "setCSVfirstCOL"}) {
        const std::string kept = folder.read("start-kit/KolvAge-default-b01.def");
        const std::size_t name = kept.find(std::string(",\"") + key + "\"");
        std::string changed = kept;
        changed[name - 1] = '4';
        write_kit("KolvAge-default-b01.def", changed);
        program = std::make_unique<Program>(os, folder.path());
        program->start(1);
        EXPECT_TRUE(os.boxes.empty());
        EXPECT_EQ(rs().DataFileName, "") << key;
        EXPECT_EQ(rs().nIso, 0);
        EXPECT_FALSE(panel().cmdOK1.visible);
        write_kit("KolvAge-default-b01.def", kept);
    }
}

TEST_F(UraniumLeadFiles, TheCopyButtonOfASequenceCopiesTheHeadsToo) {
    start();
    choose_file("Pb206,Pb207,Pb208,U238");
    rs().setPasteDat = 0;
    click(screen(), "cmdCopyMas");
    const std::string of_sequence = os.clip;
    EXPECT_TRUE(of_sequence.starts_with("Kolvar export\t202\t")) << of_sequence;
    EXPECT_NE(of_sequence.find("\rspot.csv\t"), std::string::npos);
    click(screen(), "cmdCopyHead");
    EXPECT_EQ(os.clip, of_sequence);
}

TEST_F(UraniumLeadFiles, TheExitsOfBothPanelsEndTheProgram) {
    start();
    click(panel(), "cmdExitUP");
    EXPECT_TRUE(program->ended());
    program = std::make_unique<Program>(os, folder.path());
    program->start(3);
    click(panel(), "cmdExitFLEX");
    EXPECT_TRUE(program->ended());
    EXPECT_EQ(program->status(), 0);
}

}  // namespace
}  // namespace kolvar::test
