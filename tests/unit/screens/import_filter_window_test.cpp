#include "import/data_file.hpp"
#include "program_fixture.hpp"

namespace kolvar::test {
namespace {

class ImportFilter : public ProgramOnKit {
protected:
    void open() {
        program->start(0);
        forget_boxes();
        click(forms().frm1_Settings, "mnuSettings", 2);
    }
    FrmInputForm& form() { return forms().frm_InputForm; }
    Grid& grid() { return form().FlexGrid1; }
    std::vector<Entry*> boxes() {
        return {&form().txtCSViso,   &form().txtCSVdat, &form().txtCSVfirst, &form().txtTXTiso, &form().txtTXTdat,
                &form().txtTXTfirst, &form().txtXLiso,  &form().txtXLdat,    &form().txtXLfirst};
    }
    std::vector<Value> keys() {
        return {rs().setCSVisoLINE,  rs().setCSVdatLINE, rs().setCSVfirstCOL, rs().setTXTisoLINE, rs().setTXTdatLINE,
                rs().setTXTfirstCOL, rs().setXLisoLINE,  rs().setXLdatLINE,   rs().setXLfirstCOL};
    }
    std::vector<Value> user_defined_keys() {
        return {rs().setXXXXXisoLINE, rs().setXXXXXdatLINE, rs().setXXXXXfirstCOL,
                rs().setYYYYYisoLINE, rs().setYYYYYdatLINE, rs().setYYYYYfirstCOL,
                rs().setZZZZZisoLINE, rs().setZZZZZdatLINE, rs().setZZZZZfirstCOL};
    }
    std::vector<std::string> texts() {
        std::vector<std::string> all;
        for (const Entry* box : boxes()) all.push_back(box->text);
        return all;
    }
    // A file chosen, as the load leaves it.
    void choose_file(const std::string& name, const std::string& bytes) {
        rs().DataFileName = name;
        rs().DataFilePath = folder.write(name, bytes);
        program->shell().close(form());
        program->shell().open(form());
    }
    bool says(const std::string& part) { return form().lblFile.text.find(part) != std::string::npos; }
};

using Texts = std::vector<std::string>;
const char* const red_message = "The RED numbers must be smaller than the BLUE ones.";
const char* const number_message = "Some input values are not numeric or zero or negative.";

TEST_F(ImportFilter, TextsOfTheWindow) {
    open();
    EXPECT_EQ(form().title, "Customize Import");
    EXPECT_EQ(form().lblPurpose.text,
              "The import filter can be customized according to the format of the datafiles of the user");
    EXPECT_EQ(form().lblFormats.text,
              "Kolvar opens text files with extensions of CSV, TXT and XL. The data should be separated by comma or "
              "TAB.");
    EXPECT_EQ(form().lblIso.text, "Number of line that contains the name of isotopes:");
    EXPECT_EQ(form().lblDat.text, "Number of the line that contains the first time slice (cps or counts data):");
    EXPECT_EQ(form().lblFirst.text, "Number of the column that contains the first isotope:");
    EXPECT_EQ(form().lblOther.text,
              "The file may contain lines with other content, but these lines will not be considered. ");
    EXPECT_EQ(
        form().lblReserved.text,
        "*: do not use as extension: SET  STM  BLK  DWE  STM  STC  DAT , becaused these are reserved for non-data "
        "files");
    EXPECT_EQ(form().lblCSVby.text, "(comma delimited)");
    EXPECT_EQ(form().lblTXTby.text, "(TAB delimited)");
    EXPECT_EQ(form().lblXLby.text, "(comma delimited)");
    EXPECT_EQ(form().cmdSave.text, "Save As");
    EXPECT_EQ(form().cmdCancel.text, "Cancel");
    EXPECT_EQ(form().txtTXTiso.fore, FrmInputForm::red);
    EXPECT_EQ(form().txtXLdat.fore, FrmInputForm::blue);
    EXPECT_FALSE(form().txtCSVfirst.fore.has_value());
}

TEST_F(ImportFilter, BoxesShowTheirKeysAtEachOpening) {
    open();
    EXPECT_EQ(texts(), (Texts{"1", "2", "2", "1", "2", "2", "2", "3", "2"}));
    type(form(), "txtXLdat", "77");
    click(form(), "cmdCancel");
    rs().setTXTfirstCOL = 14;
    rs().setCSVisoLINE = Value();
    click(forms().frm1_Settings, "mnuDefault", 2);
    EXPECT_EQ(texts(), (Texts{"", "2", "2", "1", "2", "14", "2", "3", "2"}));
}

TEST_F(ImportFilter, CancelAndTheCloseBoxChangeNothing) {
    open();
    const auto before = keys();
    type(form(), "txtCSViso", "4");
    click(form(), "cmdCancel");
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(keys(), before);
    click(forms().frm1_Settings, "mnuSettings", 2);
    type(form(), "txtCSViso", "4");
    close(form());
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(keys(), before);
    EXPECT_TRUE(os.dialogs.empty());
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(ImportFilter, EqualNumbersOfHeadsAndSlicesAreRefused) {
    open();
    const auto before = keys();
    for (const char* profile : {"CSV", "TXT", "XL"}) {
        forget_boxes();
        const std::string iso = std::string("txt") + profile + "iso", former = form().find(iso)->text;
        type(form(), iso, form().find(std::string("txt") + profile + "dat")->text);
        click(form(), "cmdSave");
        EXPECT_EQ(box_texts(), Texts{red_message}) << profile;
        EXPECT_EQ(os.boxes.back().title, "");
        type(form(), iso, former);
    }
    EXPECT_TRUE(form().shown);
    EXPECT_EQ(keys(), before);
    EXPECT_TRUE(os.dialogs.empty());
}

TEST_F(ImportFilter, TheOrderOfTheLinesIsTestedInAllProfilesBeforeAnyNumber) {
    open();
    type(form(), "txtCSViso", "-5");
    type(form(), "txtTXTfirst", "none");
    type(form(), "txtXLiso", "9");
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{red_message});
}

TEST_F(ImportFilter, ATextCountsAsZeroInTheOrderOfTheLines) {
    open();
    type(form(), "txtCSViso", "one");
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{number_message}) << "0 is below 2, but no number";
    forget_boxes();
    type(form(), "txtCSViso", "1");
    type(form(), "txtCSVdat", "two");
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{red_message}) << "1 is not below 0";
    forget_boxes();
    type(form(), "txtCSVdat", "2 lines");
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{number_message}) << "1 is below 2, but the text is no number as a whole";
}

