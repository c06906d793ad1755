// What a full disk, a file that vanishes or a dialog that is cancelled leaves behind, on every road that saves or
// loads: the file is the former one or the new one and nothing between, the user is told, and the next try succeeds.
#include <functional>
#include <ostream>
#include <utility>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

namespace fs = std::filesystem;

class OnRoads : public ProgramOnKit {
protected:
    // A program that has just been started, in the same folder.
    void start(int method) {
        program = std::make_unique<Program>(os, folder.path());
        program->start(method);
        os.boxes.clear();
    }
    void click_first(const char* control, int index = -1) { click(forms().frm1_Settings, control, index); }
    void open_by_menu(const char* menu, int entry, const std::string& path) {
        os.opens = {path};
        click_first(menu, entry);
    }
    void mark_on(Form& form, int button, int shift, double slice) {
        Event event = event_of(EventKind::press, form, "pict1");
        event.button = button;
        event.shift = shift;
        event.x = form.find("pict1")->width * slice / rs().nSlices;
        program->dispatch(event);
        event.kind = EventKind::release;
        program->dispatch(event);
    }
    void mark_both(Form& form) {
        mark_on(form, 1, 1, 5);
        mark_on(form, 2, 1, 45);
        mark_on(form, 1, 0, 60);
        mark_on(form, 2, 0, 100);
    }
    void go_to_results() {
        start(0);
        click_first("cmdOK");
        click_first("cmdNext");
        mark_both(forms().frm2_Time);
        click(forms().frm2_Time, "cmdNext");
        click(forms().frm3_Matrix, "cmdNext");
        ASSERT_TRUE(forms().frm4_Output.shown);
        os.boxes.clear();
    }
    void go_to_averages(const char* mode) {
        start(0);
        open_by_menu("mnuFile", 0, kit("nist-610-1.csv"));
        click_first(mode);
        click_first("cmdOK");
        mark_both(forms().frm2_Time);
        click(forms().frm2_Time, "cmdNext");
        ASSERT_TRUE(forms().frm3_Matrix.shown);
        os.boxes.clear();
    }
    void go_to_ratios(int method) {
        start(method);
        open_by_menu("mnuFile", 0, kit(method == 1 ? "001-std-91500.csv" : "0-FLEX-UT19-50.xl"));
        ASSERT_TRUE(forms().frm2_UP.shown);
        mark_both(forms().frm2_UP);
        os.boxes.clear();
    }
};

class Saving;
struct RoadThatSaves {
    std::string name;
    std::string target;     // below the folder of the test
    bool appends = false;   // at the end of the file; no dialog, no question
    bool asks_name = true;  // a dialog asks for the name
    std::string told;       // the box of a failure; "" = none, the window simply stays
    std::string whole_has;  // stands in every whole file
    std::function<void(Saving&)> go, save;
};
std::ostream& operator<<(std::ostream& out, const RoadThatSaves& road) { return out << road.name; }

class Saving : public OnRoads, public ::testing::WithParamInterface<RoadThatSaves> {
public:
    using OnRoads::click;
    using OnRoads::click_first;
    using OnRoads::forms;
    using OnRoads::go_to_averages;
    using OnRoads::go_to_ratios;
    using OnRoads::go_to_results;
    using OnRoads::start;

protected:
    static constexpr std::size_t endless = static_cast<std::size_t>(-1);
    static constexpr const char* former = "the former file\r\n";

    [[nodiscard]] std::string target() const { return folder.path(GetParam().target); }
    [[nodiscard]] std::string bytes() const { return bytes_of(target()); }
    void save() {
        os.saves.assign(GetParam().asks_name ? 1 : 0, target());
        os.yes_or_no = {true};
        GetParam().save(*this);
        os.yes_or_no.clear();
    }
    // The program stands again before the save, over a former file.
    void stand_before_the_save() {
        os.disk_room = endless;
        GetParam().go(*this);
        folder.write(GetParam().target, former);
        os.boxes.clear();
    }
    // The texts of the boxes, without the question about overwriting.
    [[nodiscard]] std::string told() const {
        std::string all;
        for (const auto& box : os.boxes)
            if (box.text != "Overwrite existing file?") all += box.text;
        return all;
    }
    void expect_former_and_told(const std::string& trouble) {
        EXPECT_EQ(bytes(), former) << trouble;
        const std::string text = told();
        if (GetParam().told.empty())
            EXPECT_EQ(text, "") << trouble;
        else
            EXPECT_NE(text.find(GetParam().told), std::string::npos) << trouble << ": " << text;
        EXPECT_FALSE(program->ended());
        EXPECT_FALSE(program->busy());
        EXPECT_TRUE(os.wait_cursors.empty() || !os.wait_cursors.back());
    }
};

