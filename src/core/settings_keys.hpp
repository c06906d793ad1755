// The keys of the settings file, each a scalar or table that stays unset until a file was read.
#pragma once

#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct SettingsKeys {
    int Method = 0;  // 0 internal standard, 1 U/Pb, 2 solution, 3 FLEX
    Value setCSVisoLINE, setCSVdatLINE, setCSVfirstCOL;
    Value setTXTisoLINE, setTXTdatLINE, setTXTfirstCOL;
    Value setXLisoLINE, setXLdatLINE, setXLfirstCOL;
    Value setXXXXXisoLINE, setXXXXXdatLINE, setXXXXXfirstCOL;
    Value setYYYYYisoLINE, setYYYYYdatLINE, setYYYYYfirstCOL;
    Value setZZZZZisoLINE, setZZZZZdatLINE, setZZZZZfirstCOL;
    Value setSTDabbr_IS;
    Value setCPS_IS;  // 0 counts, 1 cps
    Value setBLK_IS;  // 0 from a Blank File, 1 from the data file
    Value setSTCfile_IS, setSTMfile_IS;
    Value setFormer_Sel_IS;
    Value setDwellFromFile_IS;
    Value setDWEfile_IS;
    Value setIS_Dwell;  // ms
    Value setISnum;
    Value setIntSta, setCcIntSta, setErIntSta;  // name, ppm, ppm
    Value setIntSta2, setCcIntSta2, setErIntSta2;
    Value setMas2;  // amu
    Value setIntSta3, setCcIntSta3, setErIntSta3;
    Value setMass3;  // amu
    Value setPeriod;
    Value setLinearIS, setLinearRatiosIS;
    Value setRatio_ppmIS;  // lower plot: 0 ratios to the internal standard, 1 concentrations, 2 ratios of analytes
    Value setShow_linesIS;
    Value setAllCurve;
    Table1<Value> setRatioShow{MaxShow};
    Value setShowMinMax, setRejMinMax, setShowGrubbs, setRejGrubbs, setShowSD, setRejSD, setSD_IS;
    Value setDataTable;
    Value setMean_IS, setOneLine_IS, setTableFormat;
    Table1<Value> ratioName{MaxRatioName};  // 0..11
    Value setTestBlank;
    Table1<Value> setRatBLK{MaxShow};
    Table1<Value> PeriodSym{MaxPeriod}, PeriodIS{MaxPeriod};  // 1..96
    Value setComments_IS;

    std::string SettingsName, SettingsPath, SetFilePath;
};

}  // namespace kolvar
