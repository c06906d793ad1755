// The averages of the present selection, and the way from the time selection to the rejection matrix.
#include "core/numbers.hpp"
#include "screens/time_window.hpp"
#include "trace/concentrations.hpp"
#include "trace/statistics.hpp"

namespace kolvar {

namespace {

// Which interval is missing or too short, as a box; true when none is.
bool intervals_complete(Context& context) {
    RunState& rs = context.rs;
    if (!rs.SelLow.is_set() || !rs.SelUpp.is_set()) {
        context.os.warn("Select time interval by left and right mouse clicks before leaving this step!");
        return false;
    }
    if (rs.BlankFromData == 1 && rs.ModeData == 1 && (!rs.BlkLow.is_set() || !rs.BlkUpp.is_set())) {
        context.os.warn("Select blank time interval by SHIFT + left and right mouse clicks before leaving this step!");
        return false;
    }
    if (rs.SelUpp.val() - rs.SelLow.val() < 1) {
        context.os.warn(
            "The selected time interval is too short. Select longer interval or confirm the former "
            "selection by left and right mouse clicks, please.");
        return false;
    }
    if (rs.BlankFromData == 1 && rs.ModeCreateBLK != 1 && rs.BlkUpp.val() - rs.BlkLow.val() < 1) {
        context.os.warn(
            "You have to mark an interval for the blank. Press SHIFT + left and right mouse buttons for "
            "the lower and upper limits of the blank range.");
        return false;
    }
    return true;
}

std::string noisy_blank_question(double spikes) {
    return "The blank is very noisy!\n\nThe selected blank range contains " + decimal(spikes) +
           " data, which differ from the means of isotopes by more than 3 S.D. These spikes in the blank can seriously "
           "bias the trace element  concentrations (even resulting in negative concentrations!). It is worth to check "
           "them by statistical tests.\n\nFor this you have to start the procedure again; press [Back], choose option "
           "'Creating a Blank File', perform the outlier test on the selected blank range and the rejections if they "
           "are necessary, and save the average signals of the blank interval into a 'Blank File'.\nThen choose the "
           "option 'Blank from the Blank File', load the formerly saved BLK file and the datafile and perform the time "
           "range selection and further steps.\n\n\n                      Perform test and save selected blank "
           "interval into a file?";
}

// The noisy blank becomes the selection of a run that makes a blank file.
void turn_to_blank_file(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    rs.KeepData = false;
    rs.SelCount = 0;
    rs.SelUpp = rs.BlkUpp;
    rs.SelLow = rs.BlkLow;
    rs.BlkUpp = 0;
    rs.BlkLow = 0;
    rs.SelLowX = rs.BlkLowX;
    rs.SelUppX = rs.BlkUppX;
    rs.BlkLowX = 0;  // the upper position stays as it is
    form.pict1.canvas.Clear();
    form.pict2.canvas.Clear();
    rs.BlkSpikes = 0;
    Frm1Settings& settings = context.forms.frm1_Settings;
    context.shell.load(settings);
    settings.optCreatBLK.set_value(1);
    context.shell.open(settings);
    context.shell.close(form);
}

void count_all_data(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) rs.nData(i) = rs.SelN.val();
}

}  // namespace

void ShowAverages(Context& context) {
    const Running running(context.rs, "ShowAverages");
    preview_selection(context, context.rs.BlankFromData == 1);
}

void preview_selection(Context& context, bool blank_first) {
    RunState& rs = context.rs;
    count_all_data(rs);
    if (blank_first) ComputeBlank(rs, context.os);
    ComputeSelStats(rs, context.os);
    ComputeConcentrations(rs, context.os);
    context.shell.close(context.forms.frm_AverConc);  // an open preview is filled anew
    context.shell.open(context.forms.frm_AverConc);
}

void LeaveTimeSelection(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "LeaveTimeSelection");
    Frm2Time& form = context.forms.frm2_Time;
    if (!intervals_complete(context)) return form.set_focus(form.pict1);
    rs.SelN = rs.SelUpp.val() - rs.SelLow.val() + 1;
    rs.SelNGood = rs.SelN.val();
    const bool blank_of_data = rs.BlankFromData == 1 && rs.ModeCreateBLK != 1;
    if (blank_of_data) ComputeBlank(rs, context.os);
    // With a Blank File the cell holds what the last calculation has left in it, and the question may come then too.
    if (rs.BlkSpikes > 0 && rs.setTestBlank.val() == 1) {
        const bool test_it = context.os.ask(noisy_blank_question(rs.BlkSpikes));
        if (test_it) return turn_to_blank_file(context);
        rs.BlkSpikes = 0;
    }
    rs.FormerLowX = rs.SelLowX;
    rs.FormerUppX = rs.SelUppX;
    rs.FormerLow = rs.SelLow;
    rs.FormerUpp = rs.SelUpp;
    if (blank_of_data) {
        rs.FormerBlkLow = rs.BlkLow;
        rs.FormerBlkUpp = rs.BlkUpp;
    }
    context.shell.open(context.forms.frm3_Matrix);
    context.shell.close(form);
}

}  // namespace kolvar