TEST_P(Saving, AFailureLeavesTheFormerFileAndTheNextTrySucceeds) {
    const RoadThatSaves& road = GetParam();
    stand_before_the_save();
    save();
    ASSERT_EQ(told(), "");
    const std::string whole = bytes();
    ASSERT_NE(whole.find(road.whole_has), std::string::npos);
    ASSERT_NE(whole, former);
    const std::size_t written = whole.size() - (road.appends ? std::string(former).size() : 0);

    for (const std::size_t room : {std::size_t{0}, std::size_t{1}, written / 2, written - 1}) {
        stand_before_the_save();
        os.disk_room = room;
        save();
        expect_former_and_told("room for " + std::to_string(room));
        os.disk_room = written;
        save();
        EXPECT_EQ(bytes(), whole) << room;
    }
    stand_before_the_save();
    fs::remove(target());
    fs::create_directories(target() + "/in the way");
    save();
    EXPECT_NE(told() == "", !road.told.empty());
    EXPECT_TRUE(fs::is_directory(target()));
    fs::remove_all(target());
    folder.write(road.target, former);
    save();
    EXPECT_EQ(bytes(), whole);
}

TEST_P(Saving, ARenameThatIsRefusedLeavesTheFormerFile) {
    if (GetParam().appends) return;  // nothing is renamed
    stand_before_the_save();
    save();
    const std::string whole = bytes();
    stand_before_the_save();
    os.refused_rename = target();
    save();
    os.refused_rename.clear();
    expect_former_and_told("rename");
    save();
    EXPECT_EQ(bytes(), whole);
}

TEST_P(Saving, ACancelledDialogAndANoWriteNothing) {
    if (!GetParam().asks_name) return;
    stand_before_the_save();
    os.saves = {std::nullopt};
    GetParam().save(*this);
    EXPECT_EQ(bytes(), former);
    os.saves = {target()};
    os.yes_or_no = {false};
    GetParam().save(*this);
    EXPECT_EQ(bytes(), former);
    EXPECT_EQ(told(), "");
    save();
    EXPECT_NE(bytes().find(GetParam().whole_has), std::string::npos);
}

constexpr const char* not_saved = "Error occurred while trying to save file, please retry.";

std::vector<RoadThatSaves> roads_that_save() {
    return {
        RoadThatSaves{"results", "results.txt", false, true, "", "* * *  KOLVAR  -  E",
                      [](Saving& t) { t.go_to_results(); },
                      [](Saving& t) { t.click(t.forms().frm4_Output, "cmdSave"); }},
        RoadThatSaves{"standard_measurement", "made.stm", false, true, "", "\"Si29\",",
                      [](Saving& t) { t.go_to_averages("optCreatSTM"); },
                      [](Saving& t) { t.click(t.forms().frm3_Matrix, "cmdNext"); }},
        RoadThatSaves{"blank", "made.blk", false, true, "", "\"Si29\",",
                      [](Saving& t) { t.go_to_averages("optCreatBLK"); },
                      [](Saving& t) { t.click(t.forms().frm3_Matrix, "cmdNext"); }},
        RoadThatSaves{"settings", "made.set", false, true, not_saved, "\"setCPS_IS\"", [](Saving& t) { t.start(0); },
                      [](Saving& t) {
                          t.click_first("cmdModiSet");
                          t.click(t.forms().frm_SetIS, "cmdSaveAs");
                      }},
        RoadThatSaves{"defaults", "made.def", false, true, not_saved, "\"Method\"", [](Saving& t) { t.start(1); },
                      [](Saving& t) {
                          t.click_first("mnuDefault", 1);
                          t.click(t.forms().frm_SetUP, "cmdSaveAs");
                      }},
        RoadThatSaves{"flex_defaults", "made.def", false, true, not_saved, "\"Method\"",
                      [](Saving& t) { t.go_to_ratios(3); },
                      [](Saving& t) {
                          t.click(t.forms().frm2_UP, "cmdSett");
                          t.click(t.forms().frm_Set_FLEX, "cmdSaveAs");
                      }},
        RoadThatSaves{"start_path", "start_path", false, false, "Run-time error: ", "start-kit",
                      [](Saving& t) { t.start(0); },
                      [](Saving& t) {
                          t.click_first("mnuSettings", 3);
                          t.click(t.forms().frm_ChoseDir, "cmdSave");
                      }},
        RoadThatSaves{"quick_results", "0_quick-results", true, false,
                      "Error encountered while trying to save the Quick Result file. Maybe there is a 'Permission "
                      "denided error' because",
                      "KOLVAR - Quick Export of average concentrations [ppm]\t", [](Saving& t) { t.go_to_results(); },
                      [](Saving& t) { t.click(t.forms().frm4_Output, "cmdAppQuick"); }},
        RoadThatSaves{"summary", "start-kit/0_summary", true, false, "Run-time error: ", "001-std-91500.csv\t",
                      [](Saving& t) { t.go_to_ratios(1); }, [](Saving& t) { t.click(t.forms().frm2_UP, "cmdApp"); }},
        RoadThatSaves{"flex_summary", "start-kit/0_summary", true, false, "Run-time error: ", "0-FLEX-UT19-50.xl\t",
                      [](Saving& t) { t.go_to_ratios(3); }, [](Saving& t) { t.click(t.forms().frm2_UP, "cmdApp"); }}};
}

