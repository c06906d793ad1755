// The small windows: gaps in the reference files, too few data, average concentrations.
#include "screens/screens.hpp"
#include "screens/settings_window.hpp"
#include "trace/matching.hpp"
#include "trace/output.hpp"

namespace kolvar {

namespace {

// A list of names without the comma and the two blanks behind its last name.
std::string shown_list(const std::string& list) { return list.empty() ? list : list.substr(0, list.size() - 3); }

void back_to_file_selection(Context& context, Form& report) {
    context.shell.open(context.forms.frm1_Settings);
    back_to_file_choice(context);
    context.shell.close(report);
}

void open_missing_dwell(Context& context) {
    FrmDwell& form = context.forms.frm_Dwell;
    form.lblDWE.text = shown_list(context.rs.MissDWE);
    form.lblEffect.text =
        context.rs.setCPS_IS.val() == 0
            ? "CONCENTRATIONS WILL BE INCORRECT!"
            : "The lack of the dwell times does not allow to calculate the errors of the concentrations.";
}

// Isotopes without a dwell time take the shortest one that is known.
void continue_with_shortest_dwell(Context& context) {
    RunState& rs = context.rs;
    double shortest = 100000;
    for (int i = 1; i <= rs.nIso; ++i)
        if (rs.Dwell(i).is_number() && rs.Dwell(i).held < shortest) shortest = rs.Dwell(i).held;
    for (int i = 1; i <= rs.nIso; ++i)
        if (rs.Dwell(i).is_empty()) rs.Dwell(i) = shortest;
    rs.RefsMatched = true;
    AssignInternalStandards(rs);
    MatchReferences(context);
    context.shell.close(context.forms.frm_Dwell);
}

void open_missing_isotopes(Context& context) {
    FrmMissingIso& form = context.forms.frm_MissingIso;
    form.lblSTC.text = shown_list(context.rs.MissSTC);
    form.lblSTM.text = shown_list(context.rs.MissSTM);
    form.lblBLK.text = shown_list(context.rs.MissBLK);
}

}  // namespace

void connect_report_windows(Program& program) {
    Context& context = program.context();
    Forms& forms = context.forms;
    Shell& shell = program.shell();
    shell.set_hooks(forms.frm_Dwell, {[&context] { open_missing_dwell(context); }, {}});
    shell.set_hooks(forms.frm_MissingIso, {[&context] { open_missing_isotopes(context); }, {}});
    shell.set_hooks(forms.frm_Omit, {[&context] { context.forms.frm_Omit.lblList.text = context.rs.OutText; }, {}});
    shell.set_hooks(forms.frm_AverConc, {[&context] { load_averages(context); }, {}});

    for (Form* report : {static_cast<Form*>(&forms.frm_Dwell), static_cast<Form*>(&forms.frm_MissingIso)}) {
        const auto back = [&context, report](const Event&) { back_to_file_selection(context, *report); };
        program.on(*report, "cmdBack", EventKind::click, back);
        program.on(*report, "", EventKind::close, back);
    }
    program.on(forms.frm_Dwell, "cmdCont", EventKind::click,
               [&context](const Event&) { continue_with_shortest_dwell(context); });
    program.on(forms.frm_MissingIso, "cmdCont", EventKind::click, [&context](const Event&) {
        context.shell.open(context.forms.frm2_Time);
        context.shell.close(context.forms.frm_MissingIso);
    });
    program.on(forms.frm_Omit, "cmdOK", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_Omit); });

    program.on(forms.frm_Batch_IS, "cmdClose", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_Batch_IS); });
}

}  // namespace kolvar
