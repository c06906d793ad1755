// Each control of the two windows of the defaults alone: which lines of the saved file it changes, and to what.
#include <functional>
#include <ostream>
#include <sstream>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Act = std::function<void(Program&, const char* window)>;
struct Line {
    std::size_t number;  // from 1
    const char* value;
    const char* key;
};
enum class On { both, uranium_lead };
struct Change {
    const char* what;
    Act act;
    std::vector<Line> lines;  // all others stay as in the kit's file
    On windows = On::both;
};
struct Case {
    const char* window;
    Change change;
};
void PrintTo(const Case& one, std::ostream* out) { *out << one.window << ": " << one.change.what; }

Event in_window(EventKind kind, const char* window, const char* control, int index) {
    Event event;
    event.kind = kind;
    event.window = window;
    event.control = control;
    event.index = index;
    return event;
}
Act click(const char* control, int index = -1) {
    return [=](Program& program, const char* window) {
        program.dispatch(in_window(EventKind::click, window, control, index));
    };
}
Act type(const char* control, const char* text) {
    return [=](Program& program, const char* window) {
        Event event = in_window(EventKind::type, window, control, -1);
        event.text = text;
        program.dispatch(event);
    };
}
Act choose(const char* control, const char* item) {
    return [=](Program& program, const char* window) {
        Event event = in_window(EventKind::choose, window, control, -1);
        event.text = item;
        program.dispatch(event);
    };
}

