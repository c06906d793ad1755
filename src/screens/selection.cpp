#include "screens/selection.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"
#include "screens/sequence.hpp"
#include "screens/time_window.hpp"
#include "trace/statistics.hpp"
#include "upb/outliers.hpp"

namespace kolvar {
namespace {

constexpr int left_button = 1;
constexpr int right_button = 2;

bool selection_stands(const RunState& rs) { return rs.SelLow.is_set() && rs.SelUpp.is_set(); }
bool blank_stands(const RunState& rs) { return rs.BlkLow.is_set() && rs.BlkUpp.is_set(); }

int clicked_slice(const RunState& rs, const TimeScreen& screen) {
    return slice_at(rs.ClickX, screen.pict1.width, rs.nSlices);
}

// Also from one limit alone: the first click at slice 20 counts -19 slices, which no label shows.
void count_selection(RunState& rs) {
    rs.SelN = rs.SelUpp.val() - rs.SelLow.val() + 1;
    rs.SelNGood = rs.SelN.val();
}

// The beam can't start after the selection does: such a click is lost, and the next one still sets the beam start.
void mark_beam_start(Context& context, const TimeScreen& screen) {
    RunState& rs = context.rs;
    const int slice = clicked_slice(rs, screen);
    if (rs.SelLow.is_set() && slice > rs.SelLow.val()) return;
    rs.BeamStart = slice;
    rs.WaitBeamStart = false;
    draw_UP(context);
}

// A limit at 0 keeps what its label reads: the 0 that was clicked, or nothing after the window has come up.
std::string shown_limit(const Limit& limit, const Label& label) {
    return limit.is_set() && limit.val() == 0 ? label.text : limit.text();
}

double below_plot(const TimeScreen& screen) { return screen.pict1.top + screen.pict1.height + 100; }

// The number of the lower limit ends at its line, that of the upper one begins at its line.
void place_lower_label(const RunState& rs, TimeScreen& screen) {
    plot::show_label(screen.pict1.canvas, screen.lblLow, shown_limit(rs.SelLow, screen.lblLow),
                     screen.pict1.left + rs.SelLowX - screen.lblLow.width, below_plot(screen));
}
void place_upper_label(const RunState& rs, TimeScreen& screen) {
    plot::show_label(screen.pict1.canvas, screen.lblUpp, shown_limit(rs.SelUpp, screen.lblUpp),
                     screen.pict1.left + rs.SelUppX, below_plot(screen));
}

bool shows_text(const Label& label) { return label.visible && !label.text.empty(); }

// The user overrides a refinement that was not accepted, or one that found nothing: the limits that the search started
// from become the selection, which the click then changes.
void take_over_stale_proposal(RunState& rs, const TimeScreen& screen, Frm2UP& form) {
    if (rs.AcceptBest) return;
    const bool proposed = shows_text(form.lblBestLow) || shows_text(form.lblBestUpp);
    if (!proposed && !(rs.TrialLimits && selection_stands(rs))) return;
    rs.TrialLimits = false;
    rs.SelLow = rs.BestLow;
    rs.SelUpp = rs.BestUpp;
    count_selection(rs);
    // The lines still stand at these limits, unless the window was resized or left since.
    const double width = screen.pict1.width;
    const auto stand_at = [&](double& x, const Limit& limit) {
        if (std::max(1, slice_at(x, width, rs.nSlices)) != limit.val()) x = position_of(limit.val(), width, rs.nSlices);
    };
    stand_at(rs.SelLowX, rs.SelLow);
    stand_at(rs.SelUppX, rs.SelUpp);
    rs.BestLow.clear();
    rs.BestUpp.clear();
    forget_proposal(form);
    rs.ZizzMin68 = 0;
    rs.ZizzMin75 = 0;
}

// False when the click is dropped because one limit would pass the other. A limit that stands at position 0 stops
// nothing.
bool mark_limit(const RunState& rs, const TimeScreen& screen, Limit& low, double& low_x, Limit& upp, double& upp_x) {
    const double x = rs.ClickX;
    if (rs.ClickButton == left_button) {
        if (upp_x > 0 && upp_x < x) return false;
        low = clicked_slice(rs, screen);
        low_x = x;
    }
    if (rs.ClickButton == right_button) {
        if (low_x > 0 && low_x > x) return false;
        upp = clicked_slice(rs, screen);
        upp_x = x;
    }
    return true;
}

// Moves the limit that the button stands for, and its number.
bool move_limit(RunState& rs, TimeScreen& screen) {
    if (!mark_limit(rs, screen, rs.SelLow, rs.SelLowX, rs.SelUpp, rs.SelUppX)) return false;
    if (rs.ClickButton == left_button) {
        // A click at the left edge means the first slice; of the four limits this one alone is put right.
        if (rs.SelLow.val() == 0) rs.SelLow = 1;
        place_lower_label(rs, screen);
    }
    if (rs.ClickButton == right_button) {
        screen.lblUpp.text = rs.SelUpp.text();  // the number that was clicked, a 0 at the left edge too
        place_upper_label(rs, screen);
    }
    return true;
}

void count_signal(RunState& rs, TimeScreen& screen) {
    count_selection(rs);
    if (rs.SelN.val() <= 0) return;
    screen.lblMeasSel.text = rs.SelN.text();
    if (plot::blank_is_marked_here(rs)) screen.lblBLKshow.visible = screen.lblBLKtolig.visible = true;
}

bool mark_signal(RunState& rs, TimeScreen& screen) {
    if (!move_limit(rs, screen)) return false;
    count_signal(rs, screen);
    return true;
}

// Both limits at once, each where its caption shows a number; the other goes back to where the search began. Of a
// proposal whose limits cross the lower one alone is taken, nothing is counted or drawn, and the captions stay: the
// next click puts the limits of the start back.
bool accept_proposal(RunState& rs, Frm2UP& form) {
    const auto proposed = [](const Label& caption, const Limit& start) {
        return shows_text(caption) ? Val(caption.text) : start.val();
    };
    const double low = proposed(form.lblBestLow, rs.BestLow);
    const double upp = proposed(form.lblBestUpp, rs.BestUpp);
    rs.TrialLimits = false;
    rs.ClickX = form.pict1.width * low / rs.nSlices;
    rs.ClickButton = left_button;
    if (!move_limit(rs, form)) return false;
    rs.ClickX = form.pict1.width * upp / rs.nSlices;
    rs.ClickButton = right_button;
    return mark_signal(rs, form);
}

bool mark_blank(Context& context, TimeScreen& screen) {
    RunState& rs = context.rs;
    if (rs.BlankFromData != 1) return true;
    if (!mark_limit(rs, screen, rs.BlkLow, rs.BlkLowX, rs.BlkUpp, rs.BlkUppX)) return false;
    count_selection(rs);
    rs.BlkN = rs.BlkUpp.val() - rs.BlkLow.val() + 1;
    if (rs.BlkN > 0) screen.lblBLKtolig.text = rs.BlkLow.text() + " - " + rs.BlkUpp.text();
    if (blank_stands(rs)) ComputeBlank(rs, context.os);
    return true;
}

void subtract_blank(RunState& rs) {
    if (rs.ModeData != 1) return;
    for (int i = 1; i <= rs.nIso; ++i) {
        if (rs.BlkMean(i).is_empty()) continue;
        const double blank = rs.BlkMean(i).number();
        for (int k = rs.SelLow.val(); k <= rs.SelUpp.val(); ++k) rs.Sig2(i, k) = rs.Sig(i, k) - blank;
    }
}

// What the plots show depends on the interval: the blank off the signal, then the statistics, then the curves. A blank
// that is marked by this very click is computed a second time here.
void correct_and_draw(Context& context) {
    RunState& rs = context.rs;
    const bool all_four = selection_stands(rs) && blank_stands(rs);
    if (rs.setAllCurve.val() == 0) {
        draw_pict1(context);
    } else if (rs.setAllCurve.val() == 1) {
        if ((rs.BlankFromData == 1 && selection_stands(rs)) || (rs.ModeData == 1 && all_four)) {
            if (rs.BlankFromData == 1) ComputeBlank(rs, context.os);
            subtract_blank(rs);
        }
        if (all_four) ComputeSelStats(rs, context.os);
        draw_all(context);
    }
}

// The results and the rejection of outliers that a former selection gave no longer hold.
void drop_stale_results(Context& context, const TimeScreen& screen) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (!selection_stands(rs) || !blank_stands(rs)) return;
    if (in_sequence(rs) && &screen == &form) {
        form.cmdSaveAnd(0).enabled = form.cmdSaveAnd(1).enabled = can_save_line(rs);
        form.cmdCopyMas.enabled = true;
    }
    if (rs.RejectOn) {
        restore_rejected(rs, form);
        form.lblReject.visible = form.lblOM.visible = false;
    }
    form.cmdZizeges.visible = true;
    form.cmdAccept.visible = false;
    rs.ZizzRunning = false;
    forget_proposal(form);
    rs.ZizzMin68 = 0;
    rs.ZizzMin75 = 0;
}

void enable_what_the_limits_allow(Context& context, TimeScreen& screen) {
    const RunState& rs = context.rs;
    if (selection_stands(rs) && blank_stands(rs)) {
        screen.cmdReject.enabled = true;
        // A file whose limits were dropped had hidden it.
        if (rs.Method == 1 || rs.Method == 3) offer_rejection(context.forms.frm2_UP);
        if (rs.Method == 1) screen.cmdCopySel.enabled = true;
        screen.cmdCopyHead.enabled = screen.cmdCopy.enabled = screen.cmdApp.enabled = true;
    }
    enable_results(context);
}

}  // namespace

