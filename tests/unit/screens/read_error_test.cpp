// A disk that fails while an open file is being read, on every road that reads one: nothing of the broken file goes
// into the figures, the box is the one of a file that can't be loaded, and the window goes on with the next file.
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <ostream>
#include <utility>

#include "core/inspector.hpp"
#include "core/numbers.hpp"
#include "settings/default_file.hpp"
#include "settings/settings_file.hpp"
#include "support/failing_read.hpp"
#include "unit/screens/start_texts.hpp"
#include "unit/screens/walk_fixture.hpp"

namespace kolvar::test {
namespace {

namespace fs = std::filesystem;

// Nothing comes, one byte, some lines and half of one, all but the last byte, all but the end of the file.
std::vector<std::size_t> places_of_damage(std::size_t size) { return {0, 1, size / 2, size - 1, size}; }

std::string retry_text(const std::string& path) {
    return "Error occurred while trying to load file: " + path + " , please retry or check the file.";
}
std::string named_in_settings_text(const std::string& path, const std::string& what, const std::string& ending) {
    return "Error occurred while trying to load file: " + path + ".\n\nProbably the path or the file name of the " +
           what + " in the Settings is not correct.\n\nOpen Settings, browse and select an existing " + ending +
           " file and save the settings. At the next start Kolv will find it.";
}
std::string run_time_text(const std::string& procedure, const std::string& path) {
    return "Run-time error: file can't be read, in " + procedure + "\n" + path;
}

class ReadError : public OnWalk {
public:
    using OnWalk::click;
    using OnWalk::forms;
    using OnWalk::kit;
    using OnWalk::rs;

