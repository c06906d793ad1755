#include "screens/defaults_values.hpp"

#include <array>
#include <utility>
#include <vector>

#include "core/numbers.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

using Setting = Value RunState::*;
using Options = ControlArray<OptionButton>;

enum class As {
    text,
    number,
    milliseconds,  // shown times 1000
    box,
    index,    // of the entry that the list shows
    counted,  // the same counted from 1
    option,   // the number of the option that is on
};

// A setting and the control that shows it.
struct Row {
    Setting key;
    As as;
    Control* control;
    Options* options = nullptr;

    Row(Setting setting, As how, Control& shown) : key(setting), as(how), control(&shown) {}
    Row(Setting setting, Options& choice) : key(setting), as(As::option), control(nullptr), options(&choice) {}
};

constexpr int none = -1;

// A number that stands for none of the options, or entries, is shown as none of them.
int among(const Value& value, int first, int last) {
    for (int k = first; k <= last; ++k)
        if (value.val() == k) return k;
    return none;
}

void choose(Options& options, int wanted) {
    for (OptionButton& option : options) option.set_value_quietly(0);
    if (wanted != none) options(wanted).set_value_quietly(1);
}

int chosen(Options& options) {
    for (const OptionButton& option : options)
        if (option.on()) return option.index;
    return none;
}

// Times that are not whole milliseconds keep the decimals that were typed, without the traces of the multiplication.
std::string in_milliseconds(const Value& seconds) {
    constexpr int picoseconds = 9;
    return decimal(round_half_even(seconds.val() * 1000, picoseconds));
}

void show(const Row& row, const RunState& rs) {
    const Value& value = rs.*row.key;
    switch (row.as) {
        case As::text:
        case As::number:
            row.control->text = value.text();
            return;
        case As::milliseconds:
            row.control->text = in_milliseconds(value);
            return;
        case As::box:
            row.control->set_value_quietly(value.val() == 1 ? 1 : 0);
            return;
        case As::index:
            row.control->set_value_quietly(among(value, 0, static_cast<int>(row.control->items.size()) - 1));
            return;
        case As::counted: {
            const int entry = among(value, 1, static_cast<int>(row.control->items.size()));
            row.control->set_value_quietly(entry == none ? none : entry - 1);
            return;
        }
        case As::option:
            choose(*row.options, among(value, row.options->first(), row.options->last()));
            return;
    }
}

// Where nothing is chosen the setting stays.
void take(const Row& row, RunState& rs) {
    Value& value = rs.*row.key;
    const int index = row.options != nullptr ? chosen(*row.options) : row.control->value;
    switch (row.as) {
        case As::text:
            value = row.control->text;
            return;
        case As::number:
            value = Val(row.control->text);
            return;
        case As::milliseconds:
            value = Val(row.control->text) / 1000;
            return;
        case As::box:
            value = index;
            return;
        case As::index:
        case As::option:
            if (index != none) value = index;
            return;
        case As::counted:
            if (index != none) value = index + 1;
            return;
    }
}

// The settings of both paths, in the order in which they are taken.
std::vector<Row> rows(DefaultsForm& f) {
    using R = RunState;
    return {
        {&R::setSTDabbr, As::text, f.txtAbbrSTD},
        {&R::Hg8_4, As::number, f.txtHg8_4},
        {&R::Hg9_4, As::number, f.txtHg9_4},
        {&R::Hg0_4, As::number, f.txtHg0_4},
        {&R::Hg1_4, As::number, f.txtHg1_4},
        {&R::Hg2_4, As::number, f.txtHg2_4},
        {&R::Pb6_4, As::number, f.txtPb6_4},
        {&R::Pb7_4, As::number, f.txtPb7_4},
        {&R::Pb8_4, As::number, f.txtPb8_4},
        {&R::UU8_5, As::number, f.txtU8_5},
        {&R::dweU238, As::milliseconds, f.txtDwe1},
        {&R::dweU235, As::milliseconds, f.txtDwe2},
        {&R::dweTh232, As::milliseconds, f.txtDwe3},
        {&R::dwePb208, As::milliseconds, f.txtDwe4},
        {&R::dwePb207, As::milliseconds, f.txtDwe5},
        {&R::dwePb206, As::milliseconds, f.txtDwe6},
        {&R::dwePb204, As::milliseconds, f.txtDwe7},
        {&R::setLinear, f.optLin},
        {&R::setLinearRatios, f.optLinRatios},
        {&R::set_68, As::box, f.chk68},
        {&R::set_75, As::box, f.chk75},
        {&R::set_082, As::box, f.chk82},
        {&R::set_382, As::box, f.chkUTh},
        {&R::set_76, As::box, f.chkPbPb},
        {&R::setLinReg, As::box, f.chk_LinReg},
        {&R::setBzz_Prompt, As::box, f.chkBzzPrompt_UP},
        {&R::setZizzRange, As::number, f.txtZizzRange},
        {&R::setZizzType, As::index, f.comboBzz},
        {&R::setBzzPlot, As::index, f.comboBzzPlot},
        {&R::setBzzMethod, As::index, f.comboBzzMethod},
        {&R::setConcordia, f.optConcordia},
        {&R::setShowOL, As::box, f.chkShowOL},
        {&R::setOL_68, As::box, f.chkOL68},
        {&R::setOL_75, As::box, f.chkOL75},
        {&R::setOL_082, As::box, f.chkOL82},
        {&R::setOL_382, As::box, f.chkOLUTh},
        {&R::setOL_76, As::box, f.chkOLPbPb},
        {&R::setRej_Man, f.optManual},
        {&R::setOL_SD, As::number, f.txtOL_SD},
        {&R::set235_Calc, As::box, f.chkU235calc},
        {&R::setAver, f.optAverage},
        {&R::setMean_UP, f.optMean},
        {&R::setTzero, f.optTzero},
        {&R::setDelay, As::number, f.txtDelay},
        {&R::setPbAver, As::box, f.chkPbAver},
        {&R::setErr_times, As::counted, f.comboErr},
        {&R::setErr, f.optErr},
        {&R::setPasteDat, f.optPasteDat},
        {&R::setComments, As::text, f.txtComments},
    };
}

