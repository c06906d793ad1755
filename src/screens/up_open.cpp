// How the U/Pb and FLEX screen comes up.
#include <algorithm>
#include <array>
#include <vector>

#include "core/numbers.hpp"
#include "import/recognition.hpp"
#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/sequence.hpp"
#include "screens/settings_panels.hpp"
#include "screens/time_window.hpp"
#include "screens/up_window.hpp"
#include "upb/express.hpp"
#include "upb/outliers.hpp"
#include "upb/ratio_fields.hpp"

namespace kolvar {

namespace {

void show(std::initializer_list<Control*> controls, bool visible) {
    for (Control* control : controls) control->visible = visible;
}

void show_limits(RunState& rs, Frm2UP& form) {
    const bool blank_of_data = rs.BlankFromData == 1 && rs.ModeCreateBLK != 1;
    form.lblBLKshow.visible = form.lblBLKtolig.visible = blank_of_data;
    // There is nothing to copy before a selection of these data has results; the drawing brings the buttons back.
    form.cmdCopyHead.enabled = form.cmdCopy.enabled = form.cmdApp.enabled = form.cmdCopySel.enabled = false;
    if (!blank_of_data && rs.SelN.val() != 0)
        form.cmdCopyHead.enabled = form.cmdCopy.enabled = form.cmdApp.enabled = true;
    form.lblMeasTot.text = std::to_string(rs.nSlices);
    form.lblMeasSel.text.clear();
    form.lblLow.text.clear();
    form.lblUpp.text.clear();
    form.lblBLKtolig.text.clear();
    if (all_limits_set(rs)) {
        form.lblBLKtolig.text = rs.BlkLow.text() + " - " + rs.BlkUpp.text();
        positions_from_slices(rs, form);
    }
    form.cmdZizeges.visible = all_limits_set(rs);
    place_limit_labels(rs, form);
}

// The Wetherill diagram needs U235.
void show_diagram(RunState& rs, Frm2UP& form) {
    const bool wetherill = rs.ColU235 != 0;
    form.optConcord(0).enabled = wetherill;
    form.optConcord(wetherill && rs.setConcordia.val() != 1 ? 0 : 1).set_value_quietly(1);
}

// Which Hg isotope is used, and whether its share can be taken off Pb204.
void show_mercury(RunState& rs, Frm2UP& form) {
    if (rs.Method != 1) return;
    form.lblFLEXiso(7).text = form.chkHgCorr.on() ? "Pb204" : "204";
    form.lblFLEXiso(8).text = hg_name(rs);
    form.chkHgCorr.enabled = form.chkCommLead.enabled = rs.HgMass != 0;
}

void show_signals(RunState& rs, Frm2UP& form) {
    constexpr std::array<const char*, 8> uranium_lead = {"U238",  "U235",  "Th232", "Pb208",
                                                         "Pb207", "Pb206", "Pb204", ""};
    for (int i = 1; i <= MaxFlex; ++i) {
        Label& label = form.lblFLEXiso(i);
        label.visible = rs.Method == 3 || i <= static_cast<int>(uranium_lead.size());
        if (rs.Method == 3)
            label.text = rs.FlexIso(i).text();
        else if (i <= static_cast<int>(uranium_lead.size()))
            label.text = uranium_lead[static_cast<std::size_t>(i) - 1];
    }
    form.chkHgCorr.visible = form.chkCommLead.visible = rs.Method == 1;
    form.chkHgCorr.set_value_quietly(rs.setHg_corr.val() == 1 ? 1 : 0);
    show_mercury(rs, form);
    form.lbl235C.visible = rs.set235_Calc.val() == 1;
}

void fill_list(ListBox& list, std::vector<std::string> items, const Value& index) {
    const int count = static_cast<int>(items.size());
    list.set_items(std::move(items));
    list.set_value_quietly(std::clamp(index.whole(), 0, count - 1));
}

// A proposal that was not taken went with its data.
void drop_proposal(RunState& rs, Frm2UP& form) {
    rs.ZizzRunning = false;
    form.cmdAccept.visible = false;
    forget_proposal(form);
}

void show_refinement(RunState& rs, Frm2UP& form) {
    form.txtZizzRange.text = rs.setZizzRange.text();
    fill_list(form.comboBzz, {"%", "data"}, rs.setZizzType);
    if (rs.ColU235 == 0)
        fill_list(form.Combo7, {"Tera-Wasserburg"}, rs.setBzzPlot = 0);
    else
        fill_list(form.Combo7, {"Wetherill", "Tera-Wasserburg"}, rs.setBzzPlot);
    fill_list(form.Combo8, {"RMS", "Skewness"}, rs.setBzzMethod);
    form.chkBzzPrompt.set_value_quietly(rs.setBzz_Prompt.val() == 1 ? 1 : 0);
    drop_proposal(rs, form);
}

// A window that comes up shows nothing of the file before: what is measured is filled in by the first drawing.
void clear_results(const RunState& rs, Frm2UP& form) {
    for (int k = 0; k < ratio_count; ++k) {
        const Frm2UP::RatioRow row = form.ratio_row(k);
        for (Label* label :
             {&row.mean, &row.median, &row.tzero, &row.poisson, &row.skewness, &row.slope, &row.correlation})
            label->text.clear();
    }
    for (Label* label : {&form.lbl8_5,    &form.lbl238,    &form.lbl235,      &form.lbl232,      &form.lbl208,
                         &form.lbl207,    &form.lbl206,    &form.lbl204,      &form.lblAver(8),  &form.lbl238LoD,
                         &form.lbl235LoD, &form.lbl232LoD, &form.lbl208LoD,   &form.lbl207LoD,   &form.lbl206LoD,
                         &form.lbl204LoD, &form.lbl20xLoD, &form.lblAge06_38, &form.lblAge07_35, &form.lblConcord1})
        label->text.clear();
    form.pict2.canvas.Clear();
    form.pict3.canvas.Clear();
    if (!all_limits_set(rs)) form.lblConcord1.back.reset();
    if (rs.RejectOn) return;
    form.lblOM.text.clear();
    form.cmdReject.text = "Reject outliers";
    form.lblReject.text = "No. of outliers:";
    emphasise_rejection(form, false);
}

// Of mean, median and T-zero value the one that the results are based on is shown.
void show_kind_of_result(RunState& rs, Frm2UP& form) {
    const bool tzero = rs.setAver.val() == 1;
    const bool median = rs.setMean_UP.val() == 1;
    show({&form.lblAv}, !tzero && !median);
    show({&form.lblMed}, !tzero && median);
    show({&form.lblTz}, tzero);
    for (int k = 0; k < ratio_count; ++k) {
        const Frm2UP::RatioRow row = form.ratio_row(k);
        const bool lead_average = k == 4 && rs.setPbAver.val() == 1;
        const bool measured = ratio_fields()[static_cast<std::size_t>(k)].measured(rs);
        const bool average = !tzero || lead_average;
        row.mean.visible = measured && average && !median;
        row.median.visible = measured && average && median;
        row.tzero.visible = measured && !average;
    }
    constexpr std::array<const char*, 4> units = {"s.d.", "sd(%)", "s.e.", "se(%)"};
    const double kind = rs.setErr.val();
    for (std::size_t k = 0; k < units.size(); ++k) {
        if (kind != static_cast<double>(k)) continue;
        form.lblAv.text = "mean. +- " + rs.setErr_times.text() + units[k];
        form.lblTz.text = "Tzero. +- " + rs.setErr_times.text() + units[k];
    }
}

void show_outlier_test(RunState& rs, Frm2UP& form) {
    form.txtSD.text = rs.setOL_SD.text();
    form.chkShowSD.set_value_quietly(rs.setShowOL.val() == 1 ? 1 : 0);
    show({&form.cmdReject, &form.chkShowSD, &form.txtSD, &form.Frame4, &form.lblReject, &form.lblOM}, true);
    form.chkShowSD.enabled = form.txtSD.enabled = true;
    for (int k = 0; k < ratio_count; ++k) {
        const RatioFields& ratio = ratio_fields()[static_cast<std::size_t>(k)];
        form.Shape(k + 1).visible = (rs.*ratio.tested).val() == 1 && ratio.measured(rs);
    }
}

// A ratio whose column is missing can't be ticked.
void show_ratio_boxes(RunState& rs, Frm2UP& form) {
    const std::array<const Value*, ratio_count> chosen{&rs.set_68, &rs.set_75, &rs.set_082, &rs.set_382, &rs.set_76};
    for (int k = 0; k < ratio_count; ++k) {
        const auto at = static_cast<std::size_t>(k);
        CheckBox& box = form.ratio_row(k).box;
        box.enabled = ratio_fields()[at].measured(rs);
        box.set_value_quietly(box.enabled && chosen[at]->val() == 1 ? 1 : 0);
    }
    form.chkLinReg.set_value_quietly(rs.setLinReg.val() == 1 ? 1 : 0);
}

void show_path(RunState& rs, Frm2UP& form) {
    const bool flex = rs.Method == 3;
    form.chk68.text = flex ? "U233/U238" : "Pb206/U238";
    form.chk82.text = flex ? "Th230/Th332" : "Pb208/Th232";
    show({&form.Label15, &form.pict3, &form.lblFusion, &form.VScroll2, &form.lblRizsa(6), &form.cmdCopySel, &form.lblXY,
          &form.Frame1, &form.Frame2, &form.lblExPo75, &form.lblRizsa(12), &form.lblRizsa(13)},
         !flex);
    if (!flex) return;
    show({&form.chk75, &form.chk76, &form.lbl7_5, &form.lbl7_6, &form.lblTz7_5, &form.lblTz7_6}, false);
    // The bar that pools the slices is out of reach here.
    rs.PlotPool = 1;
    form.lblFusion.text = "1";
    form.VScroll2.set_value_quietly(1);
}

// Heads that no calculation knows, with the forms that it would know.
void show_unrecognised(RunState& rs, Frm2UP& form) {
    const std::vector<std::string> heads = unrecognised_columns(rs);
    form.lblStatus.text.clear();
    if (heads.empty()) return;
    form.lblStatus.text = "Columns without a role:";
    for (const std::string& head : heads) form.lblStatus.text += " " + (head.empty() ? std::string("(no name)") : head);
    if (rs.Method == 1)
        form.lblStatus.text += ".  Accepted forms: U238   U-238   U 238   238U   238-U  238 U  U238(LR)   U238(HR)";
    if (rs.Method != 3) return;
    form.lblStatus.text += ".  Accepted names:";
    for (int slot = 1; slot <= MaxFlex; ++slot)
        if (const std::string name = rs.FlexIso(slot).text(); !name.empty()) form.lblStatus.text += " " + name;
}

}  // namespace

void open_up_window(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "open_up_window");
    Frm2UP& form = context.forms.frm2_UP;
    show({&form.pict2, &form.lblMaxIIS, &form.picUP_elems, &form.lblXY, &form.chkLinReg, &form.VScroll1, &form.VScroll2,
          &form.VScroll3, &form.chk68, &form.chk75, &form.chk82, &form.chkUTh, &form.chk76, &form.lblFusion,
          &form.pict3, &form.lblRizsa(23)},
         true);
    show({&form.lblHgCorrNegative, &form.lblRatios, &form.cmdNext, &form.lblXNew, &form.txtYMaxInp, &form.lblXNew2,
          &form.txtYMaxInp2},
         false);
    hide_sequence(form);
    rs.ScaleFresh = rs.ScaleFresh2 = false;
    form.lblmicsoda.text = shown_name(rs.DataFileName);
    form.lblDefa.text = shown_name(rs.SettingsName);
    form.lblIIS(2).text = "Isotope ratios";
    rs.LinearView = rs.setLinear.val() == 1;
    (rs.LinearView ? form.optLi : form.optLo).set_value_quietly(1);
    (rs.setLinearRatios.val() == 1 ? form.optLiR : form.optLoR).set_value_quietly(1);

