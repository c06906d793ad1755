#include "settings/settings_lines.hpp"

namespace kolvar {
namespace {

using Kind = SettingsLine::Kind;
using Keys = SettingsKeys;

// Lines that follow each other under one name: a table is one entry for all of its elements.
struct Entry {
    Kind kind;
    const char* key;
    Value Keys::*scalar = nullptr;
    Table1<Value> Keys::*table = nullptr;
    Table1<Value> Keys::*second = nullptr;
    int first = 0;
    int last = 0;
};

constexpr Entry entries[] = {
    // clang-format off
    {Kind::method, "Method"},
    {Kind::scalar, "setCSVisoLINE", &Keys::setCSVisoLINE},
    {Kind::scalar, "setCSVdatLINE", &Keys::setCSVdatLINE},
    {Kind::scalar, "setCSVfirstCOL", &Keys::setCSVfirstCOL},
    {Kind::scalar, "setTXTisoLINE", &Keys::setTXTisoLINE},
    {Kind::scalar, "setTXTdatLINE", &Keys::setTXTdatLINE},
    {Kind::scalar, "setTXTfirstCOL", &Keys::setTXTfirstCOL},
    {Kind::scalar, "setXLisoLINE", &Keys::setXLisoLINE},
    {Kind::scalar, "setXLdatLINE", &Keys::setXLdatLINE},
    {Kind::scalar, "setXLfirstCOL", &Keys::setXLfirstCOL},
    {Kind::scalar, "setXXXXXisoLINE", &Keys::setXXXXXisoLINE},
    {Kind::scalar, "setXXXXXdatLINE", &Keys::setXXXXXdatLINE},
    {Kind::scalar, "setXXXXXfirstCOL", &Keys::setXXXXXfirstCOL},
    {Kind::scalar, "setYYYYYisoLINE", &Keys::setYYYYYisoLINE},
    {Kind::scalar, "setYYYYYdatLINE", &Keys::setYYYYYdatLINE},
    {Kind::scalar, "setYYYYYfirstCOL", &Keys::setYYYYYfirstCOL},
    {Kind::scalar, "setZZZZZisoLINE", &Keys::setZZZZZisoLINE},
    {Kind::scalar, "setZZZZZdatLINE", &Keys::setZZZZZdatLINE},
    {Kind::scalar, "setZZZZZfirstCOL", &Keys::setZZZZZfirstCOL},
    {Kind::separator, "==== ==== ==== Int. Std. ==== ==== ===="},
    {Kind::scalar, "setSTDabbr_IS", &Keys::setSTDabbr_IS},
    {Kind::scalar, "setCPS_IS", &Keys::setCPS_IS},
    {Kind::scalar, "setBLK_IS", &Keys::setBLK_IS},
    {Kind::scalar, "setSTCfile_IS", &Keys::setSTCfile_IS},
    {Kind::scalar, "setSTMfile_IS", &Keys::setSTMfile_IS},
    {Kind::scalar, "setFormer_Sel_IS", &Keys::setFormer_Sel_IS},
    {Kind::scalar, "setDwellFromFile_IS", &Keys::setDwellFromFile_IS},
    {Kind::scalar, "setDWEfile_IS", &Keys::setDWEfile_IS},
    {Kind::scalar, "setIS_Dwell", &Keys::setIS_Dwell},
    {Kind::scalar, "setISnum", &Keys::setISnum},
    {Kind::scalar, "setIntSta", &Keys::setIntSta},
    {Kind::scalar, "setCcIntSta", &Keys::setCcIntSta},
    {Kind::scalar, "setErIntSta", &Keys::setErIntSta},
    {Kind::scalar, "setIntSta2", &Keys::setIntSta2},
    {Kind::scalar, "setCcIntSta2", &Keys::setCcIntSta2},
    {Kind::scalar, "setErIntSta2", &Keys::setErIntSta2},
    {Kind::scalar, "setMas2", &Keys::setMas2},
    {Kind::scalar, "setIntSta3", &Keys::setIntSta3},
    {Kind::scalar, "setCcIntSta3", &Keys::setCcIntSta3},
    {Kind::scalar, "setErIntSta3", &Keys::setErIntSta3},
    {Kind::scalar, "setMass3", &Keys::setMass3},
    {Kind::scalar, "setPeriod", &Keys::setPeriod},
    {Kind::scalar, "setLinearIS", &Keys::setLinearIS},
    {Kind::scalar, "setLinearRatiosIS", &Keys::setLinearRatiosIS},
    {Kind::scalar, "setRatio_ppmIS", &Keys::setRatio_ppmIS},
    {Kind::scalar, "setShow_linesIS", &Keys::setShow_linesIS},
    // The time screen reads this key, whatever its text in the file says.
    {Kind::scalar, "setAllCurve---NOT USED", &Keys::setAllCurve},
    {Kind::element, "setRatioShow", nullptr, &Keys::setRatioShow, nullptr, 1, 6},
    {Kind::scalar, "setShowMinMax", &Keys::setShowMinMax},
    {Kind::scalar, "setRejMinMax", &Keys::setRejMinMax},
    {Kind::scalar, "setShowGrubbs", &Keys::setShowGrubbs},
    {Kind::scalar, "setRejGrubbs", &Keys::setRejGrubbs},
    {Kind::scalar, "setShowSD", &Keys::setShowSD},
    {Kind::scalar, "setRejSD", &Keys::setRejSD},
    {Kind::scalar, "setSD_IS", &Keys::setSD_IS},
    {Kind::scalar, "setDataTable", &Keys::setDataTable},
    {Kind::scalar, "setMean_IS", &Keys::setMean_IS},
    {Kind::scalar, "setOneLine_IS", &Keys::setOneLine_IS},
    {Kind::scalar, "setTableFormat", &Keys::setTableFormat},
    {Kind::element, "ratioName", nullptr, &Keys::ratioName, nullptr, 0, 11},
    {Kind::scalar, "setTestBlank", &Keys::setTestBlank},
    {Kind::element, "setRatBLK", nullptr, &Keys::setRatBLK, nullptr, 1, 6},
    {Kind::reserve, "reserve", nullptr, nullptr, nullptr, 1, 3},
    {Kind::pair, "", nullptr, &Keys::PeriodSym, &Keys::PeriodIS, 1, 96},
    {Kind::scalar, "setComments_IS", &Keys::setComments_IS},
    // clang-format on
};

}  // namespace

std::vector<SettingsLine> settings_lines() {
    std::vector<SettingsLine> out;
    out.reserve(settings_line_count);
    for (const Entry& entry : entries) {
        for (int k = entry.first; k <= entry.last; ++k) {
            std::string key = entry.key;
            if (entry.kind == Kind::element) key.append("(").append(std::to_string(k)).append(")");
            out.push_back({entry.kind, key, entry.scalar, entry.table, entry.second, k});
        }
    }
    return out;
}

}  // namespace kolvar
