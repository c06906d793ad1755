// How the time-selection window comes up.
#include <algorithm>
#include <string>

#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/settings_panels.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

void show_analytes(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    const int analytes = choosable_analytes(rs);
    for (CheckBox& box : form.chkIs) box.visible = false;
    form.lblOver50Iso.visible = rs.nIso > MaxCurveFlags;
    form.frameIso2.visible = rs.nIso > 25;
    bool all_on = true;
    for (int i = 1; i <= analytes; ++i) {
        CheckBox& box = form.chkIs(i);
        box.visible = true;
        box.text = rs.IsoName(i);
        box.set_value_quietly(rs.CurveOn(i) ? 1 : 0);
        all_on = all_on && rs.CurveOn(i);
    }
    form.cmdSel.text = all_on ? "Deselect all" : "Select all";
}

// The ratio panel is shown from the start when the lower plot is set to ratios of analytes.
void show_ratio_panel(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    form.cmdAcceptRatios.text = "Modify ratios";
    form.lblExplanation.visible = false;
    form.pictRatios.visible = rs.setRatio_ppmIS.val() == 2 && rs.ModeData == 1;
    form.cmdRatios.visible = rs.ModeData == 1 && !form.pictRatios.visible;
    find_ratio_columns(rs);
    show_ratio_names(context);
    for (int pair = 1; pair <= MaxShow; ++pair)
        form.chkR(pair).set_value_quietly(rs.setRatioShow(pair).val() != 0 ? 1 : 0);
}

void show_limits(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    const bool blank_of_data = rs.BlankFromData == 1 && rs.ModeCreateBLK != 1;
    form.lblBLKshow.visible = form.lblBLKtolig.visible = blank_of_data;
    form.lblBLKtolig.text.clear();
    form.lblMeasSel.text.clear();
    form.lblLow.text.clear();
    form.lblUpp.text.clear();
    form.lblMeasTot.text = std::to_string(rs.nSlices);
    if (all_limits_set(rs)) {
        form.lblBLKtolig.text = rs.BlkLow.text() + " - " + rs.BlkUpp.text();
        positions_from_slices(rs, form);
    }
    place_limit_labels(rs, form);
}

void reset_scale_controls(Frm2Time& form) {
    form.VScroll1.set_value_quietly(1);
    form.VScroll3.set_value_quietly(1);
    for (Control* hidden : std::initializer_list<Control*>{&form.lblXNew, &form.txtYMaxInp, &form.lblXNew2,
                                                           &form.txtYMaxInp2, &form.lblHgCorrNegative, &form.lblRatios})
        hidden->visible = false;
    form.VScroll1.visible = true;
}

std::string names_of_standards(const RunState& rs) {
    std::string names = rs.IS1name;
    if (rs.setISnum.val() > 1) names += ", " + rs.IS2name;
    if (rs.setISnum.val() == 3) names += ", " + rs.IS3name;
    return names;
}

// A net signal of exactly 0 in an internal standard would end every later division by it.
void keep_standards_above_zero(RunState& rs) {
    const double standards = rs.setISnum.val();
    const int columns[] = {rs.IS1col.val(), standards > 1 ? rs.IS2col.val() : 0, standards == 3 ? rs.IS3col.val() : 0};
    for (const int column : columns) {
        if (column < 1) continue;
        for (int t = 1; t <= rs.nSlices; ++t)
            if (rs.Sig2(column, t) == 0) rs.Sig2(column, t) = 1e-7;
    }
}

}  // namespace

int choosable_analytes(const RunState& rs) { return std::min(rs.nIso, MaxCurveFlags); }

bool all_limits_set(const RunState& rs) {
    return rs.SelLow.is_set() && rs.SelUpp.is_set() && rs.BlkLow.is_set() && rs.BlkUpp.is_set();
}

void enable_results(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    const bool selection = rs.SelLow.is_set() && rs.SelUpp.is_set();
    if (selection && (rs.BlankFromData != 1 || (rs.BlkLow.is_set() && rs.BlkUpp.is_set())))
        form.cmdShowConc.enabled = form.cmdAppQuick.enabled = form.cmdCopyRatios.enabled = true;
}

void open_time_window(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "open_time_window");
    Frm2Time& form = context.forms.frm2_Time;
    const bool data = rs.ModeData == 1;

    form.pict2.visible = form.lblMaxIIS.visible = form.lblMaxIIS2.visible = true;
    reset_scale_controls(form);
    rs.ScaleFresh = rs.ScaleFresh2 = false;
    form.lblmicsoda.text = shown_name(rs.DataFileName);
    form.lblDefa.text = shown_name(rs.SettingsName);
    form.lblRizsa(0).visible = true;
    form.lblMaxCps2.visible = rs.LinearView;
    form.cmdAppQuick.visible = form.cmdShowConc.visible = true;
    show_ratio_panel(context);
    if (!data)
        for (Control* of_concentrations :
             std::initializer_list<Control*>{&form.pict2, &form.lblMaxIIS, &form.lblRatios, &form.VScroll3,
                                             &form.cmdShowConc, &form.cmdAppQuick, &form.lblMaxIIS2})
            of_concentrations->visible = false;
    form.cmdCopyRatios.visible = data;
    // Another number of analytes takes another width from the plots.
    const int former_width = form.pict1.width;
    lay_out_time_window(context);
    if (form.pict1.width != former_width) positions_from_slices(rs, form);
    show_limits(context);
    form.cmdShowConc.enabled = form.cmdAppQuick.enabled = form.cmdCopyRatios.enabled = rs.SelN.val() != 0;
    (rs.LinearView ? form.optLi : form.optLo).set_value_quietly(1);
    form.pictAllIso.visible = true;
    rs.CurvesShown = 1;
    form.VScroll3.visible = data;
    form.cmdHorizLines.text = rs.setShow_linesIS.val() == 1 ? "Horiz. lines OFF" : "Horiz. lines ON";

    if (rs.setAllCurve.val() == 0) {
        rs.YMaxEntry = rs.YMaxEntry2 = "";
        rs.MaxCps = 0;
        for (int t = 1; t <= rs.nSlices; ++t) {
            const double x = position_of(t, form.pict1.width, rs.nSlices);
            form.pict1.canvas.Line(x, 0, x, form.pict1.height, palette(7));
        }
        draw_pict1(context);
    } else {
        show_analytes(context);
    }
    draw_all(context);
    // A window that is shown has had its first resize.
    if (rs.ShowFirst == "elso") OnResize(context);
}

void activate_time_window(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "activate_time_window");
    Frm2Time& form = context.forms.frm2_Time;
    if (rs.PlotOn == 1) form.pict1.canvas.Clear();
    form.lblIIS(2).visible = rs.ModeData == 1;
    if (rs.Method != 0 || rs.ModeData != 1) return;
    keep_standards_above_zero(rs);
    const double shown = rs.setRatio_ppmIS.val();
    if (shown == 0) form.lblIIS(2).text = "Isotope / Internal Standard (" + names_of_standards(rs) + ")";
    if (shown == 1) form.lblIIS(2).text = "Concentration [ppm]";
    if (shown == 2) form.lblIIS(2).text = "Ratio of signals (cps/cps)";
}

}  // namespace kolvar