    // What a settings and a default file of this moment would hold.
    std::string kept_settings() {
        const std::string path = rs().SetFilePath;
        rs().SetFilePath = folder.path("kept");
        os.yes_or_no = {true, true};
        WriteSettings(rs(), os);
        std::string all = folder.read("kept");
        WriteDefaults(rs(), os);
        all += folder.read("kept");
        os.yes_or_no.clear();
        rs().SetFilePath = path;
        return all;
    }

protected:
    void start(int method) {
        program = std::make_unique<Program>(os, folder.path());
        program->start(method);
        os.boxes.clear();
    }
    void expect_one_box(const std::string& text, const std::string& kind) {
        EXPECT_EQ(box_texts(), std::vector<std::string>{text});
        if (os.boxes.empty()) return;
        EXPECT_EQ(os.boxes[0].kind, kind);
        EXPECT_EQ(os.boxes[0].title, "KOLVAR");
    }
    void expect_idle() {
        EXPECT_FALSE(program->ended() || program->busy());
        EXPECT_TRUE(os.wait_cursors.empty() || !os.wait_cursors.back());
    }
    bool open(const char* window) {
        for (const std::string& name : shown_windows())
            if (name == window) return true;
        return false;
    }
};

// ---- Files that the user opens from the first window

struct RoadOfAFile {
    std::string name;
    int method = 0;
    std::string whole;  // of the kit, or of its own bytes below
    std::string ending;
    std::string bytes;  // "" = those of `whole`
    std::string kind;
    std::function<std::string(const std::string& path)> told;
    std::function<void(ReadError&)> load;
    std::function<std::string(ReadError&)> stays;  // what the failed load leaves as it was
    std::function<void(ReadError&, const std::string& name)> after;
    std::function<bool(ReadError&)> loaded;
};
std::ostream& operator<<(std::ostream& out, const RoadOfAFile& road) { return out << road.name; }

class ReadErrorOnRoad : public ReadError, public ::testing::WithParamInterface<RoadOfAFile> {
protected:
    void load(const std::string& path) {
        os.boxes.clear();
        os.opens = {path};
        GetParam().load(*this);
        EXPECT_TRUE(os.opens.empty());
    }
};

TEST_P(ReadErrorOnRoad, TellsTheFileTakesNothingOfItAndGoesOn) {
    const RoadOfAFile& road = GetParam();
    const std::string bytes = road.bytes.empty() ? bytes_of(kit(road.whole)) : road.bytes;
    const std::string name = "broken" + road.ending;
    const std::string path = folder.write(name, bytes);
    for (const std::size_t good : places_of_damage(bytes.size())) {
        SCOPED_TRACE(good);
        start(road.method);
        const std::string before = road.stays(*this);
        {
            const FailingRead disk(path, good);
            load(path);
            EXPECT_EQ(disk.failures(), 1);
        }
        expect_one_box(road.told(path), road.kind);
        expect_idle();
        EXPECT_TRUE(road.stays(*this) == before);
        road.after(*this, name);
        EXPECT_EQ(shown_windows(), std::vector<std::string>{forms().frm2_UP.shown ? "frm2_UP" : "frm1_Settings"});
        if (forms().frm2_UP.shown) click(forms().frm2_UP, "cmdBack");
        // The disk is well again.
        load(path);
        EXPECT_EQ(box_texts(), std::vector<std::string>{});
        EXPECT_TRUE(road.loaded(*this));
    }
}

std::function<void(ReadError&)> by_menu(const char* menu, int entry) {
    return [menu, entry](ReadError& t) { t.click(t.forms().frm1_Settings, menu, entry); };
}
std::function<void(ReadError&)> by_button(const char* option, const char* button) {
    return [option, button](ReadError& t) {
        t.click(t.forms().frm1_Settings, option);
        t.click(t.forms().frm1_Settings, button);
    };
}

void expect_empty_table(ReadError& t, const std::string& name) {
    EXPECT_EQ(t.rs().nIso, 1);
    EXPECT_EQ(t.rs().nSlices, 1);
    EXPECT_EQ(t.rs().DataFileName, name);
    for (int i = 1; i <= MaxIso; ++i) EXPECT_EQ(t.rs().IsoName(i) + t.rs().IsoElem(i) + t.rs().IsoCanon(i), "") << i;
    // An emptied cell reads as one count.
    EXPECT_EQ(t.rs().Sig(1, 1), 1);
    EXPECT_EQ(t.rs().Sig(1, 2), 1);
}

RoadOfAFile data_file(const std::string& name, int method, const std::string& ending, const std::string& whole,
                      const std::string& bytes, int isotopes) {
    return {name,
            method,
            whole,
            ending,
            bytes,
            "warning",
            retry_text,
            by_menu("mnuFile", 0),
            [](ReadError& t) { return t.kept_settings() + t.rs().STCfileName + std::to_string(t.rs().nSTC); },
            expect_empty_table,
            [isotopes](ReadError& t) { return t.rs().nIso == isotopes && t.rs().nSlices > 4; }};
}

// The settings, the measurement and its tables, as far as no road below is the one that loads them.
std::string measurement_and_tables(ReadError& t) {
    RunState& rs = t.rs();
    std::string all = t.kept_settings() + rs.DataFileName + std::to_string(rs.nSlices);
    for (int i = 1; i <= rs.nIso; ++i) all += rs.IsoCanon(i) + decimal(rs.Sig(i, rs.nSlices));
    for (int i = 1; i <= rs.nSTM; ++i) all += rs.STMiso(i) + decimal(rs.STMcps(i)) + decimal(rs.STMsd(i));
    for (int i = 1; i <= rs.nBLK; ++i) all += rs.BLKiso(i) + decimal(rs.BLKmean(i)) + decimal(rs.BLKsd(i));
    return all;
}

RoadOfAFile table(const std::string& name, const std::string& whole, const std::string& ending,
                  std::function<std::string(const std::string& path)> told, std::function<void(ReadError&)> load,
                  std::function<void(ReadError&, const std::string&)> after, std::function<bool(ReadError&)> loaded) {
    return {name,
            0,
            whole,
            ending,
            "",
            "warning",
            std::move(told),
            std::move(load),
            measurement_and_tables,
            std::move(after),
            std::move(loaded)};
}

RoadOfAFile defaults(const std::string& name, const char* control, int index) {
    return {name,
            1,
            "KolvAge-default-b01.def",
            ".def",
            "",
            "warning",
            retry_text,
            by_menu(control, index),
            measurement_and_tables,
            [](ReadError& t, const std::string& file) {
                EXPECT_EQ(t.rs().SettingsName, file);
                EXPECT_EQ(t.forms().frm1_Settings.lblUPset.text, "  " + file + "  ");
            },
            [](ReadError& t) { return t.rs().setNumSTD.whole() > 0; }};
}

std::vector<RoadOfAFile> roads_of_files() {
    // By the kit's profiles the heads of an XL file stand in line 2; a time column comes first.
    const std::string txt = "Time\tAl27\tSi29\r\n1\t2\t3\r\n2\t5\t6\r\n3\t8\t9\r\n4\t8\t9\r\n5\t8\t9\r\n";
    const std::string xl = "Export\r\nTime,Al27,Si29\r\n1,2,3\r\n2,5,6\r\n3,8,9\r\n4,8,9\r\n5,8,9\r\n";
    const auto stc_text = [](const std::string& path) {
        return named_in_settings_text(path, "Std Composition File", "STC");
    };
    const auto no_composition = [](ReadError& t, const std::string& file) {
        EXPECT_EQ(t.rs().nSTC, 0);
        EXPECT_EQ(t.rs().STCtitle, "");
        EXPECT_EQ(t.rs().STCfileName, file);
        EXPECT_EQ(t.forms().frm1_Settings.lblSTC.text, "  " + file + "  ");
    };
    const auto has_composition = [](ReadError& t) { return t.rs().nSTC > 20 && !t.rs().STCtitle.empty(); };
    const auto standard_named = [](ReadError& t, const std::string& file) {
        EXPECT_EQ(t.rs().STMfileName, file);
        EXPECT_EQ(t.forms().frm1_Settings.lblSTM.text, "  " + file + "  ");
        EXPECT_EQ(t.rs().nSTM, 25);
    };
    const auto has_standard = [](ReadError& t) { return t.rs().nSTM == 25; };
    return {
        data_file("measurement_csv", 0, ".csv", "nist-610-1.csv", "", 25),
        data_file("measurement_txt", 0, ".txt", "", txt, 2),
        data_file("measurement_xl", 0, ".xl", "", xl, 2),
        data_file("spot_csv", 1, ".csv", "001-std-91500.csv", "", 8),
        data_file("solution_xl", 3, ".xl", "0-FLEX-UT19-50.xl", "", 12),
        table("composition", "nist-srm-610.stc", ".stc", stc_text, by_menu("cmdLoadSTC", -1), no_composition,
              has_composition),
        table("composition_by_menu", "nist-srm-610.stc", ".stc", stc_text, by_menu("mnuFile", 1), no_composition,
              has_composition),
        table("standard", "nbs-610-2004-12-19-1.stm", ".stm", retry_text, by_menu("cmdLoadSTM", -1), standard_named,
              has_standard),
        table("interpolated_standard_by_menu", "nbs-610-2004-12-19-1.stm", ".sti", retry_text, by_menu("mnuFile", 2),
              standard_named, has_standard),
        table(
            "blank", "2004-12-19-a.blk", ".blk", retry_text, by_button("optBLKfile", "cmdLoadBLK"),
            [](ReadError& t, const std::string& file) {
                EXPECT_EQ(t.rs().BLKfileName, file);
                EXPECT_EQ(t.forms().frm1_Settings.lblBLK.text, "  " + file + "  ");
                EXPECT_EQ(t.rs().nBLK, 25);
            },
            [](ReadError& t) { return t.rs().nBLK == 25; }),
        RoadOfAFile{"measured_blank", 0, "", ".xl", "Blank\r\nTime,Al27,Si29\r\n1,2,3\r\n\r\n2,4,5\r\n\r\n", "fault",
                    [](const std::string& path) { return run_time_text("LoadBlankTable", path); },
                    by_button("optBLKfile", "cmdLoadBLK"),
                    [](ReadError& t) { return t.kept_settings() + t.rs().STCtitle + std::to_string(t.rs().nSTM); },
                    [](ReadError& t, const std::string& file) {
                        EXPECT_EQ(t.rs().BLKfileName, file);
                        EXPECT_EQ(t.rs().nBLK, 0);
                        EXPECT_EQ(t.rs().nBLKraw, 0);
                    },
                    [](ReadError& t) { return t.rs().nBLK == 2 && t.rs().BLKmean(2) == 4; }},
        table(
            "dwell_times", "quadrupole.dwe", ".dwe",
            [](const std::string& path) { return named_in_settings_text(path, "Dwell file", "DWE"); },
            by_button("optDWEfile", "cmdLoadDWE"),
            [](ReadError& t, const std::string& file) {
                EXPECT_EQ(t.rs().nDWE, 0);
                EXPECT_EQ(t.rs().DWEtitle, "");
                EXPECT_EQ(t.rs().DWEfileName, file);
                EXPECT_EQ(t.forms().frm1_Settings.lblDWE.text, "  " + file + "  ");
                // The settings take the dwell times from the file, and it has given none.
                EXPECT_EQ(t.rs().DwellFromFile, 1);
                EXPECT_TRUE(t.rs().Dwell(1).is_empty());
            },
            [](ReadError& t) { return t.rs().nDWE > 20 && !t.rs().DWEtitle.empty(); }),
        RoadOfAFile{"settings", 0, "Kolvar-default-h.set", ".set", "", "warning", settings_text,
                    by_menu("mnuSettings", 0), measurement_and_tables,
                    [](ReadError& t, const std::string& file) {
                        EXPECT_EQ(t.rs().SettingsName, file);
                        // The composition of the settings that still stand.
                        EXPECT_EQ(t.rs().STCfileName, t.kit("nist-srm-610.stc"));
                        EXPECT_GT(t.rs().nSTC, 20);
                    },
                    [](ReadError& t) { return t.rs().SettingsName == "broken.set" && t.rs().nSTC > 20; }},
        defaults("defaults_by_menu", "mnuDefault", 0),
        defaults("defaults_by_browse", "cmdChooseSET", -1),
        defaults("personal_defaults", "Command6", -1),
    };
}

INSTANTIATE_TEST_SUITE_P(Files, ReadErrorOnRoad, ::testing::ValuesIn(roads_of_files()),
                         [](const auto& road) { return road.param.name; });

// ---- The start

class ReadErrorAtStart : public ReadError {
protected:
    // The texts of the boxes of a start whose file breaks off at each of the places.
    void expect_told(int method, const std::string& file, const std::vector<std::string>& told,
                     const std::function<void()>& after) {
        const std::string path = folder.path(file);
        for (const std::size_t good : places_of_damage(bytes_of(path).size())) {
            SCOPED_TRACE(file + " " + std::to_string(good));
            const FailingRead disk(path, good);
            os.boxes.clear();
            program = std::make_unique<Program>(os, folder.path());
            program->start(method);
            EXPECT_GE(disk.failures(), 1);
            EXPECT_EQ(box_texts(), told);
            for (const auto& box : os.boxes) EXPECT_EQ(box.kind + box.title, "warningKOLVAR");
            EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
            expect_idle();
            after();
        }
    }
    void expect_all_but(const std::string& missing) {
        EXPECT_EQ(rs().nIso, missing == "csv" ? 1 : 25);
        EXPECT_EQ(rs().nSTC > 20, missing != "stc");
        EXPECT_EQ(rs().nSTM, missing == "stm" ? 0 : 25);
        EXPECT_EQ(rs().nBLK, missing == "blk" ? 0 : 25);
        EXPECT_EQ(rs().nDWE > 20, missing != "dwe");
        // A mean of three data can lie 1.155 s.d. from the farthest at the most; none of the levels reaches that.
        const double critical = field_get(rs(), "GrubbsP5", 3).val();
        EXPECT_EQ(critical > 1.1 && critical < 1.156, missing != "grubbs");
        EXPECT_EQ(field_get(rs(), "StudentT1", 1).val() > 0, missing != "student");
        EXPECT_EQ(rs().WorkPath, folder.path("start-kit"));
    }
};

TEST_F(ReadErrorAtStart, ATableOrReferenceFileIsToldAloneAndAllOthersAreLoaded) {
    struct File {
        std::string name, told, missing;
    };
    const std::vector<File> files{
        {"grubbs.dat", table_text("grubbs.dat"), "grubbs"},
        {"student.dat", table_text("student.dat"), "student"},
        {"start-kit/quadrupole.dwe", named_in_settings_text(kit("quadrupole.dwe"), "Dwell file", "DWE"), "dwe"},
        {"start-kit/nist-srm-610.stc", named_in_settings_text(kit("nist-srm-610.stc"), "Std Composition File", "STC"),
         "stc"},
        {"start-kit/2004-12-19-a.blk", retry_text(kit("2004-12-19-a.blk")), "blk"},
        {"start-kit/nbs-610-2004-12-19-1.stm", retry_text(kit("nbs-610-2004-12-19-1.stm")), "stm"},
        {"start-kit/example-1.csv", retry_text(kit("example-1.csv")), "csv"}};
    for (const File& file : files) expect_told(0, file.name, {file.told}, [&] { expect_all_but(file.missing); });
}

// Without settings nobody has named the dwell times and the composition, nor the lines of a data file.
TEST_F(ReadErrorAtStart, SettingsAreToldAndTheFilesTheyNameFollow) {
    expect_told(0, "start-kit/Kolvar-default-h.set",
                {settings_text(kit("Kolvar-default-h.set")), named_in_settings_text("", "Dwell file", "DWE"),
                 named_in_settings_text("", "Std Composition File", "STC"), retry_text(kit("example-1.csv"))},
                [&] {
                    EXPECT_EQ(rs().setCSVisoLINE.text() + rs().setISnum.text() + rs().IS1name, "");
                    EXPECT_EQ(rs().nBLK, 25);
                    EXPECT_EQ(rs().nSTM, 25);
                });
}

TEST_F(ReadErrorAtStart, TheStartPathIsToldAndEachFileOfTheKitWithItsOwnBox) {
    expect_told(
        0, "start_path",
        {start_path_text("start_path"), settings_text("/Kolvar-default-h.set"),
         named_in_settings_text("", "Dwell file", "DWE"), named_in_settings_text("", "Std Composition File", "STC"),
         retry_text("/2004-12-19-a.blk"), retry_text("/nbs-610-2004-12-19-1.stm"), retry_text("/example-1.csv")},
        [&] { EXPECT_EQ(rs().WorkPath, ""); });
    expect_told(1, "start_path_KolvAGE",
                {start_path_text("start_path_KolvAGE"), retry_text("/KolvAge-default-b01.def")},
                [&] { EXPECT_EQ(rs().WorkPath, ""); });
    expect_told(3, "start_path_KolvAGE",
                {start_path_text("start_path_KolvAGE"), retry_text("/KolvAge-default-b01.def"),
                 retry_text("/0-FLEX-UT19-50.xl")},
                [&] { EXPECT_EQ(rs().WorkPath, ""); });
}

TEST_F(ReadErrorAtStart, DefaultsAndExamplesOfTheOtherPathsAreTold) {
    // The example of ages is only opened when the defaults say how.
    expect_told(1, "start-kit/KolvAge-default-b01.def", {retry_text(kit("KolvAge-default-b01.def"))}, [&] {
        EXPECT_EQ(rs().setNumSTD.text(), "");
        EXPECT_EQ(rs().Std_Name(1).text(), "");
        EXPECT_EQ(rs().DataFileName, "");
    });
    expect_told(1, "start-kit/test-01-no-Hg-235-232.csv", {retry_text(kit("test-01-no-Hg-235-232.csv"))}, [&] {
        EXPECT_EQ(rs().nIso, 1);
        EXPECT_EQ(rs().ColU238, 0);
    });
    expect_told(3, "start-kit/0-FLEX-UT19-50.xl", {retry_text(kit("0-FLEX-UT19-50.xl"))}, [&] {
        EXPECT_EQ(rs().Method, 3);
        EXPECT_EQ(rs().nIso, 1);
    });
}

// ---- Windows beside the first

TEST_F(ReadError, TheReadMeIsNotShownInPart) {
    const std::string path = folder.write("kol-read-me.riz", "First line\r\nSecond line\r\n");
    start(0);
    {
        const FailingRead disk(path, 14);
        click(forms().frm1_Settings, "hlp1", 1);
    }
    expect_one_box("The help document was not found:\n" + path, "warning");
    EXPECT_FALSE(open("frmHelp1"));
    EXPECT_EQ(forms().frmHelp1.txt1.text, "");
    click(forms().frm1_Settings, "hlp1", 1);
    EXPECT_TRUE(open("frmHelp1"));
}

TEST_F(ReadError, ThePreviewOfTheImportSaysThatTheFileCannotBeRead) {
    start(0);
    {
        const FailingRead disk(kit("example-1.csv"), 5000);
        click(forms().frm1_Settings, "mnuSettings", 2);
        EXPECT_EQ(disk.failures(), 1);
    }
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(forms().frm_InputForm.lblFile.text, "The file cannot be read: " + kit("example-1.csv"));
    EXPECT_EQ(forms().frm_InputForm.FlexGrid1.rows, 0);
}

// ---- Batches

TEST_F(ReadError, AMasterFileLeavesTheListInWorkAndTheChoiceOfThePath) {
    write_day("0005/0000/0002/0000", five());
    for (const std::size_t good : places_of_damage(bytes_of(day("0-day.msf")).size())) {
        SCOPED_TRACE(good);
        start(1);
        rs().setFormer_Sel = 0;
        {
            const FailingRead disk(day("0-day.msf"), good);
            open_master();
        }
        expect_one_box(run_time_text("ReadMaster", day("0-day.msf")), "fault");
        EXPECT_EQ(rs().SeqMode.text(), "");
        EXPECT_EQ(rs().SeqCount, 0);
        EXPECT_EQ(rs().SeqPhase, 0);
        EXPECT_EQ(rs().MasterName + rs().MasterPath + rs().MasterDir, "");
        EXPECT_EQ(rs().MasterRecs(1, 0).text(), "");
        EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
        expect_idle();
        os.boxes.clear();
        open_master();
        EXPECT_TRUE(os.boxes.empty());
        EXPECT_TRUE(form().shown);
        EXPECT_EQ(rs().SeqCount, 5);
    }
}

TEST_F(ReadError, ASecondMasterFileLeavesTheFirstInWork) {
    write_day("0005/0000/0002/0000", five());
    start(1);
    rs().setFormer_Sel = 0;
    open_master();
    const std::string other = folder.write("day/1-day.msf", header("0001/0000/0001/0001") + record({"z.csv", true}, 1));
    click(form(), "cmdBack");
    ASSERT_TRUE(forms().frm1_Settings.shown);
    {
        const FailingRead disk(other, 100);
        open_master(other);
    }
    expect_one_box(run_time_text("ReadMaster", other), "fault");
    EXPECT_EQ(rs().SeqCount, 5);
    EXPECT_EQ(rs().SeqStdCount, 2);
    EXPECT_EQ(rs().SeqPhase, 1);
    EXPECT_EQ(rs().MasterPath, day("0-day.msf"));
    EXPECT_EQ(rs().MasterRecs(5, 0).text(), "e.csv");
}

// Neither the limits nor the results of the spot before can be saved as those of a file that was not read.
TEST_F(ReadError, AFileOfTheListIsToldAndTheWalkGoesOnOverIt) {
    write_day("0005/0000/0002/0000", five());
    for (const std::size_t good : places_of_damage(bytes_of(day("d.csv")).size())) {
        SCOPED_TRACE(good);
        start(1);
        rs().setFormer_Sel = 0;
        open_master();
        next();
        ASSERT_EQ(file(), "b.csv");
        mark_all();
        ASSERT_TRUE(can_save());
        const int slices = rs().nSlices;
        {
            const FailingRead disk(day("d.csv"), good);
            next();
            EXPECT_EQ(disk.failures(), 1);
        }
        expect_one_box(retry_text(day("d.csv")), "warning");
        expect_idle();
        EXPECT_EQ(file(), "d.csv");
        EXPECT_EQ(rs().SeqPos, 4);
        EXPECT_EQ(rs().nIso, 1);
        EXPECT_EQ(rs().nSlices, 1);
        EXPECT_EQ(rs().IsoName(1) + rs().IsoCanon(1), "");
        EXPECT_EQ(rs().Mean68, 0);
        EXPECT_EQ(rs().SelLow.text() + rs().SelUpp.text() + rs().BlkLow.text() + rs().BlkUpp.text(), "");
        EXPECT_FALSE(can_save());
        EXPECT_TRUE(form().shown);
        EXPECT_EQ(rs().SeqStdDone, 0);
        os.boxes.clear();
        previous();
        EXPECT_EQ(file(), "b.csv");
        EXPECT_TRUE(os.boxes.empty()) << os.boxes.front().text;
        next();
        EXPECT_EQ(file(), "d.csv");
        EXPECT_EQ(rs().nSlices, slices);
    }
}

TEST_F(ReadError, AFileOfASimpleSequenceIsTold) {
    for (const char* name : {"01-STD.csv", "02-STD.csv"}) table(name);
    start(1);
    rs().setFormer_Sel = 0;
    rs().setSTDabbr = "STD";
    program->shell().open(forms().frm_ChoseDir);
    ProgramOnKit::choose(forms().frm_ChoseDir, "Dir1", folder.path("day"));
    click(forms().frm_ChoseDir, "cmdOK");
    {
        const FailingRead disk(day("02-STD.csv"), 100);
        click(forms().frm_ChoseDir, "cmdProc");
    }
    expect_one_box(retry_text(day("02-STD.csv")), "warning");
    EXPECT_EQ(rs().nIso, 1);
    EXPECT_EQ(rs().nSlices, 1);
    expect_idle();
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
}

}  // namespace
}  // namespace kolvar::test
