#include "screens/uranium_lead_files.hpp"

#include <array>

#include "import/data_file.hpp"
#include "import/file_format.hpp"
#include "screens/screens.hpp"
#include "screens/sequence.hpp"

namespace kolvar {

namespace {

void list_missing(Context& context) {
    const RunState& rs = context.rs;
    struct Role {
        const char* name;
        int column;
    };
    const std::array<Role, 7> roles{{{"Pb204", rs.ColPb204},
                                     {"Pb206", rs.ColPb206},
                                     {"Pb207", rs.ColPb207},
                                     {"Pb208", rs.ColPb208},
                                     {"Th232", rs.ColTh232},
                                     {"U235", rs.ColU235},
                                     {"U238", rs.ColU238}}};
    std::string& list = context.forms.frm_Missing_UPb.lblLista.text;
    list.clear();
    for (const Role& role : roles)
        if (role.column == 0) list += std::string("  ") + role.name;
}

void cmdSorry(Context& context) {
    context.shell.open(context.forms.frm1_Settings);
    context.rs.HgChosen = false;
    context.shell.close(context.forms.frm_Missing_UPb);
}

int hg_columns(const RunState& rs) {
    int count = 0;
    for (const int column : {rs.ColHg198, rs.ColHg199, rs.ColHg200, rs.ColHg201, rs.ColHg202})
        if (column > 0) ++count;
    return count;
}

struct HgChoice {
    int mass;
    OptionButton& option;
    Button& button;
    int column;
};

std::array<HgChoice, 5> hg_choices(const RunState& rs, FrmHgIsot& form) {
    return {{{198, form.opt198, form.cmd198, rs.ColHg198},
             {199, form.opt199, form.cmd199, rs.ColHg199},
             {200, form.opt200, form.cmd200, rs.ColHg200},
             {201, form.opt201, form.cmd201, rs.ColHg201},
             {202, form.opt202, form.cmd202, rs.ColHg202}}};
}

void open_hg_question(Context& context) {
    FrmHgIsot& form = context.forms.frm_Hg_isot;
    const bool flex = context.rs.Method == 3;
    form.Label1.text = flex ? "Both Pt195 and Pt198 isotopes measured." : "More Hg isotopes are in the data file";
    form.Label2.text = flex ? "Which count should KOLVAR use to present the Pt results?"
                            : "Which Hg isotope should KOLVAR use to extract the excess Hg204 counts from the Pb 204 "
                              "signal?";
    form.cmd201.text = flex ? "Pt195" : "Hg201";
    form.cmd202.text = flex ? "Pt198" : "Hg202";
    form.cmd201.visible = form.cmd202.visible = flex;
    for (const HgChoice& choice : hg_choices(context.rs, form)) {
        choice.option.set_value_quietly(0);
        choice.option.enabled = choice.column > 0;
        choice.option.visible = !flex;
    }
}

void choose_hg(Context& context, std::size_t which, Form& next) {
    RunState& rs = context.rs;
    FrmHgIsot& form = context.forms.frm_Hg_isot;
    const HgChoice choice = hg_choices(rs, form)[which];
    rs.HgMass = choice.mass;
    rs.ColHg = choice.column;
    rs.HgChosen = true;
    if (in_sequence(rs) && &next == &context.forms.frm2_UP) {
        context.shell.close(form);
        return show_file_in_work(context);
    }
    context.shell.open(next);
    context.shell.close(form);
}

}  // namespace

bool lacks_isotopes(const RunState& rs) {
    return rs.ColPb206 == 0 || rs.ColPb207 == 0 || rs.ColPb208 == 0 || rs.ColU238 == 0;
}

bool refused_for_missing_isotopes(Context& context) {
    if (!lacks_isotopes(context.rs)) return false;
    context.shell.open(context.forms.frm_Missing_UPb);
    return true;
}

bool asked_about_mercury(Context& context) {
    RunState& rs = context.rs;
    if (hg_columns(rs) <= 1 || rs.Method != 1) return false;
    rs.HgChosen = false;
    rs.PlotOn = 0;
    context.shell.open(context.forms.frm_Hg_isot);
    return true;
}

void go_on_with_new_file(Context& context, Form& from) {
    RunState& rs = context.rs;
    if (refused_for_missing_isotopes(context)) return context.shell.close(from);
    context.forms.frm1_Settings.cmdOK1.visible = true;
    rs.PlotOn = 0;
    context.shell.close(from);
    if (asked_about_mercury(context)) return;
    rs.HgChosen = true;
    context.shell.open(context.forms.frm2_UP);
}

void load_named_file(Context& context) {
    if (format_of(context.rs.DataFilePath) != FileFormat::none) load_in_place_of_former(context);
}

void choose_next_file(Context& context) {
    RunState& rs = context.rs;
    if (!name_data_file(rs, context.os, rs.AppPath2)) return;
    load_named_file(context);
    rs.BlankFromData = 1;
    go_on_with_new_file(context, context.forms.frm2_UP);
}

void connect_uranium_lead_reports(Program& program) {
    Context& context = program.context();
    Forms& forms = context.forms;
    program.shell().set_hooks(forms.frm_Missing_UPb, {[&context] { list_missing(context); }, {}});
    program.shell().set_hooks(forms.frm_Hg_isot, {[&context] { open_hg_question(context); }, {}});
    for (const char* control : {"cmdSorry", ""})
        program.on(forms.frm_Missing_UPb, control, *control == '\0' ? EventKind::close : EventKind::click,
                   [&context](const Event&) { cmdSorry(context); });
    for (std::size_t which = 0; which < 5; ++which) {
        const std::string mass = std::to_string(198 + which);
        program.on(forms.frm_Hg_isot, "opt" + mass, EventKind::click,
                   [&context, which](const Event&) { choose_hg(context, which, context.forms.frm2_UP); });
        program.on(forms.frm_Hg_isot, "cmd" + mass, EventKind::click,
                   [&context, which](const Event&) { choose_hg(context, which, context.forms.frm2_Time); });
    }
    // Left without a choice: the question stands, and the file must be chosen again.
    program.on(forms.frm_Hg_isot, "", EventKind::close, [&context](const Event&) {
        context.shell.open(context.forms.frm1_Settings);
        context.shell.close(context.forms.frm_Hg_isot);
        context.shell.close(context.forms.frm2_UP);  // in a sequence it waited for the answer
    });
}

}  // namespace kolvar
