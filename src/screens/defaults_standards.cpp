#include "screens/defaults_standards.hpp"

#include <array>
#include <string>
#include <vector>

#include "core/numbers.hpp"

namespace kolvar {

namespace {

// The columns behind txtStd(0..8).
constexpr std::array<Table1<Value> RunState::*, 9> columns = {
    &RunState::Std_Abbr, &RunState::Std_U,  &RunState::Std_Th, &RunState::Std_Pb, &RunState::Std_68,
    &RunState::Std_75,   &RunState::Std_82, &RunState::Std_76, &RunState::Std_Age};

Value& cell(RunState& rs, int column, int row) { return (rs.*columns[static_cast<std::size_t>(column)])(row); }
const Value& cell(const RunState& rs, int column, int row) {
    return (rs.*columns[static_cast<std::size_t>(column)])(row);
}

// The fields that are on the screen, all of them, become the row; without a standard there is none.
void store_row(Context& context) {
    FrmSetUP& form = context.forms.frm_SetUP;
    RunState& rs = context.rs;
    const int row = form.comboStd.value + 1;
    if (row < 1) return;
    for (const Entry& entry : form.txtStd)
        cell(rs, entry.index, row) = entry.index == 0 ? Value(entry.text) : Value(Val(entry.text));
    for (const Entry& entry : form.txtStdEr) rs.Std_Er(entry.index, row) = Val(entry.text);
}

// 0 stands for a figure that nobody has measured and passes; an empty field does not, unless it is empty because no
// standard is chosen: it would not let the user go to the list.
void leave_number(Context& context, Entry& entry) {
    if (context.forms.frm_SetUP.comboStd.value < 0 && entry.text.empty()) return;
    if (is_numeric(entry.text) && Val(entry.text) >= 0) return store_row(context);
    context.os.warn("Type positive numbers to the records of standards, please.");
    context.forms.frm_SetUP.set_focus(entry);
}

// The new row stays, whatever becomes of the window.
void cmdOKnewSTD(Context& context) {
    FrmSetUP& form = context.forms.frm_SetUP;
    RunState& rs = context.rs;
    if (form.txtNewSTD.text.empty()) return;
    const int row = rs.setNumSTD.whole() + 1;
    if (row > MaxStd)
        return context.os.warn("The table of standards is full: " + std::to_string(MaxStd) + " standards at most.");
    form.Picture2.visible = false;
    rs.setNumSTD = row;
    rs.Std_Name(row) = form.txtNewSTD.text;
    rs.Std_Abbr(row) = "type here";
    for (int column = 1; column <= 8; ++column) cell(rs, column, row) = rs.Std_Er(column, row) = 1;
    form.txtNewSTD.text.clear();
    std::vector<std::string> names;
    for (int k = 1; k <= row; ++k) names.push_back(rs.Std_Name(k).text());
    form.comboStd.set_items(std::move(names));
    show_standard(form, rs);
    form.set_focus(form.comboStd);
}

void refuse_typing(Context& context) {
    FrmSetUP& form = context.forms.frm_SetUP;
    form.comboStd.set_value_quietly(form.comboStd.value);  // the name again
    context.os.warn("You can not type directly here. The names of standards are not variable.");
}

}  // namespace

void show_standard(FrmSetUP& form, const RunState& rs) {
    const int row = form.comboStd.value + 1;
    for (Entry& entry : form.txtStd) entry.text = row < 1 ? std::string() : cell(rs, entry.index, row).text();
    for (Entry& entry : form.txtStdEr) entry.text = row < 1 ? std::string() : rs.Std_Er(entry.index, row).text();
}

void show_mineral(DefaultsForm& form, const RunState& rs) {
    const int other = static_cast<int>(form.comboMineral.items.size()) - 1;
    const int index = form.comboMineral.value;
    form.txtMineral.text = index < 0 || index >= other ? std::string() : rs.setMineral(index).text();
}

void connect_standards(Program& program) {
    Context& context = program.context();
    FrmSetUP& form = context.forms.frm_SetUP;
    const auto on = [&](const std::string& control, EventKind kind, void (*handler)(Context&)) {
        program.on(form, control, kind, [&context, handler](const Event&) { handler(context); });
    };
    on("comboStd", EventKind::choose, [](Context& c) { show_standard(c.forms.frm_SetUP, c.rs); });
    on("comboStd", EventKind::type, refuse_typing);
    on("cmdNewSTD", EventKind::click, [](Context& c) {
        c.forms.frm_SetUP.Picture2.visible = true;
        c.forms.frm_SetUP.set_focus(c.forms.frm_SetUP.txtNewSTD);
    });
    on("cmdCancelNewStd", EventKind::click, [](Context& c) { c.forms.frm_SetUP.Picture2.visible = false; });
    on("cmdOKnewSTD", EventKind::click, cmdOKnewSTD);
    on("txtNewSTD", EventKind::enter, cmdOKnewSTD);
    program.on(form, "txtStd", EventKind::leave, [&context, &form](const Event& event) {
        if (event.index == 0) return store_row(context);
        leave_number(context, form.txtStd(event.index));
    });
    program.on(form, "txtStdEr", EventKind::leave,
               [&context, &form](const Event& event) { leave_number(context, form.txtStdEr(event.index)); });
}

void connect_minerals(Program& program, DefaultsForm& form) {
    RunState& rs = program.state();
    program.on(form, "comboMineral", EventKind::choose, [&](const Event&) { show_mineral(form, rs); });
    program.on(form, "txtMineral", EventKind::type, [&](const Event&) { form.Label7.visible = true; });
    // "other" shows no name, and keeps the one that it is given all the same.
    program.on(form, "txtMineral", EventKind::enter, [&](const Event&) {
        if (form.comboMineral.value >= 0) rs.setMineral(form.comboMineral.value) = form.txtMineral.text;
        form.Label7.visible = false;
    });
}

}  // namespace kolvar
