// The buttons that look for better limits of the selected interval and take them.
#include <exception>

#include "screens/plots.hpp"
#include "screens/screens.hpp"
#include "screens/selection.hpp"
#include "upb/outliers.hpp"
#include "upb/refinement.hpp"
#include "upb/scatter_plot.hpp"

namespace kolvar {

namespace {

// While the search runs nothing can be rejected. A fault that ends it leaves no proposal, and the buttons as before.
class Searching {
public:
    explicit Searching(Frm2UP& form) : form_(form) { form_.cmdReject.enabled = false; }
    ~Searching() {
        if (std::uncaught_exceptions() == faults_) return;
        form_.cmdReject.enabled = form_.cmdZizeges.visible = true;
        form_.cmdAccept.visible = form_.lblBestLow.visible = form_.lblBestUpp.visible = false;
    }
    Searching(const Searching&) = delete;
    Searching& operator=(const Searching&) = delete;

private:
    Frm2UP& form_;
    int faults_ = std::uncaught_exceptions();
};

// Moves the marks to the proposal, as two clicks of the user would.
void take_proposal(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    form.cmdReject.enabled = true;
    form.cmdAccept.visible = false;
    rs.ClickShift = 0;  // a SHIFT click that was dropped may have left its key
    rs.AcceptBest = true;
    mark_selection(context, form);
    rs.AcceptBest = false;
}

void cmdAccept(Context& context) {
    take_proposal(context);
    context.rs.ZizzRunning = false;
    context.forms.frm2_UP.cmdZizeges.visible = true;
}

void cmdZizeges(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    const WaitCursor waiting(context.os);
    rs.PlotPool = 1;
    form.lblFusion.text = "1";
    form.VScroll2.set_value(1);
    if (rs.SelN.val() > rs.SelNGood) {
        restore_rejected(rs, form);
        draw_XY(context);
        draw_UPratio(context);
    }
    const Searching searching(form);
    form.lblBestLow.text.clear();
    form.lblBestUpp.text.clear();
    ziz_Manager_UP(context);
    form.cmdAccept.visible = true;
    form.cmdZizeges.visible = false;
    if (form.lblBestLow.text.empty() && form.lblBestUpp.text.empty()) {
        form.lblImprove.text = "no";
        explain_refinement(rs, form);
        form.cmdAccept.visible = form.lblBestLow.visible = form.lblBestUpp.visible = false;
        form.cmdReject.enabled = true;
    }
    if (rs.setBzz_Prompt.val() == 1 && form.lblImprove.text != "no") take_proposal(context);
}

}  // namespace

void connect_refinement(Program& program) {
    Context& context = program.context();
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    // Also where the list showed that entry already: the setting may have changed behind it, in the window of the
    // defaults.
    program.on(form, "Combo7", EventKind::choose, [&](const Event&) { rs.setBzzPlot = form.Combo7.value; });
    program.on(form, "Combo8", EventKind::choose, [&](const Event&) { rs.setBzzMethod = form.Combo8.value; });
    program.on(form, "chkBzzPrompt", EventKind::click,
               [&](const Event&) { rs.setBzz_Prompt = form.chkBzzPrompt.value; });
    program.on(form, "cmdZizeges", EventKind::click, [&context](const Event&) { cmdZizeges(context); });
    program.on(form, "cmdAccept", EventKind::click, [&context](const Event&) { cmdAccept(context); });
}

}  // namespace kolvar
