// The loaded measurement: a line a time slice, a column an isotope. Tables are column first, (isotope, slice), from 1.
#pragma once

#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct Measurement {
    std::string DataFileName, DataFilePath;
    int nIso = 0, nSlices = 0;
    int PrevSlices = 0;  // slices of the file before; 0 after a selection was dropped

    Table1<std::string> IsoName{MaxIso};     // column heads as they stand in the file
    Table1<std::string> IsoElem{MaxIso};     // their characters that are no digits
    Table1<std::string> IsoCanon{MaxIso};    // IsoElem, then the digits
    Table2<double> Sig{MaxIso, MaxSlices};   // cps once the import has finished
    Table2<double> Sig2{MaxIso, MaxSlices};  // blank-corrected cps
    Table1<Cell> Dwell{MaxIso};              // s
    double DwellUniform = 0.0;               // s
    Table1<int> IsoOmit{MaxSlices};          // 1 = column takes no part; indexed by column

    // Columns by role on the U/Pb and FLEX paths; 0 = not measured.
    int ColHg198 = 0, ColHg199 = 0, ColHg200 = 0, ColHg201 = 0, ColHg202 = 0, ColHg = 0, HgMass = 0;
    int ColPb204 = 0, ColPb206 = 0, ColPb207 = 0, ColPb208 = 0, ColTh232 = 0, ColU235 = 0, ColU238 = 0;
    Table1<Value> FlexIso{MaxFlex};
    Table1<Value> FlexCol{MaxFlex};

    Table1<int> RejFlag{MaxSlices};  // 0 = slice counted; above 0 = ratios in which it is an outlier
    Table1<double> Rat68{MaxSlices}, Rat75{MaxSlices}, Rat82{MaxSlices}, Rat382{MaxSlices}, Rat76{MaxSlices};
    Table1<double> Sig204Net{MaxSlices};

    // Internal standards: column ("" until a file was loaded), name, concentration and its error in ppm.
    Limit IS1col, IS2col, IS3col;
    std::string IS1name, IS2name, IS3name;
    Value IS1conc, IS1err, IS2conc, IS2err, IS3conc, IS3err;
    Table1<int> IsoISidx{MaxIso};  // column of the internal standard of each isotope
    Table1<double> IsoISconc{MaxIso}, IsoISerr{MaxIso};
};

}  // namespace kolvar
