#include "screens/up_window.hpp"

#include <array>
#include <memory>
#include <utility>

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "import/data_file.hpp"
#include "screens/defaults_window.hpp"
#include "screens/plots.hpp"
#include "screens/screens.hpp"
#include "screens/selection.hpp"
#include "screens/time_window.hpp"
#include "screens/uranium_lead_files.hpp"
#include "upb/export.hpp"
#include "upb/outliers.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/scatter_plot.hpp"

namespace kolvar {

namespace {

void cmdReject(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (rs.RejectOn) {
        restore_rejected(rs, form);
    } else {
        form.cmdReject.text = "Restore rejection";
        form.lblReject.text = "Rejected:";
        emphasise_rejection(form, true);
        rs.RejectOn = true;
        // Rejected slices are struck out one by one.
        rs.PlotPool = 1;
        form.lblFusion.text = "1";
        form.VScroll2.set_value(1);
        Out_Liers(rs, form);
    }
    draw_UPratio(context);
}

void show_outliers(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    const bool limits = all_limits_set(rs);
    if (limits) draw_UPratio(context);
    const bool on = form.chkShowSD.on();
    if (!on) form.cmdReject.enabled = false;
    if (on && limits) form.cmdReject.enabled = true;
    form.lblReject.visible = form.lblOM.visible = on;
}

void correct_mercury(Context& context) {
    Frm2UP& form = context.forms.frm2_UP;
    form.lblFLEXiso(7).text = form.chkHgCorr.on() ? "Pb204" : "204";
    draw_UPratio(context);
}

void choose_scale(Context& context, bool linear) {
    context.rs.LinearView = linear;
    if (!linear) context.forms.frm2_UP.lblMaxCps2.visible = false;
    if (!linear || context.rs.MaxCps != 0) draw_UP(context);
}

// A zoom bar at v shows the 100 / (101 - v)-th part of the full scale.
void scroll_signals(Context& context) {
    context.rs.YMaxEntry = context.rs.FullMax / (100.0 / (101 - context.forms.frm2_UP.VScroll1.value));
    draw_UP(context);
}

void scroll_ratios(Context& context) {
    RunState& rs = context.rs;
    if (!all_limits_set(rs)) return;
    rs.RatioScale = context.forms.frm2_UP.VScroll3.value;
    draw_UPratio(context);
}

// How many slices make one point: the number beside the bar, which waits for the limits. Outliers are marked slice by
// slice: pooled points bring them back.
void scroll_pool(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (all_limits_set(rs)) {
        rs.PlotPool = form.VScroll2.value;
        form.lblFusion.text = std::to_string(rs.PlotPool);
        if (rs.PlotPool >= 2) {
            restore_rejected(rs, form);
            form.lblReject.visible = form.lblOM.visible = false;
        }
        draw_XY(context);
        draw_UPratio(context);
    }
    rs.AspectFix = false;
}

bool test_limit_refused(Context& context) {
    Frm2UP& form = context.forms.frm2_UP;
    if (Val(form.txtSD.text) >= 1) return false;
    context.os.warn("The s.d. value at the out lier test is too low, type a numer between 1 and 5.");
    form.set_focus(form.txtSD);
    return true;
}

void enter_upper_limit(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (take_scale_entry(context, form, form.lblMaxCps, form.lblXNew, form.txtYMaxInp, rs.YMaxEntry)) draw_UP(context);
}

void connect_plots(Program& program) {
    Context& context = program.context();
    Frm2UP& form = context.forms.frm2_UP;
    connect_plot_clicks(program, form);
    for (const char* picture : {"pict1", "pict2", "pict3"})
        program.on(form, picture, EventKind::resize, [&context, &form](const Event&) {
            lay_out_up_window(context);
            positions_from_slices(context.rs, form);
            draw_UP(context);
        });
    form.VScroll1.changed = [&context] { scroll_signals(context); };
    form.VScroll2.changed = [&context] { scroll_pool(context); };
    form.VScroll3.changed = [&context] { scroll_ratios(context); };
    form.optLi.changed = [&context] { choose_scale(context, true); };
    form.optLo.changed = [&context] { choose_scale(context, false); };
    program.on(form, "lblBeam_St", EventKind::click, [&context](const Event&) { OnBeamStartLabel(context.rs); });
    program.on(form, "lblMaxCps", EventKind::click,
               [&form](const Event&) { open_scale_entry(form, form.lblMaxCps, form.lblXNew, form.txtYMaxInp); });
    program.on(form, "txtYMaxInp", EventKind::enter, [&context](const Event&) { enter_upper_limit(context); });
}

}  // namespace

void connect_up_window(Program& program) {
    Context& context = program.context();
    Frm2UP& form = context.forms.frm2_UP;
    // Drawn when it stands on the screen: where its figures end in a fault, the window is there to mark others.
    const auto fresh = std::make_shared<bool>(false);
    program.shell().set_hooks(form, {[&context, fresh] {
                                         open_up_window(context);
                                         *fresh = true;
                                     },
                                     [&context, fresh] {
                                         activate_up_window(context);
                                         if (std::exchange(*fresh, false)) draw_UP(context);
                                     }});
    connect_plots(program);

    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    for (int k = 0; k < ratio_count; ++k) form.ratio_row(k).box.changed = [&context] { draw_UPratio(context); };
    form.chkLinReg.changed = [&context] { draw_UPratio(context); };
    form.chkHgCorr.changed = [&context] { correct_mercury(context); };
    form.chkShowSD.changed = [&context] { show_outliers(context); };
    for (const int diagram : {0, 1})
        form.optConcord(diagram).changed = [&context, diagram] {
            context.rs.setConcordia = diagram;
            draw_XY(context);
        };
    program.on(form, "txtSD", EventKind::leave, [&context](const Event&) { test_limit_refused(context); });
    program.on(form, "txtSD", EventKind::enter, [&context](const Event&) {
        if (!test_limit_refused(context)) draw_UPratio(context);
    });
    click("cmdReject", cmdReject);
    click("Command1", [](Context& c) { c.rs.AspectFix = true; });
    click("cmdCopyHead", copy_to_clpb);
    click("cmdCopyMas", copy_to_clpb);
    click("cmdCopy", [](Context& c) {
        c.rs.NoHead = true;
        copy_to_clpb(c);
    });
    click("cmdApp", [](Context& c) {
        c.rs.AppendSummary = true;
        copy_to_clpb(c);
    });
    click("cmdCopySel", copy_selected_slices);
    click("cmdNext", LeaveTimeSelection);
    click("cmdBack", [](Context& c) { leave_for_files(c, c.forms.frm2_UP); });
    click("cmdNewFile", choose_next_file);
    click("cmdSett", open_defaults_window);
    click("cmdExit", [](Context&) { throw ProgramEnd{0}; });
    for (const char* place : {"", "pictRightSide"})
        program.on(form, place, EventKind::dblclick, [&context](const Event&) {
            const RunState& rs = context.rs;
            if (rs.SelN.val() != 0 && rs.SelLow.is_set() && rs.SelUpp.is_set()) preview_selection(context, true);
        });
    program.on(form, "", EventKind::resize, [&context](const Event&) { resize_up_window(context); });
}

}  // namespace kolvar