// Those of the U/Pb path alone.
std::vector<Row> own_rows(FrmSetUP& f) {
    using R = RunState;
    return {
        {&R::setFormer_Sel, As::box, f.chkFormerSel},
        {&R::setHg_corr, As::box, f.chkHgCorr1},
        {&R::setComm_Pb, As::box, f.chkCommLead1},
        {&R::setPrefSTD, As::index, f.comboStd},
    };
}

// The Wetherill diagram needs U235. Without it the other one stands alone, and a list counts it from 0.
void show_diagrams(DefaultsForm& form, const RunState& rs) {
    const bool wetherill = rs.ColU235 != 0;
    form.comboBzzPlot.set_items(wetherill ? std::vector<std::string>{"Wetherill", "Tera-Wasserburg"}
                                          : std::vector<std::string>{"Tera-Wasserburg"});
}

void show_common(DefaultsForm& form, const RunState& rs) {
    show_diagrams(form, rs);
    choose(form.optMethod, among(rs.Method, form.optMethod.first(), form.optMethod.last()));
    for (const Row& row : rows(form)) show(row, rs);
    form.optConcordia(0).enabled = rs.ColU235 != 0;
    if (rs.ColU235 == 0) {
        form.optConcordia(1).set_value_quietly(1);
        form.comboBzzPlot.set_value_quietly(0);
    }
}

void take_common(DefaultsForm& form, RunState& rs) {
    if (const int index = chosen(form.optMethod); index != none) rs.Method = index;
    for (const Row& row : rows(form)) take(row, rs);
}

bool measured(const RunState& rs, const std::string& name) { return column_named(rs, name) > 0; }

// A name that the data do not have is shown as none.
void show_choice(ListBox& list, const RunState& rs, const std::string& name) {
    std::vector<std::string> names;
    for (int c = 0; c <= rs.nIso; ++c) names.push_back(rs.IsoName(c));  // column 0 has none: the empty entry
    list.set_items(std::move(names));
    list.show_item(measured(rs, name) ? name : std::string());
    colour_choice(list);
}

// An empty list takes away only a name that it could have shown: ratios of other data stay.
void take_ratio(const ListBox& list, const RunState& rs, Value& name) {
    if (!list.text.empty() || measured(rs, name.text())) name = list.text;
}

}  // namespace

void colour_choice(ListBox& list) { list.back = list.text.empty() ? rgb(128, 128, 128) : palette(15); }

void show_defaults(FrmSetUP& form, const RunState& rs) {
    std::vector<std::string> names;
    for (int row = 1; row <= rs.setNumSTD.whole(); ++row) names.push_back(rs.Std_Name(row).text());
    form.comboStd.set_items(std::move(names));
    show_common(form, rs);
    for (const Row& row : own_rows(form)) show(row, rs);
}

void show_defaults(FrmSetFLEX& form, const RunState& rs) {
    show_common(form, rs);
    for (ListBox& list : form.comboPref) show_choice(list, rs, rs.FlexIso(list.index).text());
    for (ListBox& list : form.comboRatio) show_choice(list, rs, rs.ratioName(list.index).text());
    for (int pair = 1; pair <= MaxShow; ++pair)
        form.chkRatio(pair).set_value_quietly(rs.setRatioShow(pair).val() == 1 ? 1 : 0);
}

void take_defaults(FrmSetUP& form, RunState& rs) {
    take_common(form, rs);
    for (const Row& row : own_rows(form)) take(row, rs);
}

void take_defaults(FrmSetFLEX& form, RunState& rs) {
    take_common(form, rs);
    rs.set235_Calc = "";  // U235 is measured on this path
    for (const ListBox& list : form.comboPref) rs.FlexIso(list.index) = list.text;
    for (const ListBox& list : form.comboRatio) take_ratio(list, rs, rs.ratioName(list.index));
    for (int pair = 1; pair <= MaxShow; ++pair) rs.setRatioShow(pair) = form.chkRatio(pair).value;
}

}  // namespace kolvar