int slice_at(double x, double width, int slices) {
    const double slice = round_half_up(quotient(x, width) * slices);
    if (std::fabs(slice) > std::numeric_limits<int>::max()) fail(FaultKind::overflow);
    return static_cast<int>(slice);
}

double position_of(int slice, double width, int slices) {
    return slices > 0 ? width * slice / slices : 0.0;  // nothing is loaded: nothing stands anywhere
}

void OnPlotDown(Context& context, TimeScreen& screen, int plot, int button, int shift, double x, double y) {
    RunState& rs = context.rs;
    const Running running(rs, "OnPlotDown");
    if (plot == 1) screen.cmdReject.enabled = true;
    rs.ZizzRunning = false;
    if (rs.CurvesShown == 0) {
        context.os.warn("Select first one ore more isotopes!", "");
        return;
    }
    rs.ClickX = x;
    rs.ClickY = y;
    rs.ClickButton = button;
    rs.ClickShift = shift;
    mark_selection(context, screen);
}

// Every click brings the plots back to their full height: who has zoomed in has to zoom again.
void OnPlotUp(Context& context, TimeScreen& screen) {
    const Running running(context.rs, "OnPlotUp");
    screen.VScroll1.set_value(1);
    if (context.rs.Method == 0) screen.VScroll3.set_value(1);
}

