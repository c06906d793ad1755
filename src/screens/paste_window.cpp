// Data from the clipboard in the first window, and the window that tells why they could not be read.
#include "import/data_file.hpp"
#include "import/paste.hpp"
#include "screens/screens.hpp"
#include "screens/settings_panels.hpp"

namespace kolvar {

namespace {

void cmdPaste(Context& context) {
    ClearData(context.rs);
    context.rs.DataFileName = "  ";
    PasteData(context);
    context.forms.frm1_Settings.lblCSV.text = context.rs.DataFileName;
    fill_lists(context);
}

// The U/Pb and FLEX panel. The table takes the place of a file: the way on is open once it was read.
void cmdPaste1(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    ClearData(rs);
    form.cmdOK1.visible = false;
    form.lblUP.text = "  ";
    // Whether the report of a table refused before still stands open says nothing about this one.
    if (!PasteData(context) || (rs.Method != 1 && rs.Method != 3)) return;
    rs.PlotOn = 0;
    rs.BlankFromData = 1;
    form.cmdOK1.visible = true;
}

// Without a name there are no data: the way on asks for a file.
void close_report(Context& context) {
    context.rs.DataFileName.clear();
    context.shell.close(context.forms.frmPaste);
}

}  // namespace

void connect_paste(Program& program) {
    Context& context = program.context();
    program.on(context.forms.frm1_Settings, "cmdPaste", EventKind::click,
               [&context](const Event&) { cmdPaste(context); });
    program.on(context.forms.frm1_Settings, "cmdPaste1", EventKind::click,
               [&context](const Event&) { cmdPaste1(context); });
    program.on(context.forms.frmPaste, "cmdClose", EventKind::click,
               [&context](const Event&) { close_report(context); });
    program.on(context.forms.frmPaste, "", EventKind::close, [&context](const Event&) { close_report(context); });
}

}  // namespace kolvar
