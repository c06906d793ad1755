// A batch of data files: its list with the results of each file, and the line through the drift of the instrument.
#pragma once

#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

inline constexpr int MaxListed = 1000;      // names that a folder's list takes
inline constexpr int LastMasterField = 80;  // of a line in memory; the file holds the first 70 fields

struct Sequence {
    Value SeqMode;     // "" no decision yet, true in a master list, false for individual files
    int SeqPhase = 0;  // 1 standards being processed, 2 all standards processed, 3 samples being processed, else 0
    int SeqPos = 0;    // the line in work; outside 1..SeqCount after a refused turn at the end of the list
    int SeqCount = 0, SeqStdCount = 0, SeqStdDone = 0;
    int SeqSamDone = 0;  // begins at SeqStdDone when the factors are written
    int ListMode = 0;    // of the list window: 0 a new list, 1 open files of the master file, 2 table only
    std::string MasterName, MasterPath, MasterDir;  // MasterDir ends in a separator
    std::string NextFile;
    // (record, field): record 0 is the header, a record lies in one piece.
    Table2<Value> MasterRecs{MaxMaster, LastMasterField};

    // The list window: names as found, their serial numbers, names in their order, "Std" or "".
    Table1<std::string> FileNames{MaxListed}, FileOrdered{MaxListed}, FileTypes{MaxListed};
    Table1<Value> FileSerial{MaxListed};

    // Drift: expected / measured of each line, and the line fitted over the position in the list.
    Table1<double> DriftCF68{MaxListed}, DriftCF75{MaxListed}, DriftCF76{MaxListed};
    Table1<Value> DriftRej{MaxListed};  // 1 = the standard takes no part
    double DriftMax = 0, DriftMin = 0;
    double DriftStep = 0;  // twips between two lines of the list
    double DriftA68 = 0, DriftB68 = 0, DriftR68 = 0;
    double DriftA75 = 0, DriftB75 = 0, DriftR75 = 0;
    double DriftA76 = 0, DriftB76 = 0, DriftR76 = 0;
};

}  // namespace kolvar
