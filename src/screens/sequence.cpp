#include "screens/sequence.hpp"

#include "batch/master_file.hpp"
#include "core/files.hpp"
#include "import/data_file.hpp"
#include "screens/plots.hpp"
#include "screens/screens.hpp"
#include "screens/selection.hpp"
#include "screens/up_window.hpp"
#include "screens/uranium_lead_files.hpp"

namespace kolvar {

namespace {

int first_sample(const RunState& rs) {
    for (int line = 1; line <= rs.SeqCount; ++line)
        if (!is_standard(rs, line)) return line;
    return 1;  // nothing but standards: the list is shown from its start
}

}  // namespace

bool in_sequence(const RunState& rs) { return rs.SeqMode.is_bool() && rs.SeqMode.number() != 0; }

void load_listed_file(Context& context, const std::string& name) {
    RunState& rs = context.rs;
    rs.DataFileName = name;
    rs.DataFilePath = rs.MasterDir + name;
    clear_ratio_results(rs);
    // A file of another kind stands in the list beside the tables: the walk goes on over it with the data at hand.
    load_named_file(context);
}

void show_file_in_work(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    rs.HgChosen = true;
    rs.PlotOn = 0;
    const bool stood_open = form.loaded;
    context.shell.open(form);
    context.shell.close(context.forms.frm1_Settings);
    rs.PlotOn = 0;
    if (!stood_open) return;  // its opening has shown the strip, and it is drawn when it stands on the screen
    renew_up_window(context);
    show_sequence(context);
    draw_UP(context);
}

void Sequence_next(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "Sequence_next");
    rs.Method = 1;
    rs.BlankFromData = 1;
    keep_as_former(rs);
    if (rs.NextFile.empty()) return;
    load_listed_file(context, rs.NextFile);
    if (refused_for_missing_isotopes(context)) {
        // The screen stays below the report, so that the walk can go on over this file.
        for (Button& button : context.forms.frm2_UP.cmdSaveAnd) button.enabled = false;
        return context.shell.close(context.forms.frm1_Settings);
    }
    if (asked_about_mercury(context)) {
        // Out of the way until the question is answered, and then as it was.
        context.shell.close(context.forms.frm1_Settings);
        return context.shell.hide(context.forms.frm2_UP);
    }
    show_file_in_work(context);
}

void open_listed_file(Context& context, int line) {
    RunState& rs = context.rs;
    const std::string name = rs.MasterRecs(line, 0).text();
    if (name.empty()) return;
    rs.SeqPos = line;
    rs.NextFile = name;
    context.shell.hide(context.forms.frm_FileList);
    Sequence_next(context);
}

// A window that stands open shows the list of an earlier moment.
void open_list_window(Context& context, int mode) {
    context.rs.ListMode = mode;
    context.shell.close(context.forms.frm_FileList);
    context.shell.open(context.forms.frm_FileList);
}

// Windows that stand open would go on with the figures of the former list, and write them into the new one.
void leave_former_list(Context& context) {
    context.shell.close(context.forms.frm_drift);
    context.shell.close(context.forms.frm_FileList);
    context.forms.frm2_UP.pictSeq.enabled = true;  // it rests while a list is made
}

void cmdOpenMaster(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "cmdOpenMaster");
    rs.SetFilePath = context.os.open_file({"All Files (*.*)|*.*|Master Files (*.msf)|*.msf", 2, "", rs.MasterDir});
    const std::string path = rs.SetFilePath;
    if (!path.empty()) ReadMaster(rs, path);
    rs.SeqMode = true;
    if (path.empty()) return;
    leave_former_list(context);
    rs.MasterName = file_name(path);
    rs.MasterPath = path;
    rs.MasterDir = native_path(path.substr(0, path.size() - rs.MasterName.size()));
    rs.SeqPos = rs.SeqPhase == 3 ? first_sample(rs) : 1;
    rs.NextFile = rs.SeqCount < 1 ? "" : rs.MasterRecs(rs.SeqPos, 0).text();
    Sequence_next(context);
}

void connect_sequence(Program& program) {
    Context& context = program.context();
    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(context.forms.frm2_UP, control, EventKind::click,
                   [&context, handler](const Event&) { handler(context); });
    };
    connect_moves(program);
    click("cmdOpenSeq", [](Context& c) { open_list_window(c, 1); });
    click("cmdShowTab", [](Context& c) { open_list_window(c, 2); });
    click("cmdInterpolation", [](Context& c) { c.shell.open(c.forms.frm_drift); });
    click("cmdPlot", [](Context& c) { c.shell.open(c.forms.frm_drift); });
}

}  // namespace kolvar
