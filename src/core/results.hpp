// What the calculations of the internal-standard path leave, and the flags of the steps.
#pragma once

#include <cstdint>
#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct Results {
    // Modes of file selection, each 0 or 1.
    int ModeData = 0, ModeCreateSTM = 0, ModeCreateBLK = 0, BlankFromData = 0, DwellFromFile = 0;
    bool KeepData = false;
    bool HgChosen = false;
    bool RejectOn = false;
    int SelCount = 0;

    // Statistics of the selected interval, by isotope: cps and ratios to the internal standard.
    double BlkSpikes = 0;  // spikes of the blank, and the accumulator of all sums of the calculations
    Table1<double> CpsMean{MaxIso};
    Table1<Cell> CpsSD{MaxIso};
    Table1<int> CpsMinPos{MaxIso}, CpsMaxPos{MaxIso};
    Table2<double> Ratio{MaxIso, MaxSlices};
    Table1<double> RatioMean{MaxIso}, RatioSD{MaxIso};
    Table1<int> RatioMinPos{MaxIso}, RatioMaxPos{MaxIso};

    // Rejection.
    Table2<std::uint8_t> Rej{MaxIso, MaxSlices};  // 1 = datum rejected
    Table1<int> nData{MaxIso};                    // accepted data of the isotope
    int nRejected = 0, RejManual = 0, RejMinMaxOn = 0;
    Value RejSDLimit, RejGrubbsP;  // the text typed, or 0 when the test is off
    std::string RejProcName;
    std::string TableView;
    int NameColWidth = 0;  // twips

    // Concentrations: ppm, cps.
    int nIsoCalc = 0;
    Table1<Cell> AvCps{MaxIso}, AvRawCps{MaxIso};  // unset for a column without a blank
    Table1<double> AccRatio{MaxIso};
    Table1<Cell> ConcMean{MaxIso}, ConcMedian{MaxIso}, ConcSD{MaxIso}, ConcSE{MaxIso}, RelErr{MaxIso};
    Table1<Value> LoD{MaxIso};
    Table2<Cell> ConcT{MaxIso, MaxSlices}, ErrT{MaxIso, MaxSlices};
    Table1<double> R2IsoIS{MaxIso};
    Table1<double> AccCpsSD{MaxIso}, AccCpsSE{MaxIso};
    double e1 = 0, e2 = 0, e3 = 0, e4 = 0, e5 = 0, e6 = 0, e7 = 0;  // terms of the error of a slice

    std::string OutText, QuickHdr1, QuickHdr2, QuickLine;
    bool QuickExists = false;

    double Lambda238 = 0, Lambda235 = 0;  // per year
    std::string LineBuf, TokenBuf, WorkPath, AppPath1, AppPath2;
};

}  // namespace kolvar
