#include "core/stat_tables.hpp"

#include "core/files.hpp"
#include "core/records.hpp"

namespace kolvar {
namespace {

constexpr int first_grubbs = 3;
constexpr int last_grubbs = 100;
constexpr int last_student = 101;

void warn_of_table(Platform& os, const char* name) {
    os.warn(std::string("Error occurred while trying to load file: '") + name +
                "'\nThis statistical table must be in the directory where the EXE file is placed.",
            "KOLVAR");
}

RecordReader open_table(RunState& rs, const char* name) {
    const std::string path = join_path(rs.AppPath1, name);
    RecordReader records(to_text(read_bytes(path)), path);
    rs.LineBuf = records.line();
    return records;
}

}  // namespace

void LoadGrubbs(RunState& rs, Platform& os) {
    Running running(rs, "LoadGrubbs");
    guarded(
        [&] {
            RecordReader records = open_table(rs, "grubbs.dat");
            // The number of data comes from the place of the line; the number written in it is passed over.
            for (int n = first_grubbs; n <= last_grubbs; ++n) {
                rs.LineBuf = records.text_field();
                rs.GrubbsP10(n) = records.number_field();
                rs.GrubbsP7_5(n) = records.number_field();
                rs.GrubbsP5(n) = records.number_field();
                rs.GrubbsP2_5(n) = records.number_field();
                rs.GrubbsP1(n) = records.number_field();
            }
        },
        [&](const Fault&) { warn_of_table(os, "grubbs.dat"); });
}

void LoadStudent(RunState& rs, Platform& os) {
    Running running(rs, "LoadStudent");
    guarded(
        [&] {
            RecordReader records = open_table(rs, "student.dat");
            // No calculation reads these columns; the user is told all the same when the file is not whole.
            for (int n = 1; n <= last_student; ++n) {
                rs.LineBuf = records.text_field();
                rs.StudentT1(n) = records.number_field();
                rs.StudentT2(n) = records.number_field();
                rs.StudentT3(n) = records.number_field();
                rs.StudentT4(n) = records.number_field();
                rs.StudentT5(n) = records.number_field();
                rs.StudentT6(n) = records.number_field();
            }
        },
        [&](const Fault&) { warn_of_table(os, "student.dat"); });
}

double grubbs_critical(const RunState& rs, std::string_view level, int n) {
    const Table1<Cell>* column = nullptr;
    if (level == " 1") column = &rs.GrubbsP1;
    if (level == "2.5") column = &rs.GrubbsP2_5;
    if (level == " 5") column = &rs.GrubbsP5;
    if (level == "7.5") column = &rs.GrubbsP7_5;
    if (level == "10") column = &rs.GrubbsP10;
    if (n < first_grubbs) return 0.0;
    if (n > last_grubbs) fail(FaultKind::index);
    // A level without a column, or a number of data without a line, has no critical value, which counts as 0.
    return column != nullptr ? (*column)(n).val() : 0.0;
}

}  // namespace kolvar
