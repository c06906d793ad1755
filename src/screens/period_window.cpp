// The periodic system: which internal standard each element is related to.
#include "core/elements.hpp"
#include "screens/screens.hpp"

namespace kolvar {

namespace {

constexpr int standards = 3;

struct Standard {
    Label& label;
    Panel& frame;
};

// Standard 1, 2 or 3.
Standard standard(FrmPeriod& form, int number) {
    if (number == 1) return {form.Label1, form.frame1};
    if (number == 2) return {form.Label2, form.frame2};
    return {form.Label3, form.frame3};
}

void give_standard(FrmPeriod& form, int element, int number) {
    form.lblEle(element).back = FrmPeriod::colours[number];
    form.lblNumber(element).text = number == 0 ? std::string() : std::to_string(number);
}

void make_current(FrmPeriod& form, int number) {
    for (int other = 1; other <= standards; ++other) standard(form, other).frame.back.reset();
    standard(form, number).frame.back = FrmPeriod::margin;
    form.current = number;
}

void open_period(Context& context) {
    const RunState& rs = context.rs;
    FrmPeriod& form = context.forms.frm_Period;
    form.Label1.text = rs.IS1name;
    form.Label2.text = rs.IS2name;
    form.Label3.text = rs.IS3name;
    make_current(form, 1);
    for (int element = 1; element <= last_element; ++element) {
        const std::string symbol = rs.PeriodSym(element).text();
        form.lblEle(element).text = symbol.empty() ? std::string(element_symbol(element)) : symbol;
        // Of standards with the same name the first one counts. An element without a standard stays neutral even where
        // a standard has no name.
        int number = 0;
        const std::string assigned = rs.PeriodIS(element).text();
        for (int k = standards; k >= 1 && !assigned.empty(); --k)
            if (standard(form, k).label.text == assigned) number = k;
        give_standard(form, element, number);
    }
}

// An element of any other colour keeps the standard it had.
void accept(Context& context) {
    RunState& rs = context.rs;
    FrmPeriod& form = context.forms.frm_Period;
    for (int element = 1; element <= last_element; ++element) {
        const Label& cell = form.lblEle(element);
        rs.PeriodSym(element) = cell.text;
        for (int number = 1; number <= standards; ++number) {
            if (cell.back != standard(form, number).label.back) continue;
            rs.PeriodIS(element) = standard(form, number).label.text;
            break;
        }
    }
    context.shell.close(form);
}

}  // namespace

void connect_period_window(Program& program) {
    Context& context = program.context();
    FrmPeriod& form = context.forms.frm_Period;
    program.shell().set_hooks(form, {[&context] { open_period(context); }, {}});
    for (int number = 1; number <= standards; ++number)
        program.on(form, standard(form, number).label.name, EventKind::click,
                   [&form, number](const Event&) { make_current(form, number); });
    program.on(form, "lblEle", EventKind::click,
               [&form](const Event& event) { give_standard(form, event.index, form.current); });
    program.on(form, "cmdOK", EventKind::click, [&context](const Event&) { accept(context); });
    program.on(form, "cmsClose", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_Period); });
}

}  // namespace kolvar
