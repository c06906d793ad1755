// The choice of a folder: where the start kit lies.
#include "core/files.hpp"
#include "core/records.hpp"
#include "screens/screens.hpp"

namespace kolvar {

namespace {

void open_start_kit_folder(Context& context) {
    FrmChoseDir& form = context.forms.frm_ChoseDir;
    form.Dir1.text = native_path(context.rs.WorkPath.empty() ? context.rs.AppPath1 : context.rs.WorkPath);
    form.lblPath.text = form.Dir1.text;
}

// The new folder counts from the next start on.
void save_start_path(Context& context) {
    const Running running(context.rs, "save_start_path");
    RecordWriter writer;
    writer.field(context.forms.frm_ChoseDir.lblPath.text);
    writer.end_record();
    replace_file(context.os, join_path(context.rs.AppPath1, "start_path"), writer.bytes());
    context.shell.close(context.forms.frm_ChoseDir);
}

}  // namespace

void connect_folder_window(Program& program) {
    Context& context = program.context();
    Forms& forms = context.forms;
    program.shell().set_hooks(forms.frm_ChoseDir, {[&context] { open_start_kit_folder(context); }, {}});
    program.on(forms.frm_ChoseDir, "Dir1", EventKind::choose, [&context](const Event& event) {
        context.forms.frm_ChoseDir.Dir1.text = native_path(event.text);
        context.forms.frm_ChoseDir.lblPath.text = context.forms.frm_ChoseDir.Dir1.text;
    });
    program.on(forms.frm_ChoseDir, "cmdSave", EventKind::click, [&context](const Event&) { save_start_path(context); });
    program.on(forms.frm_ChoseDir, "cmdCancel", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_ChoseDir); });
}

}  // namespace kolvar
