// The moves through a master list, and saving the results of the line in work before them.
#include <array>

#include "batch/line_results.hpp"
#include "batch/master_file.hpp"
#include "import/data_file.hpp"
#include "screens/sequence.hpp"
#include "screens/uranium_lead_files.hpp"

namespace kolvar {

namespace {

bool in_list(const RunState& rs, int line) { return line >= 1 && line <= rs.SeqCount; }

bool passed_over(const RunState& rs, int line) {
    if (!in_list(rs, line)) return true;
    if (rs.SeqPhase == 1 || rs.SeqPhase == 2) return !is_standard(rs, line);
    return rs.SeqPhase == 3 && is_standard(rs, line);
}

bool goes_round(const RunState& rs, Platform& os, int step) {
    if (rs.SeqPhase == 3)
        return os.ask(step > 0 ? "This is the last sample file. Process the first one?"
                               : "This is the first sample file. Process the last one?");
    return os.ask(step > 0 ? "This is the last standard file. Process the first one?"
                           : "This is the first standard file. Process the last one?");
}

// +1 to the next file of the kind in work, -1 to the previous one.
void move_in_list(Context& context, int step) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    do {
        rs.SeqPos += step;
        const bool left = step > 0 ? rs.SeqPos > rs.SeqCount : rs.SeqPos < 1;
        if (!left) continue;
        if (!goes_round(rs, context.os, step)) {
            // The position stays beyond the end, where the next move starts from; no line is in work there.
            form.cmdSaveAnd(0).enabled = form.cmdSaveAnd(1).enabled = false;
            return;
        }
        rs.SeqPos = step > 0 ? 0 : rs.SeqCount + 1;
    } while (passed_over(rs, rs.SeqPos));
    // The data at hand are of the line before until the next file is there.
    form.cmdSaveAnd(0).enabled = form.cmdSaveAnd(1).enabled = false;
    rs.NextFile = rs.MasterRecs(rs.SeqPos, 0).text();
    Sequence_next(context);
}

// Line and counters, for the case that they can't be written.
class FormerLine {
public:
    explicit FormerLine(const RunState& rs) : standards_(rs.SeqStdDone), samples_(rs.SeqSamDone) {
        for (int field = 0; field <= LastMasterField; ++field)
            fields_[static_cast<std::size_t>(field)] = rs.MasterRecs(rs.SeqPos, field);
    }
    void put_back(RunState& rs) const {
        for (int field = 0; field <= LastMasterField; ++field)
            rs.MasterRecs(rs.SeqPos, field) = fields_[static_cast<std::size_t>(field)];
        rs.SeqStdDone = standards_;
        rs.SeqSamDone = samples_;
    }

private:
    std::array<Value, LastMasterField + 1> fields_;
    int standards_, samples_;
};

void save_and_move(Context& context, int step) {
    RunState& rs = context.rs;
    const Running running(rs, "cmdSaveAnd");
    const FormerLine former(rs);
    store_line(rs, context.forms.frm2_UP, context.os);
    rs.ListMode = 1;
    if (!SaveMaster(rs, context.os, context.forms.frm_FileList.FlexGrid2, rs.MasterPath)) {
        // The list holds what the file holds, and the same button tries again.
        former.put_back(rs);
        return;
    }
    move_in_list(context, step);
}

}  // namespace

bool can_save_line(const RunState& rs) {
    if (!in_list(rs, rs.SeqPos) || !read_to_its_end(rs) || lacks_isotopes(rs)) return false;
    if (rs.MasterRecs(rs.SeqPos, 0).text().empty()) return false;
    // A file that was opened beside the list has no line in it.
    if (!rs.NextFile.empty() && rs.NextFile != rs.DataFileName) return false;
    return !passed_over(rs, rs.SeqPos);
}

void connect_moves(Program& program) {
    Context& context = program.context();
    const Frm2UP& form = context.forms.frm2_UP;
    program.on(form, "cmdOpenPrev", EventKind::click, [&context](const Event&) { move_in_list(context, -1); });
    program.on(form, "cmdOpenNext", EventKind::click, [&context](const Event&) { move_in_list(context, 1); });
    program.on(form, "cmdSaveAnd", EventKind::click,
               [&context](const Event& event) { save_and_move(context, event.index == 0 ? -1 : 1); });
}

}  // namespace kolvar
