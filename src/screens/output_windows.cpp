// Step 4: the handlers of the output window and of the preview.
#include "screens/help_window.hpp"
#include "screens/screens.hpp"
#include "screens/settings_panels.hpp"
#include "trace/output.hpp"
#include "trace/quick_results.hpp"

namespace kolvar {

namespace {

void cmdSave(Context& context) {
    RunState& rs = context.rs;
    Comp_Output(rs, context.os);
    // A cancelled dialog and a failed write end the command without a word; the former file stays whole.
    guarded(
        [&] {
            const auto path = context.os.save_file({"All Files (*.*)|*.*|Tab delimited text files (*.txt)|*.txt", 2,
                                                    default_result_name(rs, ".txt"), rs.AppPath2});
            if (!path || path->empty()) return;
            rs.SetFilePath = *path;
            WriteResultFile(rs, context.os, rs.SetFilePath);
        },
        [](const Fault&) {});
}

void cmdCopyAll(Context& context) {
    Comp_Output(context.rs, context.os);
    context.os.set_clipboard(context.rs.OutText);
}

void cmdPreview(Context& context) {
    Comp_Output(context.rs, context.os);
    context.shell.close(context.forms.frm5_Preview);  // a preview that is still open is filled anew
    context.shell.open(context.forms.frm5_Preview);
}

void close_preview(Context& context) {
    context.shell.open(context.forms.frm4_Output);
    context.shell.close(context.forms.frm5_Preview);
}

void cmdBackRej(Context& context) {
    context.shell.close(context.forms.frm5_Preview);
    context.shell.open(context.forms.frm3_Matrix);
    context.shell.close(context.forms.frm4_Output);
}

// Leaves the results for a new task: no rejection is left, and the matrix forgets its cells.
void leave_for(Context& context, Form& next) {
    reset_rejections(context.rs);
    context.shell.close(context.forms.frm5_Preview);
    context.shell.open(next);
    context.shell.close(context.forms.frm3_Matrix);
    context.shell.close(context.forms.frm4_Output);
}

void cmdNewSel(Context& context) {
    context.rs.SelCount += 1;
    leave_for(context, context.forms.frm2_Time);
}

void cmdNewIS(Context& context) {
    context.rs.KeepData = true;
    context.rs.SelCount = 0;
    leave_for(context, context.forms.frm1_Settings);
}

void cmdNewST(Context& context) {
    RunState& rs = context.rs;
    rs.KeepData = false;
    rs.SelCount = 0;
    for (std::string* forgotten : {&rs.STCfileName, &rs.STCfilePath, &rs.STMfileName, &rs.STMfilePath})
        forgotten->clear();
    leave_for(context, context.forms.frm1_Settings);
}

void cmdClose(Context& context) {
    RunState& rs = context.rs;
    rs.KeepData = false;
    rs.SelCount = 0;
    rs.DataFileName.clear();
    rs.DataFilePath.clear();
    leave_for(context, context.forms.frm1_Settings);
}

}  // namespace

void connect_output_windows(Program& program) {
    Context& context = program.context();
    Frm4Output& form = context.forms.frm4_Output;
    Frm5Preview& preview = context.forms.frm5_Preview;
    program.shell().set_hooks(
        form, {[&context] { context.forms.frm4_Output.lblkivagy.text = shown_name(context.rs.DataFileName); }, {}});
    program.shell().set_hooks(preview, {[&context] { load_preview(context); }, {}});

    const auto click = [&](const Form& window, const std::string& control, void (*handler)(Context&)) {
        program.on(window, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click(form, "cmdSave", cmdSave);
    click(form, "cmdCopyAll", cmdCopyAll);
    click(form, "cmdPreview", cmdPreview);
    click(form, "cmdAppQuick", [](Context& c) { AppendQuickResults(c.rs, c.os, QuickCall::from_results); });
    click(form, "cmdBackRej", cmdBackRej);
    click(form, "cmdNewSel", cmdNewSel);
    click(form, "cmdNewIS", cmdNewIS);
    click(form, "cmdNewST", cmdNewST);
    click(form, "cmdClose", cmdClose);
    click(form, "cmdExit", [](Context&) { throw ProgramEnd{0}; });
    program.on(form, "hlp4", EventKind::click, [&context](const Event& event) {
        open_help(context, event.index == 0 ? "kol-equ-01.pdf" : "kol-out.pdf");
    });
    click(preview, "cmdOK", close_preview);
    program.on(preview, "", EventKind::close, [&context](const Event&) { close_preview(context); });
}

}  // namespace kolvar