INSTANTIATE_TEST_SUITE_P(Roads, Saving, ::testing::ValuesIn(roads_that_save()),
                         [](const auto& road) { return road.param.name; });

// ---- Loads

class Loading;
struct RoadThatLoads {
    std::string name;
    int method = 0;
    std::string good;  // of the kit
    std::string told;  // the box of a failure
    std::function<void(Loading&)> load;
    std::function<bool(Loading&)> loaded;
};
std::ostream& operator<<(std::ostream& out, const RoadThatLoads& road) { return out << road.name; }

class Loading : public OnRoads, public ::testing::WithParamInterface<RoadThatLoads> {
public:
    using OnRoads::click;
    using OnRoads::click_first;
    using OnRoads::forms;
    using OnRoads::rs;

protected:
    void load(const std::string& path) {
        os.boxes.clear();
        os.opens = {path};
        GetParam().load(*this);
        EXPECT_TRUE(os.opens.empty());
    }
};

TEST_P(Loading, AFileThatCannotBeReadIsToldAndTheNextOneIsLoaded) {
    const RoadThatLoads& road = GetParam();
    const std::string ending = fs::path(road.good).extension().string();
    const std::string a_folder = folder.path("folder" + ending);
    fs::create_directories(a_folder);
    const std::string whole = bytes_of(kit(road.good));
    const std::size_t some_line_ends = whole.rfind('\n', whole.size() / 3) + 1;
    const std::string cut = folder.write("cut" + ending, whole.substr(0, some_line_ends) + "\"Si");
    for (const std::string& bad : {folder.path("none" + ending), a_folder, cut}) {
        if (bad == cut && ending != ".stc" && ending != ".stm" && ending != ".blk" && ending != ".dwe") continue;
        start(road.method);
        load(bad);
        ASSERT_FALSE(os.boxes.empty()) << bad;
        EXPECT_NE(os.boxes.front().text.find(road.told), std::string::npos) << os.boxes.front().text;
        EXPECT_EQ(os.boxes.front().kind, "warning");
        EXPECT_FALSE(program->ended() || program->busy());
        // The two other paths go on to their screen, empty as it then is.
        if (forms().frm2_UP.shown) click(forms().frm2_UP, "cmdBack");
        ASSERT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"}) << bad;
        load(kit(road.good));
        EXPECT_TRUE(os.boxes.empty()) << os.boxes.front().text;
        EXPECT_TRUE(road.loaded(*this)) << bad;
    }
}

TEST_P(Loading, ACancelledDialogChangesNothing) {
    const RoadThatLoads& road = GetParam();
    start(road.method);
    load(kit(road.good));
    ASSERT_TRUE(road.loaded(*this));
    if (forms().frm2_UP.shown) click(forms().frm2_UP, "cmdBack");
    load("");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_TRUE(road.loaded(*this));
    EXPECT_TRUE(forms().frm1_Settings.shown);
}

constexpr const char* not_loaded = "Error occurred while trying to load file: ";

