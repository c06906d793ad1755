#include "screens/set_is_window.hpp"

#include <initializer_list>

#include "core/numbers.hpp"
#include "screens/save_marker.hpp"
#include "screens/screens.hpp"
#include "screens/set_is_values.hpp"
#include "settings/settings_file.hpp"

namespace kolvar {

namespace {

constexpr double heaviest_boundary = 300;  // amu; above every isotope
constexpr double lightest_boundary = 6;    // amu; the lightest isotope that is measured
constexpr const char* no_upper_end = "300";

// The last mass below a boundary.
std::string up_to(const Entry& boundary) { return decimal(Val(boundary.text) - 1); }

void enable(std::initializer_list<Control*> controls, bool enabled) {
    for (Control* control : controls) control->enabled = enabled;
}

// Which standards can be filled in, and where the range of masses of each ends.
void follow_standards(FrmSetIS& form) {
    const bool three = form.opt3IS.on();
    const bool two = three || form.opt2IS.on();
    enable({&form.comboIso2, &form.txtISppm2, &form.txtISerr2, &form.txtMass2}, two);
    enable({&form.comboIso3, &form.txtISppm3, &form.txtISerr3, &form.txtMass3}, three);
    form.lblMass1.text = two ? up_to(form.txtMass2) : no_upper_end;
    form.lblMass2.text = three ? up_to(form.txtMass3) : no_upper_end;
    if (three) form.lblMass3.text = no_upper_end;
    form.lblMass2.visible = two;
    form.lblMass3.visible = three;
}

// The ranges of masses, or the way to the periodic system in their place.
void follow_period(FrmSetIS& form) {
    const bool by_mass = !form.optPeriod(1).on();
    form.pictMass.visible = by_mass;
    for (Label& label : form.lblRizsa) label.visible = by_mass;
    form.cmdShow.visible = !by_mass;
}

void follow_result_plot(FrmSetIS& form) {
    const bool ratios = form.optResultPlot(2).on();
    form.Frame6.enabled = ratios;
    for (ListBox& list : form.comboRatio) list.enabled = ratios;
    for (int pair = 1; pair <= MaxShow; ++pair) form.chkRatio(pair).enabled = ratios;
}

void open_window(Context& context) {
    FrmSetIS& form = context.forms.frm_SetIS;
    form.title = "Settings for LA-ICP-MS calculations using internal standard.   FILE: " + context.rs.SettingsName;
    show_settings(form, context.rs);
    follow_standards(form);
    follow_period(form);
    follow_result_plot(form);
}

// The window gives way to the one that it was opened from.
void leave(Context& context) {
    std::string& return_to = context.rs.ReturnTo;
    if (return_to == "back to start") {
        context.shell.open(context.forms.frm1_Settings);
        return_to.clear();
    } else if (return_to == "back to time") {
        context.shell.open(context.forms.frm2_Time);
        return_to.clear();
    }
    context.shell.close(context.forms.frm_SetIS);
}

void save_as(Context& context) {
    const SaveUnderWay save(context.rs);
    Take_New_Values_IS(context);
}

void browse(Context& context, const char* filter, Entry& entry) {
    constexpr int of_this_kind = 2;
    RunState& rs = context.rs;
    rs.SetFilePath = context.os.open_file({filter, of_this_kind, "", rs.AppPath1});
    if (!rs.SetFilePath.empty()) entry.set_text(rs.SetFilePath);
}

void leave_second_boundary(Context& context) {
    FrmSetIS& form = context.forms.frm_SetIS;
    if (Val(form.txtMass2.text) >= lightest_boundary) return;
    context.os.warn("Give bigger value than 6 amu.");
    form.set_focus(form.txtMass2);
}

// Only against the second boundary; with equal ones the third standard takes all from there on, the second none.
void leave_third_boundary(Context& context) {
    FrmSetIS& form = context.forms.frm_SetIS;
    if (Val(form.txtMass2.text) <= Val(form.txtMass3.text)) return;
    context.os.warn("Give bigger value than " + form.txtMass2.text + " amu.");
    form.set_focus(form.txtMass3);
}

void connect_effects(Context& context) {
    FrmSetIS& form = context.forms.frm_SetIS;
    for (OptionButton* option : {&form.opt1IS, &form.opt2IS, &form.opt3IS})
        option->changed = [&form] { follow_standards(form); };
    for (OptionButton& option : form.optPeriod) option.changed = [&form] { follow_period(form); };
    for (OptionButton& option : form.optResultPlot) option.changed = [&form] { follow_result_plot(form); };
    form.txtMass2.changed = [&form] { form.lblMass1.text = up_to(form.txtMass2); };
    form.txtMass3.changed = [&form] { form.lblMass2.text = up_to(form.txtMass3); };
    for (ListBox& list : form.comboRatio)
        list.changed = [&rs = context.rs, &list] {
            if (list.text.empty()) rs.RatioCol(list.index) = 0;
        };
}

}  // namespace

void open_set_is(Context& context, const char* return_to) {
    context.rs.ReturnTo = return_to;
    context.shell.open(context.forms.frm_SetIS);
}

void Take_New_Values_IS(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "Take_New_Values_IS");
    const FrmSetIS& form = context.forms.frm_SetIS;
    const auto refuse = [&](const std::string& standard) {
        context.os.warn("Invalid value!\n\nSet the mass boundary for the " + standard +
                        " internal standard less than 300 amu.");
    };
    // The box speaks of less than 300; 300 itself is taken.
    if (Val(form.txtMass2.text) > heaviest_boundary) return refuse("second");
    if (Val(form.txtMass3.text) > heaviest_boundary) return refuse("third");
    take_settings(form, rs);
    if (rs.SaveRequest == save_marker) {
        rs.SaveRequest.clear();
        const auto path = context.os.save_file(settings_save_dialog(rs));
        // The values are taken all the same; the window stays for another try.
        if (!path) return;
        rs.SetFilePath = *path;
        WriteSettings(rs, context.os);
    }
    leave(context);
}

