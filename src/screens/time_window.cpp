#include "screens/time_window.hpp"

#include "core/numbers.hpp"
#include "screens/plots.hpp"
#include "screens/screens.hpp"
#include "screens/selection.hpp"
#include "screens/set_is_window.hpp"
#include "trace/quick_results.hpp"

namespace kolvar {

namespace {

// A zoom bar at v shows the 100 / (101 - v)-th part of the full scale.
double zoomed(double full, int bar) { return full / (100.0 / (101 - bar)); }

void scroll_upper(Context& context) {
    RunState& rs = context.rs;
    rs.YMaxEntry = zoomed(rs.FullMax, context.forms.frm2_Time.VScroll1.value);
    if (all_limits_set(rs)) draw_all(context);
}

void scroll_lower(Context& context) {
    RunState& rs = context.rs;
    rs.YMaxEntry2 = zoomed(rs.FullMax2, context.forms.frm2_Time.VScroll3.value);
    if (all_limits_set(rs)) draw_all(context);
}

void choose_scale(Context& context, bool linear) {
    RunState& rs = context.rs;
    rs.LinearView = linear;
    context.forms.frm2_Time.lblMaxCps2.visible = linear;
    if (rs.setAllCurve.val() == 0) return draw_pict1(context);
    rs.ScaleFresh = rs.ScaleFresh2 = true;
    draw_all(context);
    context.forms.frm2_Time.VScroll1.set_value(1);
}

void enter_upper_limit(Context& context) {
    Frm2Time& form = context.forms.frm2_Time;
    // The single-curve drawing also where all curves are shown: the next redraw brings them back.
    if (take_scale_entry(context, form, form.lblMaxCps, form.lblXNew, form.txtYMaxInp, context.rs.YMaxEntry))
        draw_pict1(context);
}

void enter_lower_limit(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    if (!take_scale_entry(context, form, form.lblMaxIIS, form.lblXNew2, form.txtYMaxInp2, rs.YMaxEntry2)) return;
    if (rs.ModeData != 1) return;
    if (rs.setAllCurve.val() == 0)
        draw_pict1(context);
    else if (rs.setAllCurve.val() == 1)
        draw_all(context);
}

void cmdHorizLines(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    const bool to_show = form.cmdHorizLines.text == "Horiz. lines ON";
    form.cmdHorizLines.text = to_show ? "Horiz. lines OFF" : "Horiz. lines ON";
    rs.setShow_linesIS = to_show ? 1 : 0;
    reset_zoom(form);
    draw_all(context);
}

void take_curves(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    for (int i = 1; i <= choosable_analytes(rs); ++i) rs.CurveOn(i) = form.chkIs(i).on();
    reset_zoom(form);
    rs.ScaleFresh = rs.ScaleFresh2 = true;
}

void click_analyte(Context& context, int analyte) {
    Frm2Time& form = context.forms.frm2_Time;
    take_curves(context);
    if (ratio_panel_in_edit_mode(form))
        for (Label& label : form.lblRatio)
            if (label.back == palette(14)) label.text = form.chkIs(analyte).text;
    draw_all(context);
}

void cmdSel(Context& context) {
    Frm2Time& form = context.forms.frm2_Time;
    const bool on = form.cmdSel.text == "Select all";
    form.cmdSel.text = on ? "Deselect all" : "Select all";
    for (int i = 1; i <= choosable_analytes(context.rs); ++i) form.chkIs(i).set_value_quietly(on ? 1 : 0);
    take_curves(context);
    draw_all(context);
}

// A double click beside the plots: averages of what is marked, if enough is marked.
void preview_averages(Context& context) {
    RunState& rs = context.rs;
    if (rs.SelN.val() == 0 || !rs.SelLow.is_set() || !rs.SelUpp.is_set()) return;
    for (int i = 1; i <= rs.nIso; ++i) rs.nData(i) = rs.SelN.val();  // also where the blank is missing yet
    if (rs.BlankFromData == 1 && (!rs.BlkLow.is_set() || !rs.BlkUpp.is_set())) return;
    ShowAverages(context);
}

void connect_plots(Program& program) {
    Context& context = program.context();
    Frm2Time& form = context.forms.frm2_Time;
    connect_plot_clicks(program, form);
    for (const char* picture : {"pict1", "pict2"})
        program.on(form, picture, EventKind::resize, [&context](const Event&) {
            lay_out_time_window(context);
            positions_from_slices(context.rs, context.forms.frm2_Time);
            if (context.rs.setAllCurve.val() == 0)
                draw_pict1(context);
            else
                draw_all(context);
        });
    form.VScroll1.changed = [&context] { scroll_upper(context); };
    form.VScroll3.changed = [&context] { scroll_lower(context); };
    form.optLi.changed = [&context] { choose_scale(context, true); };
    form.optLo.changed = [&context] { choose_scale(context, false); };
    program.on(form, "txtYMaxInp", EventKind::enter, [&context](const Event&) { enter_upper_limit(context); });
    program.on(form, "txtYMaxInp2", EventKind::enter, [&context](const Event&) { enter_lower_limit(context); });
    program.on(form, "lblMaxCps", EventKind::click,
               [&form](const Event&) { open_scale_entry(form, form.lblMaxCps, form.lblXNew, form.txtYMaxInp); });
    program.on(form, "lblMaxIIS", EventKind::click,
               [&form](const Event&) { open_scale_entry(form, form.lblMaxIIS, form.lblXNew2, form.txtYMaxInp2); });
}

}  // namespace

void connect_plot_clicks(Program& program, TimeScreen& form) {
    Context& context = program.context();
    for (const int plot : {1, 2}) {
        const std::string picture = "pict" + std::to_string(plot);
        program.on(form, picture, EventKind::press, [&context, &form, plot](const Event& event) {
            OnPlotDown(context, form, plot, event.button, event.shift, event.x, event.y);
        });
        program.on(form, picture, EventKind::release, [&context, &form](const Event&) { OnPlotUp(context, form); });
    }
}

void leave_for_files(Context& context, TimeScreen& form) {
    RunState& rs = context.rs;
    rs.WindowWasNormal = 1;
    context.shell.open(context.forms.frm1_Settings);
    rs.FullMax = rs.FullMax2 = rs.MaxCps = rs.MaxRatio = 0;
    rs.YMaxEntry = rs.YMaxEntry2 = 0;
    context.shell.close(form);
    rs.CameBack = 1;
}

void open_scale_entry(TimeScreen& form, const Label& shown, Label& head, Entry& entry) {
    head.visible = entry.visible = true;
    entry.text = shown.text;
    form.set_focus(entry);
}

bool take_scale_entry(Context& context, TimeScreen& form, Label& shown, Label& head, Entry& entry, Value& limit) {
    const double typed = Val(entry.text);
    if (typed <= 0) {
        context.os.warn("The entered value is not a positive number!");
        entry.text.clear();
        form.set_focus(entry);
        return false;
    }
    shown.text = decimal(typed);
    head.visible = entry.visible = false;
    entry.text.clear();
    limit = typed;
    return true;
}

void reset_zoom(Frm2Time& form) {
    form.VScroll1.set_value(1);
    form.VScroll3.set_value(1);
}

void connect_time_window(Program& program) {
    Context& context = program.context();
    Frm2Time& form = context.forms.frm2_Time;
    program.shell().set_hooks(
        form, {[&context] { open_time_window(context); }, [&context] { activate_time_window(context); }});
    connect_plots(program);
    connect_ratio_panel(program);

    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click("cmdHorizLines", cmdHorizLines);
    click("cmdSel", cmdSel);
    click("cmdShowConc", ShowAverages);
    click("cmdAppQuick", [](Context& c) { AppendQuickResults(c.rs, c.os, QuickCall::from_time_selection); });
    click("cmsSettings", [](Context& c) {
        c.shell.close(c.forms.frm2_Time);
        open_set_is(c, "back to time");
    });
    click("cmdNext", LeaveTimeSelection);
    click("cmdBack", [](Context& c) { leave_for_files(c, c.forms.frm2_Time); });
    click("cmdExit", [](Context&) { throw ProgramEnd{0}; });
    program.on(form, "chkIs", EventKind::click,
               [&context](const Event& event) { click_analyte(context, event.index); });
    for (const char* place : {"", "pictRightSide"})
        program.on(form, place, EventKind::dblclick, [&context](const Event&) { preview_averages(context); });
    program.on(form, "", EventKind::resize, [&context](const Event&) { OnResize(context); });
}

}  // namespace kolvar