void mark_selection(Context& context, TimeScreen& screen) {
    RunState& rs = context.rs;
    const Running running(rs, "mark_selection");
    const bool uranium_lead = rs.Method == 1 || rs.Method == 3;
    if (uranium_lead && rs.WaitBeamStart) {
        mark_beam_start(context, screen);
        return;
    }
    take_over_stale_proposal(rs, screen, context.forms.frm2_UP);
    // A dropped click leaves everything as it is: no redraw, and ClickShift stands.
    if (rs.AcceptBest && !accept_proposal(rs, context.forms.frm2_UP)) return;
    if (!rs.AcceptBest && rs.ClickShift == 0 && !mark_signal(rs, screen)) return;
    if (rs.ClickShift == 1 && !mark_blank(context, screen)) return;
    rs.ClickShift = 0;
    if (rs.Method == 0) correct_and_draw(context);
    if (uranium_lead) {
        drop_stale_results(context, screen);
        draw_UP(context);
    }
    enable_what_the_limits_allow(context, screen);
}

void forget_proposal(Frm2UP& form) {
    form.lblBestLow.visible = form.lblBestUpp.visible = form.lblExplain.visible = false;
    for (Label* label : {&form.lblBestLow, &form.lblBestUpp, &form.lblBest68, &form.lblBest75, &form.lblImprove,
                         &form.lblZizzMin1, &form.lblZizzMin2, &form.lblRMS68, &form.lblRMS75})
        label->text.clear();
}

void keep_as_former(RunState& rs) {
    rs.FormerLowX = rs.SelLowX;
    rs.FormerUppX = rs.SelUppX;
    rs.FormerLow = rs.SelLow;
    rs.FormerUpp = rs.SelUpp;
}

void OnBeamStartLabel(RunState& rs) { rs.WaitBeamStart = true; }

void positions_from_slices(RunState& rs, const TimeScreen& screen) {
    const Running running(rs, "OnResize");
    const double width = screen.pict1.width;
    const auto position = [&](const Limit& limit) { return position_of(limit.val(), width, rs.nSlices); };
    rs.SelLowX = position(rs.SelLow);
    rs.SelUppX = position(rs.SelUpp);
    rs.BlkLowX = position(rs.BlkLow);
    rs.BlkUppX = position(rs.BlkUpp);
    rs.FormerLowX = position(rs.FormerLow);
    rs.FormerUppX = position(rs.FormerUpp);
}

void place_limit_labels(const RunState& rs, TimeScreen& screen) {
    place_lower_label(rs, screen);
    place_upper_label(rs, screen);
}

}  // namespace kolvar