    clear_results(rs, form);
    show_ratio_boxes(rs, form);
    show_signals(rs, form);
    show_diagram(rs, form);
    show_refinement(rs, form);
    show_kind_of_result(rs, form);
    show_outlier_test(rs, form);
    show_path(rs, form);
    show_unrecognised(rs, form);
    rs.CurvesShown = 1;
    show_sequence(context);
    lay_out_up_window(context);
    show_limits(rs, form);

    rs.MaxCps = std::max(1.0, highest_signal_by_role(rs));
    rs.FullMax = rs.MaxCps;
    form.VScroll1.set_value_quietly(1);
    form.VScroll2.minimum = 1, form.VScroll2.maximum = 4;
    form.VScroll3.minimum = 5, form.VScroll3.maximum = 20;
    form.VScroll3.set_value_quietly(20);
    rs.RatioScale = 20;
    // A window that is shown has had its first resize.
    if (rs.ShowFirst == "elso") resize_up_window(context);
}

void activate_up_window(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "activate_up_window");
    Frm2UP& form = context.forms.frm2_UP;
    if (rs.PlotOn == 1) form.pict1.canvas.Clear();
    if (rs.Method == 1 || rs.Method == 3) form.title = "Kolv-AGE  -  Selection of time slices and results on screen";
}

void renew_up_window(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    show({&form.lblHgCorrNegative, &form.lblXNew, &form.txtYMaxInp, &form.lblXNew2, &form.txtYMaxInp2}, false);
    clear_results(rs, form);
    drop_proposal(rs, form);
    show_mercury(rs, form);
    for (int k = 0; k < ratio_count; ++k) {
        CheckBox& box = form.ratio_row(k).box;
        box.enabled = ratio_fields()[static_cast<std::size_t>(k)].measured(rs);
        if (!box.enabled) box.set_value_quietly(0);
    }
    const bool wetherill = rs.ColU235 != 0;
    if (form.optConcord(0).enabled != wetherill) {
        show_diagram(rs, form);
        show_refinement(rs, form);
    }
    show_kind_of_result(rs, form);
    show_unrecognised(rs, form);
    show_limits(rs, form);
    rs.MaxCps = std::max(1.0, highest_signal_by_role(rs));
    rs.FullMax = rs.MaxCps;
    form.VScroll1.set_value_quietly(1);
}

}  // namespace kolvar