TEST_F(ImportFilter, EachBoxMustBeANumberAboveZero) {
    open();
    const auto before = keys();
    for (const char* wrong : {"0", "-1", "", "x", "2;"})
        for (const char* box : {"txtCSVfirst", "txtTXTfirst", "txtXLfirst"}) {
            forget_boxes();
            const std::string former = form().find(box)->text;
            type(form(), box, wrong);
            click(form(), "cmdSave");
            EXPECT_EQ(box_texts(), Texts{number_message}) << box << " " << wrong;
            type(form(), box, former);
        }
    for (const char* box : {"txtCSViso", "txtTXTiso", "txtXLiso"}) {
        forget_boxes();
        const std::string former = form().find(box)->text;
        type(form(), box, "0");
        click(form(), "cmdSave");
        EXPECT_EQ(box_texts(), Texts{number_message}) << box;
        type(form(), box, former);
    }
    EXPECT_TRUE(form().shown);
    EXPECT_EQ(keys(), before);
}

TEST_F(ImportFilter, FractionsAreStoredAsTheWholeNumberBelow) {
    open();
    type(form(), "txtCSVdat", "3.7");
    type(form(), "txtTXTiso", " 1.2 ");
    type(form(), "txtXLdat", "5.1E1");
    os.saves = {folder.path("new.set")};
    click(form(), "cmdSave");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().setCSVdatLINE, Value(3));
    EXPECT_EQ(rs().setTXTisoLINE, Value(1));
    EXPECT_EQ(rs().setXLdatLINE, Value(51));
    const std::string saved = folder.read("new.set");
    EXPECT_NE(saved.find("3,\"setCSVdatLINE\"\r\n"), std::string::npos);
    EXPECT_NE(saved.find("51,\"setXLdatLINE\"\r\n"), std::string::npos);
}

