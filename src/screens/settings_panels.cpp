#include "screens/settings_panels.hpp"

#include <array>
#include <initializer_list>
#include <vector>

#include "core/numbers.hpp"
#include "screens/sequence.hpp"
#include "screens/settings_window.hpp"

namespace kolvar {

namespace {

void enable(std::initializer_list<Control*> controls, bool enabled) {
    for (Control* control : controls) control->enabled = enabled;
}

void show(std::initializer_list<Control*> controls, bool visible) {
    for (Control* control : controls) control->visible = visible;
}

// The choice of files (and with it the way out) or the choice of internal standards: one of the two can be used.
void enable_choices(Frm1Settings& form, bool files) {
    enable(
        {&form.cmdClose, &form.cmdLoadCSV, &form.cmdLoadSTC, &form.cmdLoadSTM, &form.cmdLoadBLK, &form.cmdLoadDWE,
         &form.cmdPaste, &form.lblCSV, &form.lblSTC, &form.lblSTM, &form.lblBLK, &form.lblDWE, &form.optData,
         &form.optCreatSTM, &form.optCreatBLK, &form.optBfromData, &form.optBLKfile, &form.optDweUni, &form.optDWEfile},
        files);
    enable({&form.cmdNext, &form.cmdBack, &form.comboIso, &form.comboIso2, &form.comboIso3, &form.txtISppm,
            &form.txtISppm2, &form.txtISppm3, &form.txtISerr, &form.txtISerr2, &form.txtISerr3},
           !files);
}

void show_panel(Frm1Settings& form, const Panel& panel, const char* title) {
    for (Panel* each : {&form.pict_IS, &form.pict_UT, &form.pict_FLEX}) each->visible = each == &panel;
    form.title = title;
}

// What the panel of the internal standards shows of files, blank and dwell time when it comes into view.
void fill_file_choice(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    form.lblCSV.text = shown_name(rs.DataFileName);
    form.lblSTC.text = shown_name(rs.STCfileName);
    form.lblSTM.text = shown_name(rs.STMfileName);
    form.lblBLK.text = shown_name(rs.BLKfileName);
    form.lblDWE.text = shown_name(rs.DWEfileName);
    form.txtDwell.text = decimal(rs.DwellUniform * 1000);
    enable_choices(form, true);
    (rs.BlankFromData == 1 ? form.optBfromData : form.optBLKfile).set_value_quietly(1);
    (rs.DwellFromFile == 1 ? form.optDWEfile : form.optDweUni).set_value_quietly(1);
    follow_mode(context);
    // Of the groups of the blank and of the dwell time the controls of the option that isn't set can't be used.
    if (rs.BlankFromData == 1) follow_blank(context);
    if (rs.DwellFromFile != 1) follow_dwell(context);
    form.txtDwell.enabled = rs.DwellFromFile != 1;
}

void activate_internal_standard(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    show_panel(form, form.pict_IS, "KOLVAR  -  Step 1: File selection, internal standard");
    show({&form.cmdOK1, &form.cmdChooseUP, &form.cmdPaste1}, false);
    // A default file has brought the panel into a window that opened with another one: no option is chosen yet.
    if (!form.optDweUni.on() && !form.optDWEfile.on()) fill_file_choice(context);
    form.txtISppm.text = rs.IS1conc.text();
    form.txtISerr.text = rs.IS1err.text();
    form.txtISppm2.text = rs.IS2conc.text();
    form.txtISerr2.text = rs.IS2err.text();
    form.txtISppm3.text = rs.IS3conc.text();
    form.txtISerr3.text = rs.IS3err.text();
    fill_lists(context);
}

void activate_uranium_lead(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    show_panel(form, form.pict_UT, "Kolv-AGE  -  Start window");
    // The last two are out of sight when the window comes from the panel of the internal standards.
    show({&form.cmdOK1, &form.cmdChooseUP, &form.cmdPaste1, &form.lblUP, &form.lblCaptionUP}, true);
    form.lblUP.text = rs.DataFileName;
    form.lblUPset.text = rs.SettingsName;
    const bool undecided = rs.SeqMode.is_text() || rs.SeqMode.is_unset();
    const bool batch = in_sequence(rs);
    show({&form.cmdIndividual, &form.cmdSequential}, undecided);
    enable({&form.cmdChooseUP, &form.lblUP, &form.lblCaptionUP}, !undecided && !batch);
    enable({&form.cmdCreate, &form.cmdOpenMaster}, undecided || batch);
    if (rs.DataFileName.empty() || !rs.HgChosen) form.cmdOK1.visible = false;
    if (!rs.HgChosen) form.lblUP.text = "  ";
}

void activate_flex(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    show_panel(form, form.pict_FLEX, "Kolv-FLEX  -  Start window");
    form.cmdOK1.visible = true;
    form.lblFLEX.text = context.rs.DataFileName;
    form.optBfromDataFLEX.set_value_quietly(1);
    (context.rs.DwellFromFile == 1 ? form.optDWEfileFLEX : form.optDweUniFLEX).set_value_quietly(1);
    form.txtDwellFLEX.text = decimal(context.rs.DwellUniform * 1000);
}

}  // namespace

void fill_lists(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    std::vector<std::string> names;
    for (int i = 1; i <= rs.nIso; ++i) names.push_back(rs.IsoName(i));
    for (ListBox* list : {&form.comboIso, &form.comboIso2, &form.comboIso3}) list->set_items(names);
    if (rs.PlotOn != 0 || !rs.IS1col.is_set()) return;
    // A standard that the data do not have shows the name of column 0, which is empty.
    form.comboIso.show_item(rs.IsoName(rs.IS1col.val()));
    form.comboIso2.show_item(rs.IsoName(rs.IS2col.val()));
    form.comboIso3.show_item(rs.IsoName(rs.IS3col.val()));
}

std::string shown_name(const std::string& name) { return "  " + name + "  "; }

void follow_number_of_standards(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    const double standards = context.rs.setISnum.val();
    show({&form.comboIso2, &form.txtISppm2, &form.txtISerr2, &form.lblIntHead}, standards > 1);
    show({&form.comboIso3, &form.txtISppm3, &form.txtISerr3}, standards == 3);
    if (standards == 2) form.lblIntHead.text = "Two Internal Standards";
    if (standards == 3) form.lblIntHead.text = "Three Internal Standards";
}

void follow_mode(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    const bool data = form.optData.on();
    enable({&form.cmdLoadSTC, &form.cmdLoadSTM, &form.cmdSTCinfo, &form.cmdDWEinfo, &form.lblSTC, &form.lblSTM,
            &form.lblCaptionSTC, &form.lblCaptionSTM, &form.Frame2, &form.Frame3},
           data);
    form.Frame1.enabled = !form.optCreatBLK.on();  // a standard measurement still needs its blank; a blank needs none
}

void follow_blank(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    enable({&form.cmdLoadBLK, &form.lblBLK}, form.optBLKfile.on());
}

void follow_dwell(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    const bool from_file = form.optDWEfile.on();
    enable({&form.cmdLoadDWE, &form.lblDWE, &form.cmdDWEinfo}, from_file);
    form.txtDwell.enabled = !from_file;
}

void Selection_Ready(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    enable_choices(form, false);
    form.set_focus(form.comboIso);  // what had the focus can't be used any more
}

void back_to_file_choice(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    enable_choices(form, true);
    form.set_focus(form.cmdOK);
    if (form.optCreatSTM.on() || form.optCreatBLK.on())
        enable({&form.cmdLoadSTC, &form.cmdLoadSTM, &form.lblSTC, &form.lblSTM}, false);
    if (rs.BlankFromData == 1) enable({&form.cmdLoadBLK, &form.lblBLK}, false);
    const bool from_file = rs.DwellFromFile == 1;
    enable({&form.cmdLoadDWE, &form.lblDWE, &form.cmdDWEinfo}, from_file);
    form.txtDwell.enabled = !from_file;
}

void show_data_file(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    form.lblCSV.text = shown_name(rs.DataFileName);
    form.lblUP.text = rs.DataFileName;
    form.lblFLEX.text = rs.DataFileName;
    fill_lists(context);
}

void open_settings_window(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "open_settings_window");
    Frm1Settings& form = context.forms.frm1_Settings;
    show({&form.mnuDef, &form.mnuSet, &form.mnuFile1, &form.mnuFile2}, true);
    if (rs.Method == 0) {
        form.mnuDef.visible = false;
        fill_file_choice(context);
        if (rs.KeepData) Selection_Ready(context);
    } else if (rs.Method == 1 || rs.Method == 3) {
        form.title = rs.Method == 1 ? "Kolv-AGE  -  Start window" : "Kolv-FLEX  -  Start window";
        show({&form.mnuFile1, &form.mnuFile2, &form.mnuSet}, false);
    }
}

void activate_settings_window(Context& context) {
    const Running running(context.rs, "activate_settings_window");
    switch (context.rs.Method) {
        case 0:
            activate_internal_standard(context);
            break;
        case 1:
            activate_uranium_lead(context);
            break;
        case 3:
            activate_flex(context);
            break;
        default:
            break;
    }
    follow_number_of_standards(context);
}

}  // namespace kolvar
