#include "screens/set_is_values.hpp"

#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "core/numbers.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

// One row of the map: how a control shows its setting, and how the setting takes it back.
struct Row {
    std::function<void(FrmSetIS&, const RunState&)> show;
    std::function<void(const FrmSetIS&, RunState&)> take;
};

using Setting = Value RunState::*;
using Options = ControlArray<OptionButton> FrmSetIS::*;
constexpr int none = -1;

Row text(Entry FrmSetIS::*entry, Setting key) {
    return {[=](FrmSetIS& form, const RunState& rs) { (form.*entry).text = (rs.*key).text(); },
            [=](const FrmSetIS& form, RunState& rs) { rs.*key = (form.*entry).text; }};
}

Row number(Entry FrmSetIS::*entry, Setting key) {
    return {text(entry, key).show, [=](const FrmSetIS& form, RunState& rs) { rs.*key = Val((form.*entry).text); }};
}

// A number that the next assignment of standards uses as well.
Row number(Entry FrmSetIS::*entry, Setting key, Setting in_use) {
    return {text(entry, key).show,
            [=](const FrmSetIS& form, RunState& rs) { rs.*key = rs.*in_use = Val((form.*entry).text); }};
}

Row box(CheckBox FrmSetIS::*check, Setting key) {
    return {[=](FrmSetIS& form, const RunState& rs) { (form.*check).set_value_quietly((rs.*key).val() != 0 ? 1 : 0); },
            [=](const FrmSetIS& form, RunState& rs) { rs.*key = (form.*check).value; }};
}

int chosen(const ControlArray<OptionButton>& options) {
    for (int k = options.first(); k <= options.last(); ++k)
        if (options(k).on()) return k;
    return none;
}

void choose(ControlArray<OptionButton>& options, int wanted) {
    for (OptionButton& option : options) option.set_value_quietly(option.index == wanted ? 1 : 0);
}

// The index of the chosen option is the setting. `otherwise` shows any number that no option has.
Row choice(Options options, Setting key, int otherwise) {
    return {[=](FrmSetIS& form, const RunState& rs) {
                int wanted = otherwise;
                for (const OptionButton& option : form.*options)
                    if ((rs.*key).val() == option.index) wanted = option.index;
                choose(form.*options, wanted);
            },
            [=](const FrmSetIS& form, RunState& rs) {
                if (const int index = chosen(form.*options); index != none) rs.*key = index;
            }};
}

// Of these two options the first stands for 1, the second for 0.
Row one_or_zero(Options options, Setting key) {
    return {[=](FrmSetIS& form, const RunState& rs) { choose(form.*options, (rs.*key).val() == 1 ? 0 : 1); },
            [=](const FrmSetIS& form, RunState& rs) { rs.*key = (form.*options)(0).on() ? 1 : 0; }};
}

// What the run state has beside the settings follows from them.
Row derived(void (*follow)(RunState&)) {
    return {[](FrmSetIS&, const RunState&) {}, [=](const FrmSetIS&, RunState& rs) { follow(rs); }};
}

Row number_of_standards() {
    using Option = OptionButton FrmSetIS::*;
    static constexpr std::array<Option, 3> options{&FrmSetIS::opt1IS, &FrmSetIS::opt2IS, &FrmSetIS::opt3IS};
    return {[](FrmSetIS& form, const RunState& rs) {
                int standards = 0;
                for (const Option option : options)
                    (form.*option).set_value_quietly(rs.setISnum.val() == ++standards ? 1 : 0);
            },
            [](const FrmSetIS& form, RunState& rs) {
                int standards = 0;
                for (const Option option : options) {
                    ++standards;
                    if ((form.*option).on()) rs.setISnum = standards;
                }
            }};
}

// A ratio's analyte that the data do not have is shown as none, and is taken as none.
Row ratio_names() {
    return {[](FrmSetIS& form, const RunState& rs) {
                for (ListBox& list : form.comboRatio) {
                    const std::string name = rs.ratioName(list.index).text();
                    list.show_item(column_named(rs, name) > 0 ? name : std::string());
                }
            },
            [](const FrmSetIS& form, RunState& rs) {
                for (int k = 0; k < MaxRatioName; ++k) rs.ratioName(k) = form.comboRatio(k).text;
            }};
}

Row ratios_shown() {
    return {[](FrmSetIS& form, const RunState& rs) {
                for (int pair = 1; pair <= MaxShow; ++pair)
                    form.chkRatio(pair).set_value_quietly(rs.setRatioShow(pair).val() != 0 ? 1 : 0);
            },
            [](const FrmSetIS& form, RunState& rs) {
                for (int pair = 1; pair <= MaxShow; ++pair) rs.setRatioShow(pair) = form.chkRatio(pair).value;
            }};
}

