// Raw tables: the three readers, what follows a load, and what becomes of the intervals of the file before.
#pragma once

#include <string>

#include "ui/context.hpp"

namespace kolvar {

// Empties the measurement that is being replaced.
void ClearData(RunState& rs);

// Read the file DataFilePath by their profile; `path` is used in the error text alone. Each ends in AfterImport. A
// fault shows a warning; what was read so far stays, and AfterImport does not run.
void LoadCSV(Context& context, const std::string& path);
void LoadTXT(Context& context, const std::string& path);
void LoadXL(Context& context, const std::string& path);
// The reader by the last three characters of DataFilePath; none for any other ending.
void load_by_ending(Context& context);

// IsoElem and IsoCanon of every column.
void SplitIsoNames(RunState& rs);
// Conversion to cps, the columns of the internal standards, the intervals.
void AfterImport(Context& context);
void MaintainIntervals(Context& context);

// The dialog, opened in `folder` ("" = the system's choice), and the dispatch to a reader. False when the dialog was
// cancelled.
bool ChooseDataFile(Context& context, const std::string& folder = {});

}  // namespace kolvar
