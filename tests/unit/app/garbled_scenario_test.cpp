// Scenarios with words left out, doubled and exchanged: the runner tells what is wrong and goes on to the next.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "app/scenario_runner.hpp"
#include "support/random_user.hpp"

namespace kolvar::scenario {
namespace {

using test::Dice;
using Words = std::vector<std::string>;

// Nothing that names a file to be changed: exchanged words must not reach beyond the folder of the run.
const std::vector<Words> lines{
    {"start"},
    {"start", "1"},
    {"click", "frm1_Settings.cmdOK"},
    {"click", "frm1_Settings.mnuFile(0)"},
    {"click", "frm1_Settings.optCreatSTM"},
    {"dblclick", "frm2_UP"},
    {"type", "frm1_Settings.txtDwell", "\"20\""},
    {"enter", "frm1_Settings.txtDwell"},
    {"leave", "frm1_Settings.txtDwell"},
    {"choose", "frm1_Settings.comboIso", "3"},
    {"choose", "frm1_Settings.comboIso", "\"Si29\""},
    {"scroll", "frm2_Time.VScroll1", "7"},
    {"press", "frm2_Time.pict1", "left", "shift", "100", "200.5"},
    {"release", "frm2_Time.pict1"},
    {"mark", "frm2_Time.pict1", "right", "120"},
    {"drag", "frm2_Time.chkIs(1)", "frm2_Time.lblRatio(2)"},
    {"cell", "frm3_Matrix.FlexGrid1", "click", "1", "2"},
    {"resize", "frm2_Time", "9000", "6000"},
    {"close", "frm_SetIS"},
    {"put", "SelLow", "5"},
    {"put", "IsoName(3)", "\"Al27\""},
    {"put", "Sig(1,1)", "-0.5"},
    {"clipboard", "\"Al27\\tSi29\""},
    {"today", "2009-01-07", "14:03:22"},
    {"decimal", "\",\""},
    {"disk", "full"},
    {"disk", "4096"},
    {"answer", "yes"},
    {"answer", "cancel"},
    {"answer", "continue"},
    {"expect", "message", "has", "\"Error\""},
    {"expect", "no", "message"},
    {"expect", "window", "frm1_Settings"},
    {"expect", "frm1_Settings.cmdOK", "enabled"},
    {"expect", "frm1_Settings.comboIso", "items", "\"a\"", "\"b\""},
    {"expect", "cell", "frm3_Matrix.FlexGrid1", "1", "2", "back", "255", "0", "0"},
    {"expect", "Sig(1,2)", "5", "within", "0.001"},
    {"expect", "clipboard", "\"\""},
    {"expect", "ended", "1"},
    {"print", "Sig(1..2,1..8)"},
    {"print", "frm1_Settings.comboIso"},
    {"print", "canvas", "frm2_Time.pict1"},
    {"print", "grid", "frm3_Matrix.FlexGrid1"},
    {"print", "messages"},
};

const Words strangers{"-1", "99999999999", "1e999",     "(",    ")",   "..",   "\"",    "\"\\x\"",
                      "#",  "frm9.none",   "Sig(1..9,", "none", "0.5", "\"\"", "unset", "value"};

std::string garbled(Words words, Dice& dice) {
    const auto any = [&] { return words.begin() + dice.below(static_cast<int>(words.size())); };
    for (int changes = dice.below(3); changes > 0 && !words.empty(); --changes) {
        switch (dice.below(4)) {
            case 0:
                words.erase(any());
                break;
            case 1: {
                const std::string doubled = *any();
                words.insert(any(), doubled);
                break;
            }
            case 2:
                *any() = dice.one_of(strangers);
                break;
            default:
                *any() = dice.one_of(dice.one_of(lines));
                break;
        }
    }
    std::string line;
    for (const std::string& word : words) line += word + " ";
    return line + "\n";
}

TEST(GarbledScenarios, EndWithAStatusAndSayWhatIsWrong) {
    const test::TempFolder base;
    std::filesystem::copy(KOLVAR_SOURCE_DIR "/start-kit", base.path("kit"));
    Dice dice(41);
    int statuses[3] = {};
    for (int run = 0; run < 150; ++run) {
        std::string text = "start\n";
        const int length = 1 + dice.below(12);
        for (int line = 0; line < length; ++line) text += garbled(dice.one_of(lines), dice);
        RunOptions options{base.path("kit"), base.path("work")};
        options.keep_going = dice.one_in(2);
        std::ostringstream out, err;
        const int status = run_scenario(base.write("garbled.scn", text), options, out, err);
        ASSERT_TRUE(status >= 0 && status <= 2) << text;
        EXPECT_EQ(status != 0, err.str().find("garbled.scn:") != std::string::npos) << text << err.str();
        ++statuses[status];
    }
    for (const int count : statuses) EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace kolvar::scenario
