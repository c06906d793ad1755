// The list of a batch: files of a folder in the order of measurement, or the files of a master file.
#include "screens/screens.hpp"

namespace kolvar {

void connect_file_list(Program& program) {
    Context& context = program.context();
    FrmFileList& form = context.forms.frm_FileList;
    program.on(form, "cmdClose", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_FileList); });
}

}  // namespace kolvar
