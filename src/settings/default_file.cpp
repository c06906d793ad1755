#include "settings/default_file.hpp"

#include <array>
#include <vector>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/records.hpp"
#include "settings/settings_file.hpp"

namespace kolvar {
namespace {

using Field = Value RunState::*;
using Column = Table1<Value> RunState::*;
using R = RunState;

struct Line {
    const char* key;  // the text behind the value; never looked at when the file is read
    Field field;
};

constexpr std::array<const char*, 2> comments = {
    "This file contains personal defaults for KolvAGE data reduction program.",
    "Tis file must be in the directory that is specified in file: 'start_path_KolvAGE'."};

// The order of the lines is the format. Some key texts end in a blank.
constexpr Line before_minerals[] = {
    {"setCSVisoLINE", &R::setCSVisoLINE},       {"setCSVdatLINE", &R::setCSVdatLINE},
    {"setCSVfirstCOL", &R::setCSVfirstCOL},     {"setTXTisoLINE", &R::setTXTisoLINE},
    {"setTXTdatLINE", &R::setTXTdatLINE},       {"setTXTfirstCOL", &R::setTXTfirstCOL},
    {"setXLisoLINE", &R::setXLisoLINE},         {"setXLdatLINE", &R::setXLdatLINE},
    {"setXLfirstCOL", &R::setXLfirstCOL},       {"setXXXXXisoLINE", &R::setXXXXXisoLINE},
    {"setXXXXXdatLINE", &R::setXXXXXdatLINE},   {"setXXXXXfirstCOL", &R::setXXXXXfirstCOL},
    {"setYYYYYisoLINE", &R::setYYYYYisoLINE},   {"setYYYYYdatLINE", &R::setYYYYYdatLINE},
    {"setYYYYYfirstCOL", &R::setYYYYYfirstCOL}, {"setZZZZZisoLINE", &R::setZZZZZisoLINE},
    {"setZZZZZdatLINE", &R::setZZZZZdatLINE},   {"setZZZZZfirstCOL", &R::setZZZZZfirstCOL},
    {"setSerialNo1", &R::setSerialNo1},         {"setSerialNo2", &R::setSerialNo2},
    {"setSerialNo3", &R::setSerialNo3},
};
constexpr int minerals = 8;
constexpr Line before_standards[] = {
    {"setSTDabbr", &R::setSTDabbr},
    {"Hg8_4", &R::Hg8_4},
    {"Hg9_4", &R::Hg9_4},
    {"Hg0_4", &R::Hg0_4},
    {"Hg1_4", &R::Hg1_4},
    {"Hg2_4", &R::Hg2_4},
    {"Pb6_4", &R::Pb6_4},
    {"Pb7_4", &R::Pb7_4},
    {"Pb8_4", &R::Pb8_4},
    {"UU8_5", &R::UU8_5},
    {"dweU238", &R::dweU238},
    {"dweU235", &R::dweU235},
    {"dweTh232", &R::dweTh232},
    {"dwePb208", &R::dwePb208},
    {"dwePb207", &R::dwePb207},
    {"dwePb206", &R::dwePb206},
    {"dwePb204", &R::dwePb204},
    {"setLinear", &R::setLinear},
    {"setLinearRatios", &R::setLinearRatios},
    {"set_68 ", &R::set_68},
    {"set_75 ", &R::set_75},
    {"set_082 ", &R::set_082},
    {"set_382 ", &R::set_382},
    {"set_76 ", &R::set_76},
    {"setLinReg ", &R::setLinReg},
    {"setConcordia", &R::setConcordia},
    {"setFormer_Sel", &R::setFormer_Sel},
    {"setBzz_Prompt", &R::setBzz_Prompt},
    {"setZizzRange", &R::setZizzRange},
    {"setZizzType", &R::setZizzType},
    {"setBzzPlot", &R::setBzzPlot},
    {"setBzzMethod", &R::setBzzMethod},
    {"setShowOL", &R::setShowOL},
    {"setOL_68", &R::setOL_68},
    {"setOL_75", &R::setOL_75},
    {"setOL_082", &R::setOL_082},
    {"setOL_382", &R::setOL_382},
    {"setOL_76", &R::setOL_76},
    {"setRej_Man", &R::setRej_Man},
    {"setOL_SD", &R::setOL_SD},
    {"setHg_corr", &R::setHg_corr},
    {"setComm_Pb", &R::setComm_Pb},
    {"set235_Calc", &R::set235_Calc},
    {"setNumSTD", &R::setNumSTD},
    {"setPrefSTD", &R::setPrefSTD},
};
constexpr std::array<Column, 10> standard_columns = {&R::Std_Name, &R::Std_Abbr, &R::Std_U,  &R::Std_Th, &R::Std_Pb,
                                                     &R::Std_68,   &R::Std_75,   &R::Std_82, &R::Std_76, &R::Std_Age};
constexpr int error_columns = 8;
constexpr Line behind_standards[] = {
    {"setAver", &R::setAver},   {"setMean_UP", &R::setMean_UP},   {"setTzero", &R::setTzero},
    {"setDelay", &R::setDelay}, {"setPbAver", &R::setPbAver},     {"setErr_times", &R::setErr_times},
    {"setErr ", &R::setErr},    {"setPasteDat", &R::setPasteDat}, {"setComments ", &R::setComments},
};

// The cells that the lines of a file fill, in their order, for this many standards.
std::vector<Value*> cells_behind(RunState& rs, int standards) {
    std::vector<Value*> out;
    for (int row = 1; row <= standards; ++row)
        for (const Column column : standard_columns) out.push_back(&(rs.*column)(row));
    for (int row = 1; row <= standards; ++row)
        for (int k = 1; k <= error_columns; ++k) out.push_back(&rs.Std_Er(k, row));
    return out;
}

// All values of the file before any of them is taken, so that a file cut short changes nothing.
struct Contents {
    int method = 0;
    std::string last_comment;
    std::vector<Value> values, table, behind;
};

Value keyed_value(RecordReader& records) {
    Value value = records.field();
    records.field();  // the text of the key plays no part
    return value;
}

Contents read_contents(RecordReader& records) {
    Contents out;
    for (std::size_t k = 0; k < comments.size(); ++k) {
        records.field();
        out.last_comment = records.text_field();
    }
    out.method = keyed_value(records).whole();
    const std::size_t count = std::size(before_minerals) + minerals + std::size(before_standards);
    for (std::size_t k = 0; k < count; ++k) out.values.push_back(keyed_value(records));
    const int standards = out.values[count - 2].whole();
    if (standards < 0 || standards > MaxStd) fail(FaultKind::too_many);
    const int per_row = static_cast<int>(standard_columns.size()) + error_columns;
    for (int k = 0; k < standards * per_row; ++k) out.table.push_back(records.field());
    for (std::size_t k = 0; k < std::size(behind_standards); ++k) out.behind.push_back(keyed_value(records));
    return out;
}

void take(RunState& rs, const Contents& contents) {
    derive_from_settings(rs);  // from keys that are not in this file; a fault in one of them comes before any change
    rs.LineBuf = contents.last_comment;
    rs.Method = contents.method;
    auto value = contents.values.begin();
    for (const Line& line : before_minerals) rs.*line.field = *value++;
    for (int k = 0; k < minerals; ++k) rs.setMineral(k) = *value++;
    for (const Line& line : before_standards) rs.*line.field = *value++;
    value = contents.table.begin();
    for (Value* cell : cells_behind(rs, rs.setNumSTD.whole())) *cell = *value++;
    value = contents.behind.begin();
    for (const Line& line : behind_standards) rs.*line.field = *value++;
}

std::string compose(RunState& rs) {
    RecordWriter records;
    const auto keyed = [&](const Value& value, const std::string& key) {
        records.field(value).field(key);
        records.end_record();
    };
    const auto lines = [&](const auto& table) {
        for (const Line& line : table) keyed(rs.*line.field, line.key);
    };
    for (const char* comment : comments) keyed("", comment);
    keyed(rs.Method, "Method");
    lines(before_minerals);
    for (int k = 0; k < minerals; ++k) keyed(rs.setMineral(k), "setMineral(" + std::to_string(k) + ")");
    lines(before_standards);
    const int standards = rs.setNumSTD.whole();
    const std::vector<Value*> cells = cells_behind(rs, standards);
    const std::size_t first_error = static_cast<std::size_t>(standards) * standard_columns.size();
    for (std::size_t k = 0; k < cells.size(); ++k) {
        records.field(*cells[k]);
        const bool ends_row =
            k < first_error ? (k + 1) % standard_columns.size() == 0 : (k - first_error + 1) % error_columns == 0;
        if (ends_row) records.end_record();
    }
    lines(behind_standards);
    return records.bytes();
}

}  // namespace

void ReadDefaults(RunState& rs, Platform& os, const std::string& path) {
    const Running running(rs, "ReadDefaults");
    guarded(
        [&] {
            RecordReader records(to_text(read_bytes(path)), path);
            take(rs, read_contents(records));
        },
        [&](const Fault&) {
            os.warn(
                "Error occurred while trying to load file: " + native_path(path) + " , please retry or check the file.",
                "KOLVAR");
        });
}

void WriteDefaults(RunState& rs, Platform& os) {
    const Running running(rs, "WriteDefaults");
    replace_settings(rs, os, [&] { return compose(rs); });
}

void save_defaults_as(RunState& rs, Platform& os, const std::string& folder) {
    const FileDialog dialog{"Default Files (*.def)|*.def|All Files (*.*)|*.*|", 1, rs.SettingsPath, folder};
    rs.SetFilePath = os.save_file(dialog).value_or(rs.SettingsPath);
    WriteDefaults(rs, os);
}

}  // namespace kolvar