RoadThatLoads by_menu(const std::string& name, int method, const std::string& good, const char* menu, int entry,
                      std::function<bool(Loading&)> loaded) {
    return {
        name, method, good, not_loaded, [menu, entry](Loading& t) { t.click_first(menu, entry); }, std::move(loaded)};
}

std::vector<RoadThatLoads> roads_that_load() {
    return {
        by_menu("measurement", 0, "nist-610-1.csv", "mnuFile", 0,
                [](Loading& t) { return t.rs().DataFileName == "nist-610-1.csv" && t.rs().nSlices > 100; }),
        by_menu("composition", 0, "nist-srm-610.stc", "mnuFile", 1, [](Loading& t) { return t.rs().nSTC > 20; }),
        by_menu("standard", 0, "nbs-610-2004-12-19-1.stm", "mnuFile", 2, [](Loading& t) { return t.rs().nSTM > 20; }),
        by_menu("settings", 0, "Kolvar-default-h.set", "mnuSettings", 0,
                [](Loading& t) { return t.rs().SettingsName == "Kolvar-default-h.set" && t.rs().nSTC > 20; }),
        RoadThatLoads{"blank", 0, "2004-12-19-a.blk", not_loaded,
                      [](Loading& t) {
                          t.click_first("optBLKfile");
                          t.click_first("cmdLoadBLK");
                      },
                      [](Loading& t) { return t.rs().nBLK > 20; }},
        RoadThatLoads{"dwell_times", 0, "quadrupole.dwe", not_loaded,
                      [](Loading& t) {
                          t.click_first("optDWEfile");
                          t.click_first("cmdLoadDWE");
                      },
                      [](Loading& t) { return t.rs().nDWE > 20; }},
        by_menu("spot", 1, "001-std-91500.csv", "mnuFile", 0,
                [](Loading& t) { return t.rs().DataFileName == "001-std-91500.csv" && t.rs().nSlices > 100; }),
        by_menu("defaults", 1, "KolvAge-default-b01.def", "mnuDefault", 0,
                [](Loading& t) {
                    return t.rs().SettingsName == "KolvAge-default-b01.def" && t.rs().setNumSTD.whole() > 0;
                }),
        by_menu("solution", 3, "0-FLEX-UT19-50.xl", "mnuFile", 0,
                [](Loading& t) { return t.rs().DataFileName == "0-FLEX-UT19-50.xl" && t.rs().nSlices > 100; })};
}

INSTANTIATE_TEST_SUITE_P(Roads, Loading, ::testing::ValuesIn(roads_that_load()),
                         [](const auto& road) { return road.param.name; });

using EmptyClipboard = OnRoads;

TEST_F(EmptyClipboard, IsToldOnTheFirstPathAndTheNextTableIsTaken) {
    start(0);
    os.clip = "";
    click_first("cmdPaste");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "There are no numbers on the clipboard.");
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    os.clip = "Al27\tSi29\r\n1\t2\r\n3\t4\r\n5\t6\r\n";
    os.boxes.clear();
    click_first("cmdPaste");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs().DataFileName, " pasted from clipboard ");
}

// ---- A batch

class BatchRoad : public OnRoads {
protected:
    static constexpr const char* not_written = "Error occurred while trying to save the master file, please retry.";

    // The list of the kit's spots stands in its window, standards marked by their names.
    void go_to_list() {
        start(1);
        click_first("cmdSequential");
        click_first("cmdCreate");
        ASSERT_TRUE(forms().frm_FileList.shown);
        Event folder_chosen = event_of(EventKind::choose, forms().frm_FileList, "Dir1");
        folder_chosen.text = folder.path("spots");
        program->dispatch(folder_chosen);
        click(forms().frm_FileList, "cmdAccept");
        os.boxes.clear();
    }
    void save_list() {
        os.saves = {master()};
        click(forms().frm_FileList, "cmdSave");
    }
    // The spots of the kit in a folder of their own.
    void lay_out_spots() {
        fs::create_directories(folder.path("spots"));
        for (const auto& file : fs::directory_iterator(folder.path("start-kit")))
            if (file.path().filename().string().starts_with("0") && file.path().extension() == ".csv")
                fs::copy_file(file.path(), folder.path("spots/" + file.path().filename().string()));
    }
    [[nodiscard]] std::string master() const { return folder.path("spots/0-spots.msf"); }
};

