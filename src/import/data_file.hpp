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
// The former measurement goes and DataFilePath is read; a table that can't be read to its end leaves neither intervals
// nor results on the U/Pb and FLEX paths.
void load_in_place_of_former(Context& context);
// The data come from a table that was read to its end.
bool read_to_its_end(const RunState& rs);
// Means, medians, deviations and errors of the five ratios to 0.
void clear_ratio_results(RunState& rs);

// IsoElem and IsoCanon of every column.
void SplitIsoNames(RunState& rs);
// Conversion to cps, the columns of the internal standards, the intervals.
void AfterImport(Context& context);
void MaintainIntervals(Context& context);

// The dialog, opened in `folder` ("" = the system's choice), and the names of the answer. False when it was cancelled.
bool name_data_file(RunState& rs, Platform& os, const std::string& folder = {});
// The dialog and the dispatch to a reader, the former measurement gone in any case. False when the dialog was
// cancelled.
bool ChooseDataFile(Context& context);

}  // namespace kolvar