TEST_F(ImportFilter, ANumberBetweenZeroAndOneIsStoredAsZero) {
    open();
    type(form(), "txtXLfirst", "0.5");
    os.saves = {folder.path("new.set")};
    click(form(), "cmdSave");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs().setXLfirstCOL, Value(0));
}

TEST_F(ImportFilter, SaveAsksForASettingsFile) {
    open();
    os.saves = {folder.path("new.set")};
    click(form(), "cmdSave");
    ASSERT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(os.dialogs[0].filter, "Setting Files (*.set)|*.set|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs[0].index, 1);
    EXPECT_EQ(os.dialogs[0].name, rs().SettingsPath);
    EXPECT_EQ(os.dialogs[0].folder, rs().AppPath1);
    EXPECT_EQ(rs().SetFilePath, folder.path("new.set"));
}

TEST_F(ImportFilter, ACancelledDialogGoesOnWithTheProposedNameAndAsks) {
    open();
    const std::string before = bytes_of(rs().SettingsPath);
    type(form(), "txtXLfirst", "5");
    os.saves = {std::nullopt};
    os.yes_or_no = {false};
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{"Overwrite existing file?"});
    EXPECT_EQ(bytes_of(rs().SettingsPath), before);
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().setXLfirstCOL, Value(5)) << "the keys stay changed";
}

TEST_F(ImportFilter, ASettingsFileThatCannotBeWrittenIsToldAndTheWindowCloses) {
    open();
    os.saves = {folder.path("none/new.set")};
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{"Error occurred while trying to save file, please retry."});
    EXPECT_FALSE(form().shown);
}

TEST_F(ImportFilter, ThePathOfAgesSavesADefaultFile) {
    open();
    rs().Method = 1;
    type(form(), "txtXLfirst", "5");
    os.saves = {folder.path("new.def")};
    click(form(), "cmdSave");
    ASSERT_EQ(os.dialogs.size(), 1U);
    EXPECT_EQ(os.dialogs[0].filter, "Default Files (*.def)|*.def|All Files (*.*)|*.*|");
    EXPECT_EQ(os.dialogs[0].index, 1);
    EXPECT_EQ(os.dialogs[0].name, rs().SettingsPath);
    EXPECT_EQ(os.dialogs[0].folder, rs().AppPath1);
    EXPECT_EQ(rs().SetFilePath, folder.path("new.def"));
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_FALSE(form().shown);
    EXPECT_EQ(rs().setXLfirstCOL, Value(5));
    EXPECT_TRUE(std::filesystem::exists(folder.path("new.def")));
}

TEST_F(ImportFilter, ThePathOfAgesAsksBeforeItOverwritesTheProposedFile) {
    open();
    rs().Method = 1;
    const std::string before = bytes_of(rs().SettingsPath);
    os.saves = {std::nullopt};
    os.yes_or_no = {false};
    click(form(), "cmdSave");
    EXPECT_EQ(box_texts(), Texts{"Overwrite existing file?"});
    EXPECT_EQ(bytes_of(rs().SettingsPath), before);
    EXPECT_FALSE(form().shown);
}

TEST_F(ImportFilter, OtherMethodsChangeTheKeysAndSaveNothing) {
    for (const int method : {2, 3}) {
        open();
        rs().Method = method;
        type(form(), "txtXLfirst", "5");
        click(form(), "cmdSave");
        EXPECT_TRUE(os.dialogs.empty());
        EXPECT_TRUE(os.boxes.empty());
        EXPECT_FALSE(form().shown);
        EXPECT_EQ(rs().setXLfirstCOL, Value(5));
        program = std::make_unique<Program>(os, folder.path());
    }
}

