// The keys of the default file of the U/Pb and FLEX paths, and the table of reference standards.
#pragma once

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct DefaultKeys {
    Value setSerialNo1, setSerialNo2, setSerialNo3;  // where the serial number stands in a file name
    Table1<Value> setMineral{MaxMineral};            // 0..7
    Value setSTDabbr;
    Value Hg8_4, Hg9_4, Hg0_4, Hg1_4, Hg2_4;                                   // Hg198/Hg204 .. Hg202/Hg204
    Value Pb6_4, Pb7_4, Pb8_4;                                                 // Pb206/Pb204 .. Pb208/Pb204
    Value UU8_5;                                                               // U238/U235
    Value dweU238, dweU235, dweTh232, dwePb208, dwePb207, dwePb206, dwePb204;  // s
    Value setLinear, setLinearRatios;                                          // plots: 0 log, 1 linear
    Value set_68, set_75, set_082, set_382, set_76, setLinReg;                 // 1 = shown on the plots
    Value setConcordia;                                                        // 0 Wetherill, 1 Tera-Wasserburg
    Value setFormer_Sel;
    Value setBzz_Prompt, setZizzRange, setZizzType, setBzzPlot, setBzzMethod;  // refinement of the selection
    Value setShowOL, setOL_68, setOL_75, setOL_082, setOL_382, setOL_76, setRej_Man, setOL_SD;  // outliers
    Value setHg_corr, setComm_Pb, set235_Calc;
    Value setNumSTD;   // rows of the table of standards in use
    Value setPrefSTD;  // the preferred one, counted from 0
    Value setAver, setMean_UP, setTzero, setDelay, setPbAver, setErr_times, setErr, setPasteDat;
    Value setComments;

    // Reference standards, by row 1..30: ratios, ppm, Ma; Std_Er holds the errors of Std_U .. Std_Age as columns 1..8.
    Table1<Value> Std_Name{MaxStd}, Std_Abbr{MaxStd}, Std_U{MaxStd}, Std_Th{MaxStd}, Std_Pb{MaxStd}, Std_68{MaxStd},
        Std_75{MaxStd}, Std_82{MaxStd}, Std_76{MaxStd}, Std_Age{MaxStd};
    Table2<Value> Std_Er{8, MaxStd};
};

}  // namespace kolvar