void connect_set_is_window(Program& program) {
    Context& context = program.context();
    FrmSetIS& form = context.forms.frm_SetIS;
    program.shell().set_hooks(form, {[&context] { open_window(context); }, {}});
    connect_effects(context);

    const auto on = [&](const std::string& control, EventKind kind, void (*handler)(Context&)) {
        program.on(form, control, kind, [&context, handler](const Event&) { handler(context); });
    };
    on("cmdApply", EventKind::click, Take_New_Values_IS);
    on("cmdSaveAs", EventKind::click, save_as);
    on("cmdCancel", EventKind::click, leave);
    on("", EventKind::close, leave);
    on("cmdShow", EventKind::click, [](Context& c) { c.shell.open(c.forms.frm_Period); });
    on("txtMass2", EventKind::leave, leave_second_boundary);
    on("txtMass3", EventKind::leave, leave_third_boundary);
    on("optCPSinData", EventKind::click,
       [](Context& c) { c.os.warn("If you modify the setting here then re-load the data file, please."); });
    on("cmdBrowSTC", EventKind::click, [](Context& c) {
        browse(c, "All Files (*.*)|*.*|Standard Composition Files (*.stc)|*.stc", c.forms.frm_SetIS.txtSTCpath);
    });
    on("cmdBrowSTM", EventKind::click, [](Context& c) {
        browse(c,
               "All Files (*.*)|*.*|Standard Measurement Files (*.stm)|*.stm|"
               "Standard Measurements - Interpolated (*.sti)|*.sti",
               c.forms.frm_SetIS.txtSTMpath);
    });
    on("cmdBrowDwe", EventKind::click, [](Context& c) {
        browse(c, "All Files (*.*)|*.*|Dwell Time Files (*.dwe)|*.dwe", c.forms.frm_SetIS.txtDwePath);
    });
}

}  // namespace kolvar
