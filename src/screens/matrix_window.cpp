// Step 3: the handlers of the rejection matrix and the ways out of it.
#include "core/files.hpp"
#include "screens/help_window.hpp"
#include "screens/screens.hpp"
#include "settings/reference_files.hpp"
#include "trace/concentrations.hpp"
#include "trace/matrix.hpp"
#include "trace/output.hpp"

namespace kolvar {

namespace {

// What the user has chosen for the rejection, kept for the result table and the file names.
void keep_rejection_model(Context& context) {
    RunState& rs = context.rs;
    const Frm3Matrix& form = context.forms.frm3_Matrix;
    rs.RejProcName = form.comboProc.text;
    rs.RejMinMaxOn = form.chkMinMax.on() ? 1 : 0;
    rs.RejSDLimit = form.chkStDev.on() ? Value(form.txtSD.text) : Value(0);
    rs.RejGrubbsP = form.chkGrubbs.on() ? Value(form.comboProc.text) : Value(0);
}

// The averages of this run as a Standard Measurement File or a Blank File. A cancelled dialog, a "No" and a failed
// write leave the step as it is.
void save_averages(Context& context, const std::string& filter, const std::string& ending) {
    RunState& rs = context.rs;
    bool written = false;
    guarded(
        [&] {
            const auto path = context.os.save_file({filter, 1, default_result_name(rs, ending), rs.AppPath2});
            if (!path || path->empty()) return;
            rs.SetFilePath = *path;
            written = WriteCpsTable(rs, context.os, rs.SetFilePath);
        },
        [](const Fault&) {});
    if (!written) return;
    rs.KeepData = false;
    rs.SelCount = 0;
    rs.DataFileName.clear();
    rs.DataFilePath.clear();
    context.shell.open(context.forms.frm1_Settings);
    context.shell.close(context.forms.frm3_Matrix);
}

void cmdNext(Context& context) {
    RunState& rs = context.rs;
    keep_rejection_model(context);
    ReadRejections(context);
    context.shell.close(context.forms.frm_Omit);  // a list that is still open no longer holds
    if (!rs.OutText.empty()) return context.shell.open(context.forms.frm_Omit);
    ComputeConcentrations(rs, context.os);
    if (rs.ModeData == 1) {
        context.shell.open(context.forms.frm4_Output);
        context.shell.hide(context.forms.frm3_Matrix);  // its cells stay for the way back
    }
    if (rs.ModeCreateSTM == 1)
        save_averages(context, "Standard Measurement File (*.stm)|*.stm|All Files (*.*)|*.*|", ".stm");
    if (rs.ModeCreateBLK == 1) save_averages(context, "Blank File (*.blk)|*.blk|All Files (*.*)|*.*|", ".blk");
}

void cmdBack(Context& context) {
    context.rs.SelCount += 1;
    context.shell.close(context.forms.frm_Omit);
    context.shell.open(context.forms.frm2_Time);
    context.shell.close(context.forms.frm3_Matrix);
}

}  // namespace

void connect_matrix_window(Program& program) {
    Context& context = program.context();
    Frm3Matrix& form = context.forms.frm3_Matrix;
    program.shell().set_hooks(form, {[&context] { load_matrix(context); }, {}});

    form.optCPS.changed = form.optCpsSD.changed = form.optIIS.changed =
        form.optIisSD.changed = [&context] { FillTable(context); };
    form.chkShowMinMax.changed = [&context] { switch_show_min_max(context); };
    form.chkShowStDev.changed = [&context] { switch_show_deviation(context); };
    form.chkShowGrubbs.changed = [&context] { switch_show_grubbs(context); };
    form.chkMinMax.changed = [&context] { switch_reject_min_max(context); };
    form.chkStDev.changed = [&context] { switch_reject_deviation(context); };
    form.chkGrubbs.changed = [&context] { switch_reject_grubbs(context); };

    program.on(form, "comboProc", EventKind::type, [&context](const Event&) { refuse_typed_level(context); });
    program.on(form, "FlexGrid1", EventKind::cell_click,
               [&context](const Event& event) { click_matrix(context, event.row, event.col); });
    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click("cmdReset", reset_rejection);
    click("cmdNext", cmdNext);
    click("cmdBack", cmdBack);
    click("cmdCancel", [](Context&) { throw ProgramEnd{0}; });
    click("hlp3", [](Context& c) { open_help(c, "kol-grubbs.pdf"); });
}

}  // namespace kolvar