TEST_F(ImportFilter, TheNineKeysOfUserDefinedExtensionsPassThrough) {
    int number = 41;
    for (const char* ending : {"XXXXX", "YYYYY", "ZZZZZ"})
        for (const char* part : {"isoLINE", "datLINE", "firstCOL"})
            set_key(std::string("set") + ending + part, std::to_string(number++));
    open();
    const std::vector<Value> wanted = {41, 42, 43, 44, 45, 46, 47, 48, 49};
    ASSERT_EQ(user_defined_keys(), wanted);
    const std::string before = bytes_of(rs().SettingsPath);
    type(form(), "txtXLdat", "7");
    os.saves = {folder.path("new.set")};
    click(form(), "cmdSave");
    EXPECT_EQ(user_defined_keys(), wanted);
    std::string changed = before;
    const std::string former = "3,\"setXLdatLINE\"";
    ASSERT_NE(changed.find(former), std::string::npos);
    EXPECT_EQ(folder.read("new.set"), changed.replace(changed.find(former), former.size(), "7,\"setXLdatLINE\""));
}

TEST_F(ImportFilter, LoadedDataStayAndTheNextImportTakesTheNewProfile) {
    open();
    const std::string heads = rs().IsoName(1), second = rs().IsoName(2);
    const int columns = rs().nIso, slices = rs().nSlices;
    const double cell = rs().Sig(2, 2);
    type(form(), "txtCSVdat", "5");
    type(form(), "txtCSVfirst", "3");
    os.saves = {folder.path("new.set")};
    click(form(), "cmdSave");
    EXPECT_EQ(rs().IsoName(1), heads);
    EXPECT_EQ(rs().nIso, columns);
    EXPECT_EQ(rs().nSlices, slices);
    EXPECT_EQ(rs().Sig(2, 2), cell);
    load_by_ending(program->context());
    EXPECT_EQ(rs().IsoName(1), second);
    EXPECT_EQ(rs().nIso, columns - 1);
    EXPECT_EQ(rs().nSlices, slices - 3);
}

TEST_F(ImportFilter, PreviewTintsTheLinesAndGreysTheColumnsThatGo) {
    open();
    EXPECT_TRUE(says("example-1.csv"));
    EXPECT_TRUE(says("CSV (comma delimited)"));
    ASSERT_EQ(grid().rows, 31);
    EXPECT_EQ(grid().cell(0, 1).text, "1");
    EXPECT_EQ(grid().cell(30, 0).text, "30");
    EXPECT_EQ(grid().cell(1, 2).text, rs().IsoName(1));
    EXPECT_EQ(grid().cell(1, 2).back, FrmInputForm::pale_red);
    EXPECT_EQ(grid().cell(2, 2).back, FrmInputForm::pale_blue);
    EXPECT_EQ(grid().cell(3, 2).back, palette(15));
    for (int row = 1; row <= 30; ++row) EXPECT_EQ(grid().cell(row, 1).back, FrmInputForm::dropped);
}

