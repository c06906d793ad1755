// The clipboard import beside its plain reading: character by character, as the user is told that a table is read.
#include <algorithm>
#include <iterator>
#include <memory>
#include <random>
#include <string>

#include "core/numbers.hpp"
#include "import/paste.hpp"
#include "import_bench.hpp"

namespace kolvar::test {
namespace {

// True when the text is a table. What was read before a fault stays; beyond the limits the counts stand at them.
bool plain_paste(RunState& rs, const std::string& clipboard) {
    std::string text;
    for (std::size_t k = 0; k < clipboard.size(); ++k) {
        if (clipboard[k] == '\n' && (k == 0 || clipboard[k - 1] != '\r')) text += '\r';
        text += clipboard[k];
    }
    int tabs = 0;
    bool line_ended = false;
    for (const char c : text) {
        if (c == '\r' && tabs == 0) return false;
        line_ended = c == '\r';
        if (line_ended) break;
        if (c == '\t') ++tabs;
    }
    rs.nIso = tabs + 1;
    if (rs.nIso < 2) return false;
    int ends = 0;
    for (std::size_t k = 0; k + 1 < text.size(); ++k)
        if (text[k] == '\r') ++ends;
    rs.nSlices = std::max(ends - 1, 0);
    if (rs.nSlices < 3) return false;

    std::string token;
    int column = 1;
    for (const char c : text) {
        if (c != '\t' && c != '\r') {
            token += c;
            continue;
        }
        rs.IsoName(column) = token;
        if (token.empty() || is_numeric(token)) return false;
        token.clear();
        ++column;
        if (c == '\r') break;
    }

    const std::size_t last_end = text.rfind('\r');
    token.clear();
    column = 1;
    int row = 0;
    for (std::size_t k = 0; k < text.size(); ++k) {
        const char c = text[k];
        if (c != '\t' && c != '\r') {
            token += c;
            continue;
        }
        if (row > 0) {
            if (!is_numeric(token)) return false;
            const double number = leading_number(token).number;
            if (k <= last_end) rs.Sig(column, row) = number;
            ++column;
            token.clear();
        }
        if (c == '\r') {
            column = 1;
            ++row;
            token.clear();
        }
    }
    return true;
}

TEST(PlainPaste, TablesOfAllKindsAreTakenOrRefusedAlike) {
    ScriptedPlatform os;
    const auto rs = std::make_unique<RunState>();
    const auto beside = std::make_unique<RunState>();
    set_start_values(*rs);
    set_start_values(*beside);
    rs->Method = 2;  // neither lists nor intervals follow
    Forms forms;
    Shell shell;
    Context context{*rs, forms, os, shell};

    const char* const heads[] = {"Li7", "U238", "29", "", " ", "7Li", "1e3"};
    const char* const cells[] = {"1", "-2.5", " 3 ", "4e1", "", "x", "5 cps", "1,5", "+.5", "6."};
    const char* const line_ends[] = {"\r\n", "\n", "\r"};
    std::mt19937 random(271828);
    // The first of a list comes `often` times out of a hundred, else any of them.
    const auto pick = [&](const auto& list, unsigned often) {
        return random() % 100 < often ? list[random() % 2] : list[random() % std::size(list)];
    };
    int taken = 0;
    int refused = 0;
    for (int k = 0; k < 4000; ++k) {
        const auto columns = 1 + random() % 4;
        const auto rows = 1 + random() % 6;
        std::string text;
        for (std::size_t i = 0; i < columns; ++i) text += (i > 0 ? "\t" : "") + std::string(pick(heads, 97));
        text += pick(line_ends, 95);
        for (std::size_t j = 1; j <= rows; ++j) {
            const auto width = random() % 30 == 0 ? columns + 1 : columns;
            for (std::size_t i = 0; i < width; ++i) text += (i > 0 ? "\t" : "") + std::string(pick(cells, 98));
            if (j < rows || random() % 3 > 0) text += pick(line_ends, 95);
        }
        for (RunState* state : {rs.get(), beside.get()}) {
            state->nIso = 6;
            state->nSlices = 8;
            ClearData(*state);
        }
        os.clip = text;
        forms.frmPaste.shown = false;
        const bool expected = plain_paste(*beside, text);
        ++(expected ? taken : refused);
        ASSERT_EQ(PasteData(context), expected) << text;
        ASSERT_EQ(forms.frmPaste.shown, !expected) << text;
        ASSERT_EQ(rs->nIso, beside->nIso) << text;
        ASSERT_EQ(rs->nSlices, beside->nSlices) << text;
        for (int i = 1; i <= 6; ++i) {
            ASSERT_EQ(rs->IsoName(i), beside->IsoName(i)) << text;
            for (int j = 1; j <= 8; ++j) ASSERT_EQ(rs->Sig(i, j), beside->Sig(i, j)) << text << i << " " << j;
        }
    }
    EXPECT_GT(taken, 500);
    EXPECT_GT(refused, 500);
    EXPECT_TRUE(os.boxes.empty());
}

}  // namespace
}  // namespace kolvar::test
