// The strip of frm2_UP that tells where the batch stands.
#include <initializer_list>

#include "batch/master_file.hpp"
#include "screens/sequence.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

void show_title(Frm2UP& form, const char* title) {
    form.lblRizsa(3).text = form.lblSeqTitle.text = title;
    form.lblRizsa(3).visible = true;
}

void show_counters(const RunState& rs, Frm2UP& form) {
    const std::string standards = std::to_string(rs.SeqStdCount) + " / ";
    form.lblStdFiNum.text = standards + (rs.SeqStdDone == rs.SeqStdCount ? std::string("ALL DONE")
                                                                         : std::to_string(rs.SeqStdDone) + " done");
}

// The count of samples done begins at that of the standards.
void show_samples(const RunState& rs, Frm2UP& form) {
    form.lblSamFiNum.text = std::to_string(rs.SeqCount - rs.SeqStdCount);
    if (rs.SeqPhase != 3 || rs.SeqStdDone != rs.SeqStdCount) return;
    form.lblSamFiNum.text +=
        rs.SeqSamDone == rs.SeqCount ? " / ALL DONE" : " / " + std::to_string(rs.SeqSamDone - rs.SeqStdCount) + " done";
}

// There are lines to walk through, and no other list is being made in their place.
bool has_list(const RunState& rs, const Frm2UP& form) {
    return form.pictSeq.enabled && rs.SeqCount > 0 && !rs.MasterRecs(1, 0).text().empty();
}

// The way to the interpolation opens with the move that follows the last standard, and stays open until it was taken.
void show_phase(RunState& rs, Frm2UP& form) {
    if (!has_list(rs, form)) return;
    if (rs.SeqStdDone == rs.SeqStdCount && rs.MasterRecs(1, 5).text().empty()) rs.SeqPhase = 2;
    if (rs.SeqPhase == 2) form.cmdInterpolation.visible = true;
}

}  // namespace

void show_sequence(Context& context) {
    RunState& rs = context.rs;
    if (!in_sequence(rs)) return;
    const Running running(rs, "show_sequence");
    Frm2UP& form = context.forms.frm2_UP;
    const bool results = all_limits_set(rs);
    form.cmdSaveAnd(0).enabled = form.cmdSaveAnd(1).enabled = results && can_save_line(rs);
    form.cmdCopyMas.enabled = results;
    if (rs.SeqPhase == 1 || rs.SeqPhase == 2) show_title(form, "Sequential processing of standard files");
    if (rs.SeqPhase == 3) {
        show_title(form, "Sequential processing of sample files");
        form.cmdInterpolation.visible = false;
        form.cmdPlot.enabled = true;
    }
    form.cmdNewFile.visible = form.cmdApp.visible = false;
    form.pictSeq.visible = form.lblRizsa(30).visible = form.lblDir.visible = true;
    form.lblmicsoda.text = "  " + rs.DataFileName;
    form.lblDir.text = "  " + rs.MasterName;
    form.lblPos.text = std::to_string(rs.SeqPos) + " of " + std::to_string(rs.SeqCount);
    if (rs.SeqPos >= 1 && rs.SeqPos <= rs.SeqCount && is_processed(rs, rs.SeqPos)) form.lblPos.text += "  (processed)";
    show_counters(rs, form);
    show_phase(rs, form);
    show_samples(rs, form);
}

void hide_sequence(Frm2UP& form) {
    for (Control* control : std::initializer_list<Control*>{&form.pictSeq, &form.lblRizsa(3), &form.lblRizsa(30),
                                                            &form.lblDir, &form.cmdInterpolation})
        control->visible = false;
    form.cmdNewFile.visible = form.cmdApp.visible = true;
    form.cmdPlot.enabled = false;
    form.lblRizsa(3).text.clear();
    form.lblSeqTitle.text.clear();
}

}  // namespace kolvar
