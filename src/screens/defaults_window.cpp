#include "screens/defaults_window.hpp"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

#include "screens/defaults_standards.hpp"
#include "screens/defaults_values.hpp"
#include "screens/save_marker.hpp"
#include "screens/screens.hpp"
#include "settings/default_file.hpp"

namespace kolvar {

namespace {

bool begins_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

// The name under which the windows show what was saved: as many of the last characters of the answer as stand before
// the file name, and two more. It is the bare file name only where the folder's path happens to be so long.
std::string saved_name(const std::string& answer) {
    const std::size_t separator = answer.find_last_of("\\/");
    std::size_t wanted = 2;
    if (separator != std::string::npos) wanted += characters(std::string_view(answer).substr(0, separator + 1));
    std::size_t begin = answer.size();
    while (begin > 0 && wanted > 0)
        if (begins_character(answer[--begin])) --wanted;
    return answer.substr(begin);
}

// The controls into the settings, these into a file where that was asked for; the window closes in any case.
template <class Window>
void Take_New_Values(Context& context, Window& form) {
    RunState& rs = context.rs;
    const Running running(rs, "Take_New_Values");
    take_defaults(form, rs);
    if (rs.SaveRequest == save_marker) {
        rs.SaveRequest.clear();
        save_defaults_as(rs, context.os, rs.AppPath1);
        rs.SettingsName = saved_name(rs.SetFilePath);
    }
    context.shell.close(form);
}

// Only what the chosen kind of result needs is open.
void follow_average(DefaultsForm& form) {
    const bool tzero = form.optAverage(1).on();
    for (Control* control :
         std::initializer_list<Control*>{&form.Frame9, &form.optTzero(0), &form.optTzero(1), &form.optTzero(2),
                                         &form.txtDelay, &form.lblDelay, &form.chkPbAver})
        control->enabled = tzero;
    for (Control* control : std::initializer_list<Control*>{&form.Frame15, &form.optMean(0), &form.optMean(1)})
        control->enabled = !tzero;
}

template <class Window>
void open_window(Context& context, Window& form) {
    show_defaults(form, context.rs);
    form.comboMineral.set_value_quietly(0);
    show_mineral(form, context.rs);
    form.Label7.visible = form.lblPicture1.visible = false;
    follow_average(form);
}

template <class Window>
void connect_window(Program& program, Window& form) {
    Context& context = program.context();
    const auto click = [&](const std::string& control, void (*handler)(Context&, Window&)) {
        program.on(form, control, EventKind::click,
                   [&context, &form, handler](const Event&) { handler(context, form); });
    };
    click("cmdApply", Take_New_Values<Window>);
    click("cmdSaveAs", [](Context& c, Window& f) {
        const SaveUnderWay save(c.rs);
        Take_New_Values(c, f);
    });
    click("cmdCancel", [](Context& c, Window& f) { c.shell.close(f); });
    click("Picture1", [](Context&, Window& f) { f.lblPicture1.visible = true; });
    for (OptionButton& option : form.optAverage) option.changed = [&form] { follow_average(form); };
    connect_minerals(program, form);
}

}  // namespace

void open_defaults_window(Context& context) {
    if (context.rs.Method == 1) context.shell.open(context.forms.frm_SetUP);
    if (context.rs.Method == 3) context.shell.open(context.forms.frm_Set_FLEX);
}

void connect_defaults_windows(Program& program) {
    Context& context = program.context();
    FrmSetUP& uranium_lead = context.forms.frm_SetUP;
    FrmSetFLEX& flex = context.forms.frm_Set_FLEX;
    program.shell().set_hooks(uranium_lead, {[&context, &uranium_lead] {
                                                 open_window(context, uranium_lead);
                                                 show_standard(uranium_lead, context.rs);
                                                 uranium_lead.Picture2.visible = false;
                                             },
                                             {}});
    program.shell().set_hooks(flex, {[&context, &flex] { open_window(context, flex); }, {}});
    connect_window(program, uranium_lead);
    connect_window(program, flex);
    connect_standards(program);
    program.on(flex, "comboPref", EventKind::choose,
               [&flex](const Event& event) { colour_choice(flex.comboPref(event.index)); });
    program.on(flex, "comboRatio", EventKind::choose, [&context, &flex](const Event& event) {
        ListBox& list = flex.comboRatio(event.index);
        colour_choice(list);
        if (list.text.empty()) context.rs.RatioCol(list.index) = 0;
    });
}

}  // namespace kolvar