// In the order in which the controls are taken: a number that is too large stops there.
std::vector<Row> rows() {
    using F = FrmSetIS;
    using R = RunState;
    return {
        text(&F::txtAbbrSTD, &R::setSTDabbr_IS),
        choice(&F::optCPSinData, &R::setCPS_IS, 0),
        one_or_zero(&F::optBLK_IS, &R::setBLK_IS),
        derived([](R& rs) { rs.BlankFromData = rs.setBLK_IS.whole(); }),
        text(&F::txtSTCpath, &R::setSTCfile_IS),
        text(&F::txtSTMpath, &R::setSTMfile_IS),
        text(&F::txtDwePath, &R::setDWEfile_IS),
        text(&F::txtDWEtime, &R::setIS_Dwell),
        choice(&F::optDWE, &R::setDwellFromFile_IS, 0),
        derived([](R& rs) { rs.DwellFromFile = rs.setDwellFromFile_IS.whole(); }),
        number_of_standards(),
        number(&F::txtISppm1, &R::setCcIntSta, &R::IS1conc),
        number(&F::txtISerr1, &R::setErIntSta, &R::IS1err),
        number(&F::txtISppm2, &R::setCcIntSta2, &R::IS2conc),
        number(&F::txtISerr2, &R::setErIntSta2, &R::IS2err),
        number(&F::txtISppm3, &R::setCcIntSta3, &R::IS3conc),
        number(&F::txtISerr3, &R::setErIntSta3, &R::IS3err),
        number(&F::txtMass2, &R::setMas2),
        number(&F::txtMass3, &R::setMass3),
        choice(&F::optPeriod, &R::setPeriod, 0),
        box(&F::chkFormerSel, &R::setFormer_Sel_IS),
        one_or_zero(&F::optLin, &R::setLinearIS),
        derived([](R& rs) { rs.LinearView = rs.setLinearIS.whole() == 1; }),
        choice(&F::optResultPlot, &R::setRatio_ppmIS, 0),
        box(&F::chkHorizLines, &R::setShow_linesIS),
        ratio_names(),
        ratios_shown(),
        box(&F::chkTestBlank, &R::setTestBlank),
        choice(&F::optTable, &R::setDataTable, none),
        box(&F::optShowMiMa, &R::setShowMinMax),
        box(&F::optMiMa, &R::setRejMinMax),
        box(&F::optShowGrubbs, &R::setShowGrubbs),
        box(&F::optGrubbs, &R::setRejGrubbs),
        box(&F::optShowStDev, &R::setShowSD),
        box(&F::optStDev, &R::setRejSD),
        number(&F::txtSD, &R::setSD_IS),
        choice(&F::optMean, &R::setMean_IS, 1),
        choice(&F::optOneLine, &R::setOneLine_IS, 1),
        choice(&F::optLinesTables, &R::setTableFormat, 1),
        text(&F::txtComments, &R::setComments_IS),
    };
}

// A name that no column has changes nothing, so that settings for other data survive; the blank name is column 0. Of
// columns with one name the last counts.
void take_standard(const std::string& name, RunState& rs, Limit& column, std::string& in_use, Value& setting) {
    for (int c = 0; c <= rs.nIso; ++c) {
        if (name != rs.IsoName(c)) continue;
        column = c;
        setting = in_use = name;
    }
}

constexpr int numerator_raw = 1;    // in setRatBLK: the numerator is used without blank correction
constexpr int denominator_raw = 2;  // and the denominator; the sum for both

void show_blank_flags(FrmSetIS& form, const RunState& rs) {
    for (int pair = 1; pair <= MaxShow; ++pair) {
        const double raw = rs.setRatBLK(pair).val();
        const bool both = raw == numerator_raw + denominator_raw;
        form.chkBLK1(pair).set_value_quietly(both || raw == numerator_raw ? 1 : 0);
        form.chkBLK2(pair).set_value_quietly(both || raw == denominator_raw ? 1 : 0);
    }
}

// The boxes read "Blank corr.", and a tick switches the correction off: the files hold them so.
void take_blank_flags(const FrmSetIS& form, RunState& rs) {
    for (int pair = 1; pair <= MaxShow; ++pair)
        rs.setRatBLK(pair) =
            (form.chkBLK1(pair).on() ? numerator_raw : 0) + (form.chkBLK2(pair).on() ? denominator_raw : 0);
}

void fill_lists(FrmSetIS& form, const RunState& rs) {
    std::vector<std::string> names;
    for (int c = 0; c <= rs.nIso; ++c) names.push_back(rs.IsoName(c));  // column 0 has none: the blank entry
    for (ListBox* list : {&form.comboIso, &form.comboIso2, &form.comboIso3}) list->set_items(names);
    for (ListBox& list : form.comboRatio) list.set_items(names);
}

}  // namespace

void show_settings(FrmSetIS& form, const RunState& rs) {
    fill_lists(form, rs);
    for (const Row& row : rows()) row.show(form, rs);
    form.comboIso.show_item(rs.setIntSta.text());
    form.comboIso2.show_item(rs.setIntSta2.text());
    form.comboIso3.show_item(rs.setIntSta3.text());
    show_blank_flags(form, rs);
}

void take_settings(const FrmSetIS& form, RunState& rs) {
    for (const Row& row : rows()) row.take(form, rs);
    take_standard(form.comboIso.text, rs, rs.IS1col, rs.IS1name, rs.setIntSta);
    take_standard(form.comboIso2.text, rs, rs.IS2col, rs.IS2name, rs.setIntSta2);
    take_standard(form.comboIso3.text, rs, rs.IS3col, rs.IS3name, rs.setIntSta3);
    take_blank_flags(form, rs);
    find_ratio_columns(rs);
}

}  // namespace kolvar
