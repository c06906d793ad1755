// Each control of the settings window alone: which lines of the saved file it changes, and to what.
#include <functional>
#include <ostream>
#include <sstream>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

struct Line {
    std::size_t number;  // from 1
    const char* value;
    const char* key;
};
struct Change {
    const char* what;
    std::function<void(Program&)> act;
    std::vector<Line> lines;  // all others stay as in the kit's file
};
void PrintTo(const Change& change, std::ostream* out) { *out << change.what; }

using Act = std::function<void(Program&)>;

Event in_window(EventKind kind, const char* control, int index) {
    Event event;
    event.kind = kind;
    event.window = "frm_SetIS";
    event.control = control;
    event.index = index;
    return event;
}
Act click(const char* control, int index = -1) {
    return [=](Program& program) { program.dispatch(in_window(EventKind::click, control, index)); };
}
Act type(const char* control, const char* text, int index = -1) {
    return [=](Program& program) {
        Event event = in_window(EventKind::type, control, index);
        event.text = text;
        program.dispatch(event);
    };
}
Act choose(const char* control, const char* item, int index = -1) {
    return [=](Program& program) {
        Event event = in_window(EventKind::choose, control, index);
        event.text = item;
        program.dispatch(event);
    };
}
Act both(const Act& first, const Act& second) {
    return [=](Program& program) {
        first(program);
        second(program);
    };
}

std::vector<std::string> lines_of(const std::string& bytes) {
    std::vector<std::string> lines;
    std::istringstream in(bytes);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

class OneControl : public ProgramOnKit, public ::testing::WithParamInterface<Change> {
protected:
    // Which options and boxes are on.
    std::vector<std::string> choices() {
        std::vector<std::string> on;
        for (const Control* control : forms().frm_SetIS.controls)
            if ((control->kind == ControlKind::option || control->kind == ControlKind::check) && control->on())
                on.push_back(control->address());
        return on;
    }
};

TEST_P(OneControl, ChangesItsLinesAndNoOthers) {
    std::vector<std::string> expected = lines_of(folder.read("start-kit/Kolvar-default-h.set"));
    ASSERT_EQ(expected.size(), 183U);
    expected[28] = "\"20\",\"setIS_Dwell\"\r";  // a field of text is saved as text
    for (const auto& [number, value, key] : GetParam().lines)
        expected[number - 1] = std::string(value) + ",\"" + key + "\"\r";

    program->start(0);
    ProgramOnKit::click(forms().frm1_Settings, "cmdModiSet");
    GetParam().act(*program);
    os.saves.emplace_back(folder.path("out.set"));
    ProgramOnKit::click(forms().frm_SetIS, "cmdSaveAs");
    EXPECT_EQ(lines_of(folder.read("out.set")), expected);
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});

    // When the file is in use again the window shows the choices that were saved.
    const std::vector<std::string> left = choices();
    os.opens = {kit("Kolvar-default-h.set"), folder.path("out.set")};
    ProgramOnKit::click(forms().frm1_Settings, "mnuSettings", 0);
    ProgramOnKit::click(forms().frm1_Settings, "mnuSettings", 0);
    ProgramOnKit::click(forms().frm1_Settings, "cmdModiSet");
    EXPECT_EQ(choices(), left);
}