TEST_F(BatchRoad, AListThatCannotBeSavedIsToldAndSavedByTheNextTry) {
    lay_out_spots();
    go_to_list();
    save_list();
    ASSERT_TRUE(os.boxes.empty()) << os.boxes.front().text;
    const std::string whole = bytes_of(master());
    ASSERT_NE(whole.find("001-std-91500.csv"), std::string::npos);
    for (const std::size_t room : {std::size_t{0}, std::size_t{1}, whole.size() / 2, whole.size() - 1}) {
        fs::remove(master());
        os.boxes.clear();
        os.disk_room = room;
        save_list();
        EXPECT_EQ(box_texts(), std::vector<std::string>{not_written}) << room;
        EXPECT_FALSE(fs::exists(master()));
        EXPECT_TRUE(forms().frm_FileList.shown);
        os.disk_room = whole.size();
        save_list();
        EXPECT_EQ(bytes_of(master()), whole) << room;
    }
    fs::remove(master());
    os.boxes.clear();
    os.disk_room = static_cast<std::size_t>(-1);
    os.saves = {std::nullopt};
    click(forms().frm_FileList, "cmdSave");
    EXPECT_FALSE(fs::exists(master()));
    os.refused_rename = master();
    save_list();
    EXPECT_EQ(box_texts(), std::vector<std::string>{not_written});
    EXPECT_FALSE(fs::exists(master()));
    os.refused_rename.clear();
    save_list();
    EXPECT_EQ(bytes_of(master()), whole);
}

TEST_F(BatchRoad, ALineThatCannotBeSavedStaysInWorkUntilItIs) {
    lay_out_spots();
    go_to_list();
    save_list();
    const std::string former = bytes_of(master());
    for (const char* trouble : {"full", "half", "rename"}) {
        folder.write("spots/0-spots.msf", former);
        start(1);
        os.opens = {master()};
        click_first("cmdOpenMaster");
        ASSERT_TRUE(forms().frm2_UP.shown);
        mark_both(forms().frm2_UP);
        ASSERT_TRUE(forms().frm2_UP.cmdSaveAnd(1).enabled);
        os.boxes.clear();
        const std::string file = rs().DataFileName;
        os.disk_room = *trouble == 'f' ? 0 : *trouble == 'h' ? former.size() / 2 : static_cast<std::size_t>(-1);
        if (*trouble == 'r') os.refused_rename = master();
        click(forms().frm2_UP, "cmdSaveAnd", 1);
        EXPECT_EQ(box_texts(), std::vector<std::string>{not_written}) << trouble;
        EXPECT_EQ(bytes_of(master()), former) << trouble;
        EXPECT_EQ(rs().DataFileName, file);
        EXPECT_EQ(rs().SeqStdDone, 0);
        os.disk_room = static_cast<std::size_t>(-1);
        os.refused_rename.clear();
        os.boxes.clear();
        click(forms().frm2_UP, "cmdSaveAnd", 1);
        EXPECT_TRUE(os.boxes.empty()) << os.boxes.front().text;
        EXPECT_NE(bytes_of(master()), former) << trouble;
        EXPECT_EQ(rs().SeqStdDone, 1);
        EXPECT_NE(rs().DataFileName, file);
    }
}

TEST_F(BatchRoad, AMasterFileThatCannotBeReadIsToldAndTheNextOneIsOpened) {
    lay_out_spots();
    go_to_list();
    save_list();
    const std::string whole = bytes_of(master());
    fs::create_directories(folder.path("spots/a.msf"));
    const std::string cut = folder.write("spots/cut.msf", whole.substr(0, whole.size() / 2) + "\"");
    for (const std::string& bad : {folder.path("spots/none.msf"), folder.path("spots/a.msf"), cut}) {
        start(1);
        os.opens = {bad};
        click_first("cmdOpenMaster");
        ASSERT_EQ(os.boxes.size(), 1U) << bad;
        EXPECT_EQ(os.boxes[0].kind, "fault");
        EXPECT_NE(os.boxes[0].text.find(bad), std::string::npos) << os.boxes[0].text;
        EXPECT_FALSE(program->ended() || program->busy());
        os.boxes.clear();
        os.opens = {""};
        click_first("cmdOpenMaster");
        EXPECT_TRUE(os.boxes.empty());
        os.opens = {master()};
        click_first("cmdOpenMaster");
        EXPECT_TRUE(forms().frm2_UP.shown) << bad;
        EXPECT_TRUE(os.boxes.empty());
        EXPECT_EQ(rs().SeqCount, 12);
    }
}

}  // namespace
}  // namespace kolvar::test
