#include "batch/master_file.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/records.hpp"

namespace kolvar {

namespace {

constexpr std::array<const char*, TitledFields> titles = {"",
                                                          "No.",
                                                          "Type",
                                                          "Standard",
                                                          "Status",
                                                          "CF 06/38",
                                                          "CF 07/35",
                                                          "CF 07/06",
                                                          "CF.er 06/38",
                                                          "CF.er 07/35",
                                                          "CF.er 07/06",
                                                          "Mea. 06/38",
                                                          "Mea. 07/35",
                                                          "Mea. 07/06",
                                                          "Cor. 06/38",
                                                          "Cor. 07/35",
                                                          "Cor. 07/06",
                                                          "M.er 06/38",
                                                          "M.er 07/35",
                                                          "M.er 07/06",
                                                          "C.er 06/38",
                                                          "C.er 07/35",
                                                          "C.er 07/06",
                                                          "Date",
                                                          "Blank",
                                                          "Selection",
                                                          "Average",
                                                          "error x times",
                                                          "Rejection",
                                                          "U235",
                                                          "Hg corr. / Hg isot. used",
                                                          "Pb corr.",
                                                          "U238 cps",
                                                          "U235 cps",
                                                          "Th232 cps",
                                                          "Pb208 cps",
                                                          "Pb207 cps",
                                                          "Pb206 cps",
                                                          "Pb204 cps",
                                                          "Hgused cps",
                                                          "U238 err",
                                                          "U235 err",
                                                          "Th232 err",
                                                          "Pb208 err",
                                                          "Pb207 err",
                                                          "Pb206 err",
                                                          "Pb204 err",
                                                          "Hgused err",
                                                          "BLK U238",
                                                          "BLK U235",
                                                          "BLK Th232",
                                                          "BLK Pb208",
                                                          "BLK Pb207",
                                                          "BLK Pb206",
                                                          "BLK Pb204",
                                                          "BLK Hgused",
                                                          "BLe U238",
                                                          "BLe U235",
                                                          "BLe Th232",
                                                          "BLe Pb208",
                                                          "BLe Pb207",
                                                          "BLe Pb206",
                                                          "BLe Pb204",
                                                          "BLe Hgused"};

bool in_table(int line) { return line >= 0 && line <= MaxMaster; }

struct Counters {
    int files = 0, samples_done = 0, standards = 0, standards_done = 0;
};

// "0042/0000/0008/0000": files, samples done, standards, standards done. What is no number counts as 0, but for the
// files: a list that isn't counted could only be taken for an empty one, and be lost with the next save.
Counters counters_of(const std::string& header, const std::string& path) {
    constexpr std::size_t digits = 4;
    constexpr double most = 9999;
    const auto garbage = [&] { fail(FaultKind::type, path, 1, header.substr(0, 80)); };
    const auto group = [&](std::size_t from) {
        const std::string_view text = std::string_view(header).substr(std::min(from, header.size()), digits);
        const LeadingNumber read = leading_number(text);
        const double count = round_half_even(read.number);
        if ((read.length == 0 && from == 0) || read.too_large || count < 0 || count > most) garbage();
        return static_cast<int>(count);
    };
    return {group(0), group(5), group(10), group(15)};
}

std::vector<Value> read_record(RecordReader& records) {
    std::vector<Value> out;
    out.reserve(MasterFields);
    for (int field = 0; field < MasterFields; ++field) out.push_back(records.field());
    return out;
}

std::string counters_text(const RunState& rs) {
    const auto group = [](int count) { return Format(count, "0000"); };
    // Nothing of a new list is done, whatever the list before has left in the counters.
    const bool is_new = rs.ListMode == 0;
    return group(rs.SeqCount) + "/" + (is_new ? "0000" : group(rs.SeqSamDone)) + "/" + group(rs.SeqStdCount) + "/" +
           (is_new ? "0000" : group(rs.SeqStdDone));
}

std::string file_of_list(const RunState& rs, const Grid& list) {
    if (rs.SeqCount > MaxMaster) fail(FaultKind::too_many);
    RecordWriter records;
    for (int r = 0; r <= rs.SeqCount; ++r) {
        const std::span<const Value> record = rs.MasterRecs.column(r);
        for (int c = 0; c < MasterFields; ++c) {
            if (r == 0 && c == 0)
                records.field(counters_text(rs));
            else if (rs.ListMode == 0)
                records.field(list.cell(r, c).text);
            else
                records.field(record[static_cast<std::size_t>(c)]);
        }
        records.end_record();
    }
    return records.bytes();
}

}  // namespace

const char* master_title(int field) {
    return field >= 0 && field < TitledFields ? titles[static_cast<std::size_t>(field)] : "";
}

bool is_processed(const RunState& rs, int line) { return in_table(line) && rs.MasterRecs(line, 11).val() != 0; }

bool is_standard(const RunState& rs, int line) { return in_table(line) && rs.MasterRecs(line, 2).text() == "Std"; }

void ReadMaster(RunState& rs, const std::string& path) {
    const Running running(rs, "ReadMaster");
    // All is read before anything is taken: a file that turns out bad leaves the list in work as it is.
    const std::string text = to_text(read_bytes(path));
    RecordReader scratch(text, path);
    const Counters counters = counters_of(read_record(scratch).front().text(), path);
    if (counters.files > MaxMaster) fail(FaultKind::too_many, path, 1);
    RecordReader records(text, path);
    std::vector<std::vector<Value>> lines;
    lines.reserve(static_cast<std::size_t>(counters.files) + 1);
    for (int r = 0; r <= counters.files; ++r) lines.push_back(read_record(records));
    lines.front().front() = "";

    rs.SeqCount = counters.files;
    rs.SeqSamDone = counters.samples_done;
    rs.SeqStdCount = counters.standards;
    rs.SeqStdDone = counters.standards_done;
    for (int r = 0; r <= rs.MasterRecs.last_column(); ++r) {
        const std::span<Value> record = rs.MasterRecs.column(r);
        std::ranges::fill(record, Value());
        if (r <= counters.files) std::ranges::move(lines[static_cast<std::size_t>(r)], record.begin());
    }

    // The last test wins: factors in the first line mean samples, whatever the counters say.
    const bool has_factors = !rs.MasterRecs(1, 5).text().empty();
    rs.SeqPhase = 0;
    if (rs.SeqStdDone < rs.SeqStdCount) rs.SeqPhase = 1;
    if (rs.SeqStdDone == rs.SeqStdCount && !has_factors) rs.SeqPhase = 2;
    if (has_factors) rs.SeqPhase = 3;
}

bool SaveMaster(RunState& rs, Platform& os, const Grid& list, const std::string& path) {
    const Running running(rs, "SaveMaster");
    // A list that is only looked at is never saved.
    if (rs.ListMode != 0 && rs.ListMode != 1) return false;
    bool written = false;
    guarded(
        [&] {
            // Only a new list is refused; a list in work replaces its file after each measurement.
            if (rs.ListMode == 0 && file_exists(path)) {
                os.warn(
                    "Due to the high risk of data loss it is not supported to overwrite an existing master file! Use "
                    "another file name, please.");
                return;
            }
            replace_file(os, path, file_of_list(rs, list));
            written = true;
        },
        [&](const Fault&) { os.warn("Error occurred while trying to save the master file, please retry."); });
    return written;
}

}  // namespace kolvar
