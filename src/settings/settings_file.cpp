#include "settings/settings_file.hpp"

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/records.hpp"
#include "settings/settings_lines.hpp"

namespace kolvar {
namespace {

using Kind = SettingsLine::Kind;

constexpr const char* settings_filter = "Setting Files (*.set)|*.set|All Files (*.*)|*.*|";

// The value of a line goes to its key at once, so that all before a fault is taken.
void read_line(RunState& rs, const SettingsLine& line, RecordReader& records) {
    switch (line.kind) {
        case Kind::method:
            rs.Method = Value(records.number_field()).whole();
            break;
        case Kind::scalar:
            rs.*line.scalar = records.field();
            break;
        case Kind::element:
            (rs.*line.table)(line.index) = records.field();
            break;
        case Kind::pair:
            (rs.*line.table)(line.index) = records.field();
            (rs.*line.second)(line.index) = records.field();
            return;
        case Kind::separator:
        case Kind::reserve:
            rs.LineBuf = records.text_field();
            break;
    }
    // The text of the key plays no part: the place in the file tells what a value is.
    rs.LineBuf = records.text_field();
}

void write_line(const RunState& rs, const SettingsLine& line, RecordWriter& records) {
    switch (line.kind) {
        case Kind::method:
            records.field(rs.Method).field(line.key);
            break;
        case Kind::scalar:
            records.field(rs.*line.scalar).field(line.key);
            break;
        case Kind::element:
            records.field((rs.*line.table)(line.index)).field(line.key);
            break;
        case Kind::pair:
            records.field((rs.*line.table)(line.index)).field((rs.*line.second)(line.index));
            break;
        case Kind::separator:
            records.field("").field(line.key);
            break;
        case Kind::reserve:
            records.field(0).field(line.key);
            break;
    }
    records.end_record();
}

}  // namespace

void derive_from_settings(RunState& rs) {
    rs.IS1name = rs.setIntSta.text();
    rs.IS1conc = rs.setCcIntSta;
    rs.IS1err = rs.setErIntSta;
    rs.IS2name = rs.setIntSta2.text();
    rs.IS2conc = rs.setCcIntSta2;
    rs.IS2err = rs.setErIntSta2;
    rs.IS3name = rs.setIntSta3.text();
    rs.IS3conc = rs.setCcIntSta3;
    rs.IS3err = rs.setErIntSta3;
    rs.BlankFromData = rs.setBLK_IS.val() == 1 ? 1 : 0;
    rs.LinearView = rs.setLinearIS.val() == 1;
}

void warn_of_settings_file(Platform& os, const std::string& path) {
    os.warn("Error occurred while trying to load file: " + native_path(path) +
                "\n\nSpecify the path using the menu of 'File Selection' window: [Settings] / "
                "[Specify the path to the StartKit directory].",
            "KOLVAR");
}

void ReadSettings(RunState& rs, Platform& os, const std::string& path) {
    Running running(rs, "ReadSettings");
    guarded(
        [&] {
            RecordReader records(to_text(read_bytes(path)), path);
            for (const SettingsLine& line : settings_lines()) read_line(rs, line, records);
            derive_from_settings(rs);
            rs.DwellFromFile = rs.setDwellFromFile_IS.val() == 1 ? 1 : 0;
        },
        [&](const Fault&) { warn_of_settings_file(os, path); });
}

void replace_settings(const RunState& rs, Platform& os, const std::function<std::string()>& compose) {
    if (file_exists(rs.SetFilePath) && !os.ask("Overwrite existing file?")) return;
    guarded([&] { replace_file(os, rs.SetFilePath, compose()); },
            [&](const Fault&) { os.warn("Error occurred while trying to save file, please retry."); });
}

void WriteSettings(RunState& rs, Platform& os) {
    Running running(rs, "WriteSettings");
    replace_settings(rs, os, [&] {
        RecordWriter records;
        for (const SettingsLine& line : settings_lines()) write_line(rs, line, records);
        return records.bytes();
    });
}

FileDialog settings_save_dialog(const RunState& rs) { return {settings_filter, 1, rs.SettingsPath, rs.AppPath1}; }

void save_settings_as(RunState& rs, Platform& os) {
    // A cancelled dialog hands back the proposed name and the write goes on: the question about overwriting is the
    // user's way out.
    rs.SetFilePath = os.save_file(settings_save_dialog(rs)).value_or(rs.SettingsPath);
    WriteSettings(rs, os);
}

}  // namespace kolvar
