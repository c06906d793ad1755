// What the program does before its first window stands: every step, with and without the files it asks for.
#include <filesystem>
#include <map>

#include "screens/start_paths.hpp"
#include "unit/screens/program_fixture.hpp"
#include "unit/screens/start_texts.hpp"

namespace kolvar::test {
namespace {

using StartUp = ProgramOnKit;

const std::string slash(1, static_cast<char>(std::filesystem::path::preferred_separator));

std::string dwell_text(const std::string& path) {
    return "Error occurred while trying to load file: " + path +
           ".\n\nProbably the path or the file name of the Dwell file in the Settings is not correct.\n\nOpen "
           "Settings, "
           "browse and select an existing DWE file and save the settings. At the next start Kolv will find it.";
}
std::string composition_text(const std::string& path) {
    return "Error occurred while trying to load file: " + path +
           ".\n\nProbably the path or the file name of the Std Composition File in the Settings is not "
           "correct.\n\nOpen "
           "Settings, browse and select an existing STC file and save the settings. At the next start Kolv will find "
           "it.";
}
std::string retry_text(const std::string& path) {
    return "Error occurred while trying to load file: " + path + " , please retry or check the file.";
}

TEST_F(StartUp, InAFolderWithoutAnyFileNineBoxesComeInOrderAndThenTheWindow) {
    const TempFolder empty;
    Program bare(os, empty.path());
    bare.start(0);
    const std::vector<std::string> expected{table_text("grubbs.dat"),
                                            table_text("student.dat"),
                                            start_path_text("start_path"),
                                            settings_text(slash + "Kolvar-default-h.set"),
                                            dwell_text(""),
                                            composition_text(""),
                                            retry_text(slash + "2004-12-19-a.blk"),
                                            retry_text(slash + "nbs-610-2004-12-19-1.stm"),
                                            retry_text(slash + "example-1.csv")};
    EXPECT_EQ(box_texts(), expected);
    for (const auto& box : os.boxes) {
        EXPECT_EQ(box.title, "KOLVAR");
        EXPECT_EQ(box.kind, "warning");
    }
    Frm1Settings& form = bare.forms().frm1_Settings;
    EXPECT_TRUE(form.shown);
    EXPECT_TRUE(form.pict_IS.visible);
    EXPECT_EQ(bare.state().WorkPath, "");
    EXPECT_EQ(bare.state().DataFileName, "example-1.csv");
    EXPECT_EQ(bare.state().DataFilePath, slash + "example-1.csv");
    EXPECT_EQ(form.lblCSV.text, "  example-1.csv  ");
    EXPECT_EQ(form.lblBLK.text, "  2004-12-19-a.blk  ");
    EXPECT_EQ(form.txtDwell.text, "20");
    EXPECT_EQ(bare.state().PlotOn, 0);
}

TEST_F(StartUp, WithoutAKitFolderANameIsNotSoughtInTheRootOfTheDisk) {
    rs().WorkPath = "";
    // Behind a lone separator this name is a file; as the settings name it, from the current folder, it is none.
    const std::string named = kit("quadrupole.dwe").substr(1);
    ASSERT_TRUE(std::filesystem::exists(slash + named));
    EXPECT_EQ(reference_path(rs(), named), named);
}

TEST_F(StartUp, ReferenceFileOfTheSettingsCountsFromTheKitWhenItsNameIsRelative) {
    rs().WorkPath = folder.path("start-kit");
    EXPECT_EQ(reference_path(rs(), "quadrupole.dwe"), kit("quadrupole.dwe"));
    EXPECT_EQ(reference_path(rs(), "no-such.dwe"), "no-such.dwe");
    EXPECT_EQ(reference_path(rs(), kit("quadrupole.dwe")), kit("quadrupole.dwe"));
}

TEST_F(StartUp, EachMissingFileBringsItsOwnBoxAlone) {
    const std::map<std::string, std::string> texts{
        {"student.dat", table_text("student.dat")},
        {"start-kit/quadrupole.dwe", dwell_text("quadrupole.dwe")},
        {"start-kit/nist-srm-610.stc", composition_text("nist-srm-610.stc")},
        {"start-kit/2004-12-19-a.blk", retry_text(kit("2004-12-19-a.blk"))},
        {"start-kit/nbs-610-2004-12-19-1.stm", retry_text(kit("nbs-610-2004-12-19-1.stm"))},
        {"start-kit/example-1.csv", retry_text(kit("example-1.csv"))}};
    for (const auto& [file, text] : texts) {
        const std::string bytes = folder.read(file);
        std::filesystem::remove(folder.path(file));
        forget_boxes();
        Program again(os, folder.path());
        again.start(0);
        EXPECT_EQ(box_texts(), std::vector<std::string>{text}) << file;
        EXPECT_TRUE(again.forms().frm1_Settings.shown) << file;
        folder.write(file, bytes);
    }
}

TEST_F(StartUp, AFolderInPlaceOfTheStartPathIsToldAsAnUnreadableFile) {
    std::filesystem::remove(folder.path("start_path"));
    std::filesystem::create_directory(folder.path("start_path"));
    program->start(0);
    ASSERT_FALSE(os.boxes.empty());
    EXPECT_EQ(os.boxes[0].text, start_path_text("start_path"));
    EXPECT_EQ(rs().WorkPath, "");
}

TEST_F(StartUp, StartPathIsTheFirstFieldQuotedOrBare) {
    for (const std::string& line : {"\"" + kit("") + "\"\r\n", kit("") + "  \r\n", kit("") + ",\"other\"\n"}) {
        folder.write("start_path", line);
        forget_boxes();
        Program again(os, folder.path());
        again.start(0);
        EXPECT_TRUE(os.boxes.empty()) << line << os.boxes.front().text;
        EXPECT_EQ(again.state().nIso, 25) << line;
    }
}

TEST_F(StartUp, ABareStartPathThatLooksLikeANumberIsTheNameOfAFolder) {
    std::filesystem::rename(folder.path("start-kit"), folder.path("2024.10"));
    folder.write("start_path", " 2024.10 ,rest\r\n");
    program->start(0);
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
    EXPECT_EQ(rs().WorkPath, folder.path("2024.10"));
    EXPECT_EQ(rs().nIso, 25);
}

TEST_F(StartUp, ARelativeStartPathCountsFromTheProgramWhereTheCurrentFolderLacksIt) {
    std::filesystem::rename(folder.path("start-kit"), folder.path("kit beside the program"));
    folder.write("start_path", "\"kit beside the program\"\r\n");
    program->start(0);
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
    EXPECT_EQ(rs().WorkPath, folder.path("kit beside the program"));
    EXPECT_EQ(rs().nIso, 25);
}

TEST_F(StartUp, AKitCopiedUnderAnotherNameIsFoundByTheStartPathItWasShippedWith) {
    const std::string winter = folder.path("winter");
    std::filesystem::rename(folder.path("start-kit"), winter);
    folder.write("winter/start_path", "\"start-kit\"\r\n");
    for (const char* name : {"grubbs.dat", "student.dat"})
        std::filesystem::copy_file(folder.path(name), winter + "/" + name);
    Program moved(os, winter);
    moved.start(0);
    // Where the test's own folder holds a start kit, that one is the nearer.
    if (!std::filesystem::exists("start-kit")) {
        EXPECT_EQ(moved.state().WorkPath, winter);
    }
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
    EXPECT_EQ(moved.state().nIso, 25);

    forget_boxes();
    folder.write("winter/start_path", "\"summer\"\r\n");
    Program named(os, winter);
    named.start(0);
    EXPECT_EQ(named.state().WorkPath, "summer");
    EXPECT_EQ(box_texts().size(), 6U);
    EXPECT_EQ(named.state().nIso, 1);
}

TEST_F(StartUp, OtherPathsWithoutTheirStartPathTellWhatIsMissingAndSeekNothingInTheRootOfTheDisk) {
    std::filesystem::remove(folder.path("start_path_KolvAGE"));
    const std::string defaults = retry_text(slash + "KolvAge-default-b01.def");
    program->start(1);
    EXPECT_EQ(box_texts(), (std::vector<std::string>{start_path_text("start_path_KolvAGE"), defaults}));
    EXPECT_EQ(rs().WorkPath, "");
    EXPECT_EQ(rs().SettingsPath, slash + "KolvAge-default-b01.def");
    EXPECT_EQ(rs().nSlices, 0);
    EXPECT_TRUE(forms().frm1_Settings.shown);
    forget_boxes();
    Program flex(os, folder.path());
    flex.start(3);
    EXPECT_EQ(box_texts(), (std::vector<std::string>{start_path_text("start_path_KolvAGE"), defaults,
                                                     retry_text(slash + "0-FLEX-UT19-50.xl")}));
    EXPECT_EQ(flex.state().DataFilePath, slash + "0-FLEX-UT19-50.xl");
    EXPECT_EQ(flex.state().Method, 3);
    EXPECT_TRUE(flex.forms().frm1_Settings.shown);
}

TEST_F(StartUp, AnyOtherStartValueLoadsTheTwoTablesAlone) {
    program->start(2);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs().Method, 2);
    EXPECT_EQ(rs().SettingsPath, "");
    EXPECT_EQ(rs().DataFileName, "");
    EXPECT_GT(rs().GrubbsP5(3).val(), 0);
    EXPECT_GT(rs().StudentT1(1).val(), 0);
    EXPECT_TRUE(forms().frm1_Settings.shown);
}

TEST_F(StartUp, ADwellTimeBeyondAllBoundsDoesNotEndTheSequence) {
    set_key("setIS_Dwell", "\"1e999\"");
    program->start(0);
    EXPECT_EQ(box_texts(), std::vector<std::string>{});
    EXPECT_EQ(rs().Dwell(100), Cell(0.0));
    EXPECT_EQ(rs().nSTM, 25);
    EXPECT_EQ(rs().DataFileName, "example-1.csv");
    EXPECT_EQ(rs().nIso, 25);
    EXPECT_TRUE(forms().frm1_Settings.shown);
}

TEST_F(StartUp, UPbStartAsksForItsOwnStartPath) {
    std::filesystem::remove(folder.path("start_path_KolvAGE"));
    program->start(1);
    ASSERT_FALSE(os.boxes.empty());
    EXPECT_EQ(os.boxes[0].text, start_path_text("start_path_KolvAGE"));
    EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    EXPECT_EQ(rs().Method, 1);
    EXPECT_TRUE(forms().frm1_Settings.pict_UT.visible);
    EXPECT_EQ(forms().frm1_Settings.title, "Kolv-AGE  -  Start window");
}

TEST_F(StartUp, FlexStartShowsItsPanel) {
    program->start(3);
    EXPECT_EQ(rs().Method, 3);
    EXPECT_TRUE(forms().frm1_Settings.pict_FLEX.visible);
    EXPECT_FALSE(forms().frm1_Settings.pict_UT.visible);
    EXPECT_EQ(forms().frm1_Settings.title, "Kolv-FLEX  -  Start window");
}

TEST_F(StartUp, SettingsFileWithMethod1ShowsTheUPbPanelThoughTheWholeKitIsLoaded) {
    set_key("Method", "1");
    program->start(0);
    EXPECT_TRUE(os.boxes.empty());
    const Frm1Settings& form = forms().frm1_Settings;
    EXPECT_EQ(rs().Method, 1);
    EXPECT_TRUE(form.pict_UT.visible);
    EXPECT_FALSE(form.pict_IS.visible);
    EXPECT_EQ(form.title, "Kolv-AGE  -  Start window");
    EXPECT_FALSE(form.mnuSet.visible);
    EXPECT_TRUE(form.mnuDef.visible);
    EXPECT_FALSE(form.mnuFile1.visible);
    EXPECT_FALSE(form.mnuFile2.visible);
    EXPECT_TRUE(form.cmdOK1.visible);
    EXPECT_EQ(form.lblUP.text, "example-1.csv");
    EXPECT_EQ(form.lblUPset.text, "Kolvar-default-h.set");
    EXPECT_EQ(rs().nIso, 25);
    EXPECT_EQ(rs().nSTM, 25);
    EXPECT_EQ(rs().nBLK, 25);
    EXPECT_EQ(rs().STCfileName, kit("nist-srm-610.stc"));
}

TEST_F(StartUp, SettingsFileWithMethod3ShowsTheFlexPanel) {
    set_key("Method", "3");
    program->start(0);
    const Frm1Settings& form = forms().frm1_Settings;
    EXPECT_EQ(rs().Method, 3);
    EXPECT_TRUE(form.pict_FLEX.visible);
    EXPECT_FALSE(form.mnuSet.visible);
    EXPECT_EQ(form.lblFLEX.text, "example-1.csv");
    EXPECT_EQ(form.title, "Kolv-FLEX  -  Start window");
}

TEST_F(StartUp, SettingsFileWithMethod2OpensTheWindowWithoutAPanelButWithItsMenus) {
    set_key("Method", "2");
    program->start(0);
    const Frm1Settings& form = forms().frm1_Settings;
    EXPECT_TRUE(form.shown);
    for (const Panel* panel : {&form.pict_IS, &form.pict_UT, &form.pict_FLEX}) EXPECT_FALSE(panel->visible);
    EXPECT_TRUE(form.mnuSet.visible);
    EXPECT_TRUE(form.mnuDef.visible);
    EXPECT_TRUE(form.mnuFile1.visible);
}

TEST_F(StartUp, DwellAndCompositionShowTheirFullPathTheTwoOthersTheirFixedName) {
    set_key("setSTMfile_IS", "\"other.stm\"");
    program->start(0);
    const Frm1Settings& form = forms().frm1_Settings;
    EXPECT_EQ(form.lblDWE.text, "  " + kit("quadrupole.dwe") + "  ");
    EXPECT_EQ(form.lblSTC.text, "  " + kit("nist-srm-610.stc") + "  ");
    EXPECT_EQ(form.lblBLK.text, "  2004-12-19-a.blk  ");
    EXPECT_EQ(form.lblSTM.text, "  nbs-610-2004-12-19-1.stm  ");
    EXPECT_EQ(rs().STMfilePath, kit("nbs-610-2004-12-19-1.stm"));
    EXPECT_EQ(form.mnuDef.visible, false);
}

TEST_F(StartUp, DwellTimesFollowTheSettingsWhileTheEntryShowsTheUniformOne) {
    set_key("setIS_Dwell", "35");
    set_key("setDwellFromFile_IS", "0");
    program->start(0);
    EXPECT_EQ(rs().Dwell(1), Cell(0.035));
    EXPECT_EQ(rs().Dwell(100), Cell(0.035));
    EXPECT_EQ(rs().DwellUniform, 0.02);
    EXPECT_EQ(forms().frm1_Settings.txtDwell.text, "20");
}

TEST_F(StartUp, CountsWithADwellTimeOfZeroAreToldAsAFailedLoad) {
    set_key("setIS_Dwell", "0");
    set_key("setDwellFromFile_IS", "0");
    set_key("setCPS_IS", "0");
    program->start(0);
    EXPECT_EQ(rs().Dwell(1), Cell(0.0));
    EXPECT_EQ(box_texts(), std::vector<std::string>{retry_text(kit("example-1.csv"))});
    EXPECT_TRUE(forms().frm1_Settings.shown);
}

TEST_F(StartUp, ATruncatedSettingsFileKeepsWhatWasReadAndTheSequenceGoesOn) {
    const std::string settings = folder.read("start-kit/Kolvar-default-h.set");
    write_kit("Kolvar-default-h.set", settings.substr(0, settings.find("235000")));
    program->start(0);
    ASSERT_FALSE(os.boxes.empty());
    EXPECT_EQ(os.boxes[0].text, settings_text(kit("Kolvar-default-h.set")));
    EXPECT_EQ(rs().setIntSta.text(), "Si29");
    EXPECT_EQ(rs().IS1name, "");  // nothing was derived
    EXPECT_EQ(rs().nIso, 25);
}

TEST_F(StartUp, ExitEndsAtOnceAndWritesNothing) {
    program->start(0);
    std::map<std::string, std::string> before;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder.path()))
        if (file.is_regular_file()) before[file.path().string()] = bytes_of(file.path().string());
    type(forms().frm1_Settings, "txtDwell", "50");
    click(forms().frm1_Settings, "cmdClose");
    EXPECT_TRUE(program->ended());
    EXPECT_EQ(program->status(), 0);
    EXPECT_TRUE(os.boxes.empty());
    std::map<std::string, std::string> after;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder.path()))
        if (file.is_regular_file()) after[file.path().string()] = bytes_of(file.path().string());
    EXPECT_EQ(before, after);
}

TEST_F(StartUp, TheFirstWindowRunsItsActivationAlthoughTheImportHasAskedForItBefore) {
    program->start(0);
    const Frm1Settings& form = forms().frm1_Settings;
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    EXPECT_EQ(rs().IS1col, Limit(4));
    EXPECT_EQ(form.comboIso.text, "Si29");
    EXPECT_EQ(form.comboIso.items.size(), 25U);
    EXPECT_EQ(form.txtISppm.text, "235000");
    EXPECT_EQ(form.txtISerr.text, "2350");
}

}  // namespace
}  // namespace kolvar::test