TEST_F(ImportFilter, PreviewFollowsTyping) {
    open();
    const std::uint64_t before = grid().revision;
    type(form(), "txtCSViso", "4");
    EXPECT_GT(grid().revision, before);
    EXPECT_EQ(grid().cell(4, 2).back, FrmInputForm::pale_red);
    EXPECT_EQ(grid().cell(1, 2).back, palette(15));
    EXPECT_EQ(grid().cell(5, 2).back, FrmInputForm::pale_blue)
        << "slices cannot begin before the line behind the heads";
    EXPECT_EQ(grid().cell(3, 2).fore, FrmInputForm::not_read);
    EXPECT_EQ(grid().cell(6, 2).fore, palette(0));
    type(form(), "txtCSVdat", "40");
    EXPECT_TRUE(says("First time slice: behind the lines shown."));
    type(form(), "txtCSVfirst", "4");
    EXPECT_EQ(grid().cell(9, 3).back, FrmInputForm::dropped);
    EXPECT_NE(grid().cell(9, 4).back, FrmInputForm::dropped);
    type(form(), "txtCSVfirst", "1e999");
    type(form(), "txtCSViso", "");
    type(form(), "txtCSVdat", "-");
    EXPECT_EQ(grid().cell(1, 1).back, FrmInputForm::pale_blue) << "no heads, slices from line 1 on";
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(ImportFilter, PreviewPassesOverEmptyLinesOfTabTables) {
    open();
    choose_file("a.txt", "Time\tSi29\r\n\r\n\r\n1\t5\r\n\r\n2\t6\r\n");
    EXPECT_TRUE(says("a.txt"));
    EXPECT_TRUE(says("TXT (TAB delimited)"));
    ASSERT_EQ(grid().rows, 7);
    ASSERT_EQ(grid().cols, 3);
    EXPECT_EQ(grid().cell(2, 2).back, palette(15));
    EXPECT_EQ(grid().cell(4, 2).back, FrmInputForm::pale_blue);
    EXPECT_EQ(grid().cell(4, 2).text, "5");
    EXPECT_EQ(grid().cell(5, 0).fore, FrmInputForm::not_read);
}

TEST_F(ImportFilter, PreviewOfLongFieldsAndOfMoreColumnsThanTheProgramHas) {
    open();
    std::string wide = std::string(79, 'x') + "\xC2\xB5" + "yyy";
    for (int k = 0; k < 150; ++k) wide += ",1";
    choose_file("a.csv", wide + "\n1,2\n");
    EXPECT_EQ(grid().cols, 101);
    EXPECT_EQ(grid().cell(1, 1).text, std::string(79, 'x')) << "never half a character";
    EXPECT_EQ(grid().cell(2, 3).text, "");
}

TEST_F(ImportFilter, WithoutAFileTheLabelTellsWhyAndDetectTouchesNothing) {
    open();
    const auto expect_none = [&](const std::string& reason) {
        program->shell().close(form());
        program->shell().open(form());
        EXPECT_TRUE(says(reason)) << form().lblFile.text;
        EXPECT_EQ(grid().rows, 0);
        const Texts before = texts();
        click(form(), "cmdDetect");
        EXPECT_TRUE(says(reason)) << form().lblFile.text;
        EXPECT_EQ(texts(), before);
    };
    rs().DataFilePath = "";
    expect_none("No data file was chosen.");
    rs().DataFilePath = folder.path("gone.csv");
    expect_none("The file was not found: ");
    rs().DataFilePath = folder.write("a.dat", "1,2\n");
    expect_none("No profile reads files of this ending: ");
    std::filesystem::create_directory(folder.path("folder.csv"));
    rs().DataFilePath = folder.path("folder.csv");
    expect_none("The file ");
    rs().DataFilePath = folder.write("a.csv", "Time,Si29\n1,2\n");
    rs().DataFileName = " pasted from clipboard ";
    expect_none("pasted from the clipboard");
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(ImportFilter, DetectFillsTheBoxesOfTheFilesOwnProfileAlone) {
    open();
    const auto before = keys();
    choose_file("a.txt", "Report\n\nClock\tScan\tSi29\tCa43\n\t\tcps\tcps\n1\t1\t5\t6\n2\t2\t6\t7\n");
    click(form(), "cmdDetect");
    EXPECT_EQ(texts(), (Texts{"1", "2", "2", "3", "5", "3", "2", "3", "2"}));
    EXPECT_EQ(grid().cell(3, 3).back, FrmInputForm::pale_red);
    EXPECT_EQ(grid().cell(5, 3).back, FrmInputForm::pale_blue);
    EXPECT_EQ(grid().cell(5, 2).back, FrmInputForm::dropped);
    EXPECT_TRUE(says("Detected."));
    EXPECT_EQ(keys(), before);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_TRUE(os.dialogs.empty());
}

TEST_F(ImportFilter, DetectThatFindsNothingSaysSoAndTouchesNothing) {
    open();
    choose_file("a.csv", "Time,silicon\n1,2\n2,3\n");
    const Texts before = texts();
    click(form(), "cmdDetect");
    EXPECT_EQ(texts(), before);
    EXPECT_TRUE(says("was found in a.csv"));
}

TEST_F(ImportFilter, DetectOfTheExampleLeavesItsProfile) {
    open();
    type(form(), "txtCSViso", "7");
    type(form(), "txtCSVdat", "11");
    type(form(), "txtCSVfirst", "5");
    click(form(), "cmdDetect");
    EXPECT_EQ(texts(), (Texts{"1", "2", "2", "1", "2", "2", "2", "3", "2"}));
}

}  // namespace
}  // namespace kolvar::test
