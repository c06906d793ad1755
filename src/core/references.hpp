// The reference files as read, what they give for each column of the measurement, and the tables of critical values.
#pragma once

#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct References {
    // Standard composition: ppm.
    int nSTC = 0;
    Table1<std::string> STCiso{MaxSTC};
    Table1<double> STCcc{MaxSTC}, STCerr{MaxSTC};
    std::string STCtitle, STCfileName, STCfilePath;
    // Standard measurement: cps and its standard error.
    int nSTM = 0;
    Table1<std::string> STMiso{MaxIso};
    Table1<double> STMcps{MaxIso}, STMsd{MaxIso};
    std::string STMfileName, STMfilePath;
    // Blank: cps and its error, by row of the Blank File.
    int nBLK = 0;
    Table1<std::string> BLKiso{MaxIso};
    Table1<double> BLKmean{MaxIso}, BLKsd{MaxIso};
    std::string BLKfileName, BLKfilePath;
    int nBLKraw = 0;
    Table2<double> BLKraw{MaxIso, MaxSlices};
    // Dwell times: ms.
    int nDWE = 0;
    Table1<std::string> DWEiso{MaxIso};
    Table1<double> DWEms{MaxIso};
    std::string DWEtitle, DWEfileName, DWEfilePath;

    // By column of the measurement, "" where the column has no partner.
    Table1<Cell> StdConc{MaxIso}, StdConcErr{MaxIso};  // ppm
    Table1<Cell> StdCps{MaxIso}, StdCpsErr{MaxIso};    // cps
    Table1<Cell> BlkMean{MaxIso}, BlkSD{MaxIso};       // cps
    // Names without partner, each followed by a comma and two blanks.
    std::string MissSTC, MissSTM, MissBLK, MissDWE;
    bool RefsMatched = false;

    // Critical values of Grubbs' test at 10, 7.5, 5, 2.5 and 1 percent, n = 3..100. A number of data that the file has
    // no line for has no value.
    Table1<Cell> GrubbsP10{100}, GrubbsP7_5{100}, GrubbsP5{100}, GrubbsP2_5{100}, GrubbsP1{100};
    // Student's t, n = 1..101.
    Table1<Cell> StudentT1{101}, StudentT2{101}, StudentT3{101}, StudentT4{101}, StudentT5{101}, StudentT6{101};
};

}  // namespace kolvar