std::vector<std::string> lines_of(const std::string& bytes) {
    std::vector<std::string> lines;
    std::istringstream in(bytes);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

class DefaultsControl : public ProgramOnKit, public ::testing::WithParamInterface<Case> {
protected:
    Form& form() { return *forms().find(GetParam().window); }
    void open() { program->shell().open(form()); }
    // Which options and boxes are on, and which entries the lists show.
    std::vector<std::string> choices() {
        std::vector<std::string> on;
        for (const Control* control : form().controls) {
            if ((control->kind == ControlKind::option || control->kind == ControlKind::check) && control->on())
                on.push_back(control->address());
            if (control->kind == ControlKind::list) on.push_back(control->address() + " " + control->text);
        }
        return on;
    }
};

TEST_P(DefaultsControl, ChangesItsLinesAndNoOthers) {
    std::vector<std::string> expected = lines_of(folder.read("start-kit/KolvAge-default-b01.def"));
    ASSERT_EQ(expected.size(), 98U);
    const bool flex = std::string(GetParam().window) == "frm_Set_FLEX";
    for (const auto& [number, value, key] : GetParam().change.lines)
        expected[number - 1] = std::string(value) + ",\"" + key + "\"\r";
    if (flex) expected[74] = "\"\",\"set235_Calc\"\r";

    program->start(1);
    rs().ColU235 = 2;
    open();
    GetParam().change.act(*program, GetParam().window);
    os.saves.emplace_back(folder.path("out.def"));
    ProgramOnKit::click(form(), "cmdSaveAs");
    EXPECT_EQ(lines_of(folder.read("out.def")), expected);
    EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm1_Settings"});
    EXPECT_EQ(box_texts(), std::vector<std::string>{});

    // When the file is in use again the window shows the choices that were saved.
    std::vector<std::string> left = choices();
    if (flex) std::erase(left, "chkU235calc");
    os.opens = {kit("KolvAge-default-b01.def"), folder.path("out.def")};
    ProgramOnKit::click(forms().frm1_Settings, "cmdChooseSET");
    ProgramOnKit::click(forms().frm1_Settings, "cmdChooseSET");
    open();
    EXPECT_EQ(choices(), left);
}

const Change changes[] = {
    {"nothing", [](Program&, const char*) {}, {}},
    {"optMethod(0)", click("optMethod", 0), {{3, "0", "Method"}}},
    {"optMethod(2)", click("optMethod", 2), {{3, "2", "Method"}}},
    {"optMethod(3)", click("optMethod", 3), {{3, "3", "Method"}}},
    {"txtAbbrSTD", type("txtAbbrSTD", "a \"b\""), {{33, R"("a 'b'")", "setSTDabbr"}}},
    {"txtAbbrSTD emptied", type("txtAbbrSTD", ""), {{33, R"("")", "setSTDabbr"}}},
    {"txtHg8_4", type("txtHg8_4", "1.5"), {{34, "1.5", "Hg8_4"}}},
    {"txtHg9_4 emptied", type("txtHg9_4", ""), {{35, "0", "Hg9_4"}}},
    {"txtHg0_4 with a text", type("txtHg0_4", "about 3"), {{36, "0", "Hg0_4"}}},
    {"txtHg1_4 with a decimal comma", type("txtHg1_4", "1,9"), {{37, "1", "Hg1_4"}}},
    {"txtHg2_4 below 0", type("txtHg2_4", "-4"), {{38, "-4", "Hg2_4"}}},
    {"txtPb6_4", type("txtPb6_4", "18.5"), {{39, "18.5", "Pb6_4"}}},
    {"txtPb7_4", type("txtPb7_4", "15.6"), {{40, "15.6", "Pb7_4"}}},
    {"txtPb8_4", type("txtPb8_4", "38.5"), {{41, "38.5", "Pb8_4"}}},
    {"txtU8_5", type("txtU8_5", "137.88"), {{42, "137.88", "UU8_5"}}},
    {"txtDwe1 is in milliseconds", type("txtDwe1", "40"), {{43, "0.04", "dweU238"}}},
    {"txtDwe2", type("txtDwe2", "30"), {{44, "0.03", "dweU235"}}},
    {"txtDwe3", type("txtDwe3", "2.5"), {{45, "0.0025", "dweTh232"}}},
    {"txtDwe4", type("txtDwe4", "1000"), {{46, "1", "dwePb208"}}},
    {"txtDwe5", type("txtDwe5", "30"), {{47, "0.03", "dwePb207"}}},
    {"txtDwe6", type("txtDwe6", "ten"), {{48, "0", "dwePb206"}}},
    {"txtDwe7", type("txtDwe7", "30"), {{49, "0.03", "dwePb204"}}},
    {"optLin(1)", click("optLin", 1), {{50, "1", "setLinear"}}},
    {"optLin(0)", click("optLin", 0), {}},
    {"optLinRatios(1)", click("optLinRatios", 1), {{51, "1", "setLinearRatios"}}},
    {"chk68", click("chk68"), {{52, "0", "set_68 "}}},
    {"chk75", click("chk75"), {{53, "0", "set_75 "}}},
    {"chk82", click("chk82"), {{54, "1", "set_082 "}}},
    {"chkUTh", click("chkUTh"), {{55, "1", "set_382 "}}},
    {"chkPbPb", click("chkPbPb"), {{56, "0", "set_76 "}}},
    {"chk_LinReg", click("chk_LinReg"), {{57, "0", "setLinReg "}}},
    {"optConcordia(1)", click("optConcordia", 1), {{58, "1", "setConcordia"}}},
    {"chkFormerSel", click("chkFormerSel"), {{59, "0", "setFormer_Sel"}}, On::uranium_lead},
    {"chkBzzPrompt_UP", click("chkBzzPrompt_UP"), {{60, "1", "setBzz_Prompt"}}},
    {"txtZizzRange", type("txtZizzRange", "2.5 %"), {{61, "2.5", "setZizzRange"}}},
    {"comboBzz", choose("comboBzz", "data"), {{62, "1", "setZizzType"}}},
    {"comboBzzPlot", choose("comboBzzPlot", "Tera-Wasserburg"), {{63, "1", "setBzzPlot"}}},
    {"comboBzzMethod", choose("comboBzzMethod", "Skewness"), {{64, "1", "setBzzMethod"}}},
    {"chkShowOL", click("chkShowOL"), {{65, "0", "setShowOL"}}},
    {"chkOL68", click("chkOL68"), {{66, "0", "setOL_68"}}},
    {"chkOL75", click("chkOL75"), {{67, "1", "setOL_75"}}},
    {"chkOL82", click("chkOL82"), {{68, "1", "setOL_082"}}},
    {"chkOLUTh", click("chkOLUTh"), {{69, "1", "setOL_382"}}},
    {"chkOLPbPb", click("chkOLPbPb"), {{70, "0", "setOL_76"}}},
    {"optManual(1)", click("optManual", 1), {{71, "1", "setRej_Man"}}},
    {"txtOL_SD", type("txtOL_SD", "2 s.d."), {{72, "2", "setOL_SD"}}},
    {"chkHgCorr1", click("chkHgCorr1"), {{73, "0", "setHg_corr"}}, On::uranium_lead},
    {"chkCommLead1", click("chkCommLead1"), {{74, "1", "setComm_Pb"}}, On::uranium_lead},
    {"chkU235calc", click("chkU235calc"), {{75, "1", "set235_Calc"}}, On::uranium_lead},
    {"comboStd", choose("comboStd", "FC-1"), {{77, "5", "setPrefSTD"}}, On::uranium_lead},
    {"optAverage(1)", click("optAverage", 1), {{90, "1", "setAver"}}},
    {"optMean(1)", click("optMean", 1), {{91, "1", "setMean_UP"}}},
    {"optTzero(1)", click("optTzero", 1), {{92, "1", "setTzero"}}},
    {"optTzero(2)", click("optTzero", 2), {{92, "2", "setTzero"}}},
    {"txtDelay", type("txtDelay", "7"), {{93, "7", "setDelay"}}},
    {"chkPbAver", click("chkPbAver"), {{94, "0", "setPbAver"}}},
    {"comboErr counts from one", choose("comboErr", "1x"), {{95, "1", "setErr_times"}}},
    {"comboErr on 3x is 3", choose("comboErr", "3x"), {{95, "3", "setErr_times"}}},
    {"optErr(0)", click("optErr", 0), {{96, "0", "setErr "}}},
    {"optErr(1)", click("optErr", 1), {{96, "1", "setErr "}}},
    {"optErr(3)", click("optErr", 3), {{96, "3", "setErr "}}},
    {"optPasteDat(0)", click("optPasteDat", 0), {{97, "0", "setPasteDat"}}},
    {"txtComments", type("txtComments", "x, y"), {{98, R"("x, y")", "setComments "}}},
    {"what has no effect", click("Option10"), {}},
    {"common lead", click("Option3"), {}, On::uranium_lead},
    {"its age", type("txtAgePb", "500"), {}, On::uranium_lead},
};

std::vector<Case> cases(const char* window) {
    const bool flex = std::string(window) == "frm_Set_FLEX";
    std::vector<Case> out;
    for (const Change& change : changes)
        if (!flex || change.windows == On::both) out.push_back({window, change});
    // Whatever its box shows.
    if (flex) out.push_back({window, {"chkU235calc", click("chkU235calc"), {}}});
    return out;
}

INSTANTIATE_TEST_SUITE_P(UraniumLead, DefaultsControl, ::testing::ValuesIn(cases("frm_SetUP")));
INSTANTIATE_TEST_SUITE_P(Flex, DefaultsControl, ::testing::ValuesIn(cases("frm_Set_FLEX")));

}  // namespace
}  // namespace kolvar::test
