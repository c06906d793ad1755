// The panel of signal ratios: six pairs of analytes for the lower plot.
#include "screens/plots.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

constexpr Colour marked = palette(14);
constexpr Colour white = palette(15);

// The panel takes its room from the lower plot.
void draw(Context& context) {
    lay_out_time_window(context);
    draw_all(context);
}

int complete_pairs(const RunState& rs) {
    int pairs = 0;
    for (int j = 0; j < MaxRatioName; j += 2)
        if (rs.RatioCol(j) > 0 && rs.RatioCol(j + 1) > 0) ++pairs;
    return pairs;
}

void cmdRatios(Context& context) {
    Frm2Time& form = context.forms.frm2_Time;
    form.pictRatios.visible = true;
    form.cmdRatios.visible = false;
    draw(context);
}

void start_editing(Context& context) {
    Frm2Time& form = context.forms.frm2_Time;
    form.cmdAcceptRatios.text = "Plot ratios";
    form.lblExplanation.visible = true;
    for (Label& label : form.lblRatio) label.back.reset();
    draw(context);
}

void accept_ratios(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    for (int j = 0; j < MaxRatioName; ++j) {
        rs.RatioCol(j) = column_named(rs, form.lblRatio(j).text);
        rs.ratioName(j) = form.lblRatio(j).text;
    }
    if (complete_pairs(rs) == 0)
        return context.os.warn("There is no isotope pairs selected, thus drawing is not possible.");
    form.cmdAcceptRatios.text = "Modify ratios";
    form.lblExplanation.visible = false;
    for (Label& label : form.lblRatio) label.back = white;
    rs.setRatio_ppmIS = 2;  // what was accepted is what the lower plot shows
    activate_time_window(context);
    draw(context);
}

void cmdAcceptRatios(Context& context) {
    if (ratio_panel_in_edit_mode(context.forms.frm2_Time))
        accept_ratios(context);
    else
        start_editing(context);
}

void cmdClose(Context& context) {
    Frm2Time& form = context.forms.frm2_Time;
    context.rs.setRatio_ppmIS = 1;
    form.pictRatios.visible = false;
    form.cmdRatios.visible = true;
    activate_time_window(context);
    draw(context);
}

void mark_label(Context& context, int clicked) {
    Frm2Time& form = context.forms.frm2_Time;
    if (!ratio_panel_in_edit_mode(form)) return;
    for (Label& label : form.lblRatio) label.back.reset();
    form.lblRatio(clicked).back = marked;
}

void show_pair(Context& context, int pair) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    if (!rs.SelLow.is_set() || !rs.SelUpp.is_set()) return;
    rs.setRatioShow(pair) = form.chkR(pair).value;
    reset_zoom(form);
    rs.ScaleFresh2 = true;
    draw_all(context);
}

}  // namespace

bool ratio_panel_in_edit_mode(const Frm2Time& form) { return form.cmdAcceptRatios.text == "Plot ratios"; }

int column_named(const RunState& rs, const std::string& name) {
    int column = 0;
    if (name.empty()) return column;
    for (int i = 1; i <= rs.nIso; ++i)
        if (rs.IsoName(i) == name) column = i;
    return column;
}

void find_ratio_columns(RunState& rs) {
    for (int j = 0; j < MaxRatioName; ++j) rs.RatioCol(j) = column_named(rs, rs.ratioName(j).text());
}

void show_ratio_names(Context& context) {
    const RunState& rs = context.rs;
    for (int j = 0; j < MaxRatioName; ++j)
        context.forms.frm2_Time.lblRatio(j).text = rs.RatioCol(j) > 0 ? rs.ratioName(j).text() : std::string();
}

void connect_ratio_panel(Program& program) {
    Context& context = program.context();
    Frm2Time& form = context.forms.frm2_Time;
    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click("cmdRatios", cmdRatios);
    click("cmdAcceptRatios", cmdAcceptRatios);
    click("cmdClose", cmdClose);
    program.on(form, "lblRatio", EventKind::click,
               [&context](const Event& event) { mark_label(context, event.index); });
    program.on(form, "chkIs", EventKind::drag, [&context](const Event& event) {
        Frm2Time& window = context.forms.frm2_Time;
        Control* const target = window.find("lblRatio", event.target_index);
        if (event.target == "lblRatio" && target != nullptr && ratio_panel_in_edit_mode(window))
            target->text = window.chkIs(event.index).text;
    });
    for (int pair = 1; pair <= MaxShow; ++pair)
        program.on(form, "chkR" + std::to_string(pair), EventKind::click,
                   [&context, pair](const Event&) { show_pair(context, pair); });
}

}  // namespace kolvar