const Change changes[] = {
    {"nothing", [](Program&) {}, {}},
    {"txtAbbrSTD", type("txtAbbrSTD", "glass"), {{21, R"("glass")", "setSTDabbr_IS"}}},
    {"txtAbbrSTD emptied", type("txtAbbrSTD", ""), {{21, R"("")", "setSTDabbr_IS"}}},
    {"optCPSinData(0)", click("optCPSinData", 0), {{22, "0", "setCPS_IS"}}},
    {"optBLK_IS(1)", click("optBLK_IS", 1), {{23, "0", "setBLK_IS"}}},
    {"txtSTCpath", type("txtSTCpath", "a.stc"), {{24, R"("a.stc")", "setSTCfile_IS"}}},
    {"txtSTMpath", type("txtSTMpath", "a.stm"), {{25, R"("a.stm")", "setSTMfile_IS"}}},
    {"chkFormerSel", click("chkFormerSel"), {{26, "0", "setFormer_Sel_IS"}}},
    {"optDWE(0)", click("optDWE", 0), {{27, "0", "setDwellFromFile_IS"}}},
    {"txtDwePath", type("txtDwePath", "a.dwe"), {{28, R"("a.dwe")", "setDWEfile_IS"}}},
    {"txtDWEtime", type("txtDWEtime", "10"), {{29, R"("10")", "setIS_Dwell"}}},
    {"opt2IS", click("opt2IS"), {{30, "2", "setISnum"}}},
    {"opt3IS", click("opt3IS"), {{30, "3", "setISnum"}}},
    {"comboIso", choose("comboIso", "U238"), {{31, R"("U238")", "setIntSta"}}},
    {"comboIso blank", type("comboIso", ""), {{31, R"("")", "setIntSta"}}},
    {"comboIso with a name that no column has", type("comboIso", "Xe131"), {}},
    {"txtISppm1", type("txtISppm1", "1.5"), {{32, "1.5", "setCcIntSta"}}},
    {"txtISppm1 without a number", type("txtISppm1", "ppm 5"), {{32, "0", "setCcIntSta"}}},
    {"txtISppm1 emptied", type("txtISppm1", ""), {{32, "0", "setCcIntSta"}}},
    {"txtISerr1", type("txtISerr1", "1,5"), {{33, "1", "setErIntSta"}}},
    {"comboIso2",
     both(click("opt2IS"), choose("comboIso2", "Li7")),
     {{30, "2", "setISnum"}, {34, R"("Li7")", "setIntSta2"}}},
    {"txtISppm2", type("txtISppm2", "2E2"), {{35, "200", "setCcIntSta2"}}},
    {"txtISerr2", type("txtISerr2", "-3"), {{36, "-3", "setErIntSta2"}}},
    {"txtMass2", type("txtMass2", "300"), {{37, "300", "setMas2"}}},
    {"comboIso3", choose("comboIso3", "Mg25"), {{38, R"("Mg25")", "setIntSta3"}}},
    {"txtISppm3", type("txtISppm3", "7 8"), {{39, "7", "setCcIntSta3"}}},
    {"txtISerr3", type("txtISerr3", "0.001x"), {{40, "0.001", "setErIntSta3"}}},
    {"txtMass3", type("txtMass3", "140.5"), {{41, "140.5", "setMass3"}}},
    {"optPeriod(1)", click("optPeriod", 1), {{42, "1", "setPeriod"}}},
    {"optLin(0) is the linear one", click("optLin", 0), {{43, "1", "setLinearIS"}}},
    {"optLin(1) is the one of the kit", click("optLin", 1), {}},
    {"optResultPlot(1)", click("optResultPlot", 1), {{45, "1", "setRatio_ppmIS"}}},
    {"optResultPlot(2)", click("optResultPlot", 2), {{45, "2", "setRatio_ppmIS"}}},
    {"chkHorizLines", click("chkHorizLines"), {{46, "1", "setShow_linesIS"}}},
    {"chkRatio1", click("chkRatio1"), {{48, "0", "setRatioShow(1)"}}},
    {"chkRatio2", click("chkRatio2"), {{49, "0", "setRatioShow(2)"}}},
    {"chkRatio3", click("chkRatio3"), {{50, "0", "setRatioShow(3)"}}},
    {"chkRatio4", click("chkRatio4"), {{51, "0", "setRatioShow(4)"}}},
    {"chkRatio5", click("chkRatio5"), {{52, "0", "setRatioShow(5)"}}},
    {"chkRatio6", click("chkRatio6"), {{53, "0", "setRatioShow(6)"}}},
    {"optShowMiMa", click("optShowMiMa"), {{54, "1", "setShowMinMax"}}},
    {"optMiMa", click("optMiMa"), {{55, "1", "setRejMinMax"}}},
    {"optShowGrubbs", click("optShowGrubbs"), {{56, "1", "setShowGrubbs"}}},
    {"optGrubbs", click("optGrubbs"), {{57, "1", "setRejGrubbs"}}},
    {"optShowStDev", click("optShowStDev"), {{58, "1", "setShowSD"}}},
    {"optStDev", click("optStDev"), {{59, "1", "setRejSD"}}},
    {"txtSD", type("txtSD", "2.25 s.d."), {{60, "2.25", "setSD_IS"}}},
    {"optTable(1)", click("optTable", 1), {{61, "1", "setDataTable"}}},
    {"optTable(2)", click("optTable", 2), {{61, "2", "setDataTable"}}},
    {"optTable(3)", click("optTable", 3), {{61, "3", "setDataTable"}}},
    {"optMean(0)", click("optMean", 0), {{62, "0", "setMean_IS"}}},
    {"optOneLine(1)", click("optOneLine", 1), {{63, "1", "setOneLine_IS"}}},
    {"optLinesTables(1)", click("optLinesTables", 1), {{64, "1", "setTableFormat"}}},
    {"comboRatio(0)", choose("comboRatio", "Li7", 0), {{65, R"("Li7")", "ratioName(0)"}}},
    {"comboRatio(1)", choose("comboRatio", "Mg25", 1), {{66, R"("Mg25")", "ratioName(1)"}}},
    {"comboRatio(2)", choose("comboRatio", "Al27", 2), {{67, R"("Al27")", "ratioName(2)"}}},
    {"comboRatio(3)", choose("comboRatio", "Si29", 3), {{68, R"("Si29")", "ratioName(3)"}}},
    {"comboRatio(4)", choose("comboRatio", "Ca43", 4), {{69, R"("Ca43")", "ratioName(4)"}}},
    {"comboRatio(5)", choose("comboRatio", "Sc45", 5), {{70, R"("Sc45")", "ratioName(5)"}}},
    {"comboRatio(6)", choose("comboRatio", "Ti49", 6), {{71, R"("Ti49")", "ratioName(6)"}}},
    {"comboRatio(7)", choose("comboRatio", "V51", 7), {{72, R"("V51")", "ratioName(7)"}}},
    {"comboRatio(8)", type("comboRatio", "no column", 8), {{73, R"("no column")", "ratioName(8)"}}},
    {"comboRatio(9)", type("comboRatio", "", 9), {{74, R"("")", "ratioName(9)"}}},
    {"comboRatio(10)", choose("comboRatio", "Mn55", 10), {{75, R"("Mn55")", "ratioName(10)"}}},
    {"comboRatio(11)", choose("comboRatio", "Rb85", 11), {{76, R"("Rb85")", "ratioName(11)"}}},
    {"chkTestBlank", click("chkTestBlank"), {{77, "0", "setTestBlank"}}},
    // A tick at "Blank corr." switches the correction off: 1 of the numerator, 2 of the denominator, 3 of both.
    {"chkBLK1(1)", click("chkBLK1", 1), {{78, "1", "setRatBLK(1)"}}},
    {"chkBLK2(2)", click("chkBLK2", 2), {{79, "2", "setRatBLK(2)"}}},
    {"chkBLK1(3) and chkBLK2(3)", both(click("chkBLK1", 3), click("chkBLK2", 3)), {{80, "3", "setRatBLK(3)"}}},
    {"chkBLK1(4)", click("chkBLK1", 4), {{81, "1", "setRatBLK(4)"}}},
    {"chkBLK2(5)", click("chkBLK2", 5), {{82, "2", "setRatBLK(5)"}}},
    {"chkBLK2(6)", click("chkBLK2", 6), {{83, "2", "setRatBLK(6)"}}},
    {"txtComments", type("txtComments", "A \"new\" one, mine"), {{183, R"("A 'new' one, mine")", "setComments_IS"}}},
};

INSTANTIATE_TEST_SUITE_P(OfTheSettingsWindow, OneControl, ::testing::ValuesIn(changes));

}  // namespace
}  // namespace kolvar::test
