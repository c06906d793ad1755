#include "screens/settings_window.hpp"

#include <vector>

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "import/data_file.hpp"
#include "screens/screens.hpp"
#include "screens/selection.hpp"
#include "screens/sequence.hpp"
#include "screens/set_is_window.hpp"
#include "screens/settings_panels.hpp"
#include "screens/start_paths.hpp"
#include "screens/uranium_lead_files.hpp"
#include "settings/default_file.hpp"
#include "settings/reference_files.hpp"
#include "settings/settings_file.hpp"
#include "trace/matching.hpp"

namespace kolvar {

namespace {

// The first step of the internal-standard panel: are the files there that the chosen mode needs?
void cmdOK(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    rs.Method = 0;
    rs.ModeData = form.optData.value;
    rs.ModeCreateSTM = form.optCreatSTM.value;
    rs.ModeCreateBLK = form.optCreatBLK.value;
    rs.BlankFromData = form.optBfromData.value;
    rs.DwellFromFile = form.optDWEfile.value;

    if (rs.DataFileName.empty()) return context.os.warn("Choose a Data File.");
    if (rs.ModeCreateBLK != 1 && rs.BlankFromData != 1 && rs.BLKfileName.empty())
        return context.os.warn("Choose a Blank File.");
    if (rs.ModeData == 1) {
        if (rs.STCfileName.empty()) return context.os.warn("Choose a Standard Composition File.");
        if (rs.STMfileName.empty()) return context.os.warn("Choose a Standard Measurement File.");
    }
    const double milliseconds = rs.DwellFromFile == 0 ? Val(form.txtDwell.text) : 0.0;
    if (rs.DwellFromFile == 0 && milliseconds <= 0) {
        context.os.warn("The dwell time must be a positive number.");
        return form.set_focus(form.txtDwell);
    }
    if (rs.DwellFromFile == 1 && rs.DWEfileName.empty()) return context.os.warn("Choose a Dwell Time File.");
    if (rs.DwellFromFile == 0) {
        rs.DwellUniform = milliseconds / 1000;
        for (int i = 1; i <= rs.nIso; ++i) rs.Dwell(i) = rs.DwellUniform;
    }
    if (rs.ModeData == 1) return Selection_Ready(context);

    AssignInternalStandards(rs);
    MatchReferences(context);
    // In a creating mode a gap of the internal standard stops nobody; it must not silence the next matching either.
    rs.RefsMatched = false;
    context.shell.open(context.forms.frm2_Time);
    context.shell.close(form);
}

struct StandardRow {
    Limit& column;
    Entry& ppm;
    Entry& error;
    const char* choose;
    const char* enter_conc;
    const char* enter_error;
};

// False after a box that says what is missing for this standard.
bool standard_complete(Context& context, const StandardRow& row) {
    Frm1Settings& form = context.forms.frm1_Settings;
    if (row.column.val() < 1) {
        context.os.warn(row.choose);
        return false;
    }
    if (Val(row.ppm.text) <= 0) {
        context.os.warn(row.enter_conc);
        form.set_focus(row.ppm);
        return false;
    }
    if (Val(row.error.text) <= 0) {
        context.os.warn(row.enter_error);
        form.set_focus(row.error);
        return false;
    }
    return true;
}

// The second step of the internal-standard panel.
void cmdNext(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    rs.Method = 0;
    const double standards = rs.setISnum.val();
    if (!standard_complete(
            context, {rs.IS1col, form.txtISppm, form.txtISerr, "Choose an internal standard from the list of isotopes.",
                      "Enter the concentration of the internal standard.",
                      "Enter the error of the concentration of internal standard."}))
        return;
    if (standards > 1 &&
        !standard_complete(context, {rs.IS2col, form.txtISppm2, form.txtISerr2,
                                     "Choose a second internal standard from the list of isotopes.",
                                     "Enter the concentration of the second internal standard.",
                                     "Enter the error of the concentration of the second internal standard."}))
        return;
    if (standards == 3 &&
        !standard_complete(context, {rs.IS3col, form.txtISppm3, form.txtISerr3,
                                     "Choose a third internal standard from the list of isotopes.",
                                     "Enter the concentration of the third internal standard.",
                                     "Enter the error of the concentration of the third internal standard."}))
        return;
    // All six boxes count, also those of standards that are not in use.
    rs.IS1conc = Val(form.txtISppm.text);
    rs.IS1err = Val(form.txtISerr.text);
    rs.IS2conc = Val(form.txtISppm2.text);
    rs.IS2err = Val(form.txtISerr2.text);
    rs.IS3conc = Val(form.txtISppm3.text);
    rs.IS3err = Val(form.txtISerr3.text);
    rs.AutoScale1 = rs.AutoScale2 = true;

    AssignInternalStandards(rs);
    MatchReferences(context);
    if (rs.RefsMatched) {  // a fatal gap was reported
        rs.RefsMatched = false;
        return;
    }
    if (rs.ModeData == 1 && !rs.MissDWE.empty()) {
        context.shell.open(context.forms.frm_Dwell);
    } else {
        const bool gaps = !rs.MissSTC.empty() || !rs.MissSTM.empty();
        if (gaps || (rs.BlankFromData == 0 && !rs.MissBLK.empty())) context.shell.open(context.forms.frm_MissingIso);
        if (!gaps && rs.MissBLK.empty()) context.shell.open(context.forms.frm2_Time);
    }
    context.shell.close(form);
}

// A standard chosen from the list: the last column of that name counts.
void choose_standard(RunState& rs, const ListBox& list, Limit& column, std::string& name) {
    name = list.text;
    for (int i = 1; i <= rs.nIso; ++i)
        if (rs.IsoName(i) == name) column = i;
}

// The dialog and the load of a data file, and what the window shows of it.
void choose_File(Context& context) {
    RunState& rs = context.rs;
    if (!ChooseDataFile(context)) return;
    show_data_file(context);
    if (rs.Method != 1 && rs.Method != 3) return;
    rs.BlankFromData = 1;
    go_on_with_new_file(context, context.forms.frm1_Settings);
}

void cmdChooseUP(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    form.cmdIndividual.visible = form.cmdSequential.visible = false;
    choose_File(context);
}

// One file after the other, without a list.
void cmdIndividual(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    context.rs.SeqMode = false;
    for (Control* control : std::initializer_list<Control*>{&form.cmdCreate, &form.cmdOpenMaster, &form.cmdSequential,
                                                            &form.lblCaptionSeq})
        control->visible = false;
    for (Control* control : std::initializer_list<Control*>{&form.cmdChooseUP, &form.lblUP, &form.lblCaptionUP,
                                                            &form.cmdChooseSET, &form.cmdSet_1, &form.lblUPset})
        control->visible = control->enabled = true;
}

// A batch: its list beside this window, which offers a new master file and one that is there.
void cmdSequential(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    context.rs.SeqMode = true;
    form.cmdIndividual.visible = form.cmdSequential.visible = false;
    open_list_window(context, context.rs.ListMode);
}

void cmdCreate(Context& context) {
    Frm1Settings& form = context.forms.frm1_Settings;
    context.rs.SeqMode = true;
    for (Control* control :
         std::initializer_list<Control*>{&form.cmdIndividual, &form.cmdChooseUP, &form.lblUP, &form.lblCaptionUP})
        control->visible = false;
    open_list_window(context, 0);
}

// To the ratios of the file that is loaded; its selection is shown as the former one.
void cmdOK1(Context& context) {
    RunState& rs = context.rs;
    rs.Method = 1;
    rs.BlankFromData = 1;
    keep_as_former(rs);
    rs.ShowFirst = "elso";
    if (!refused_for_missing_isotopes(context)) context.shell.open(context.forms.frm2_UP);
    context.shell.close(context.forms.frm1_Settings);
}

void Command9(Context& context) {
    context.rs.Method = 3;
    context.rs.BlankFromData = 1;
    context.shell.open(context.forms.frm2_UP);
    context.shell.close(context.forms.frm1_Settings);
}

void open_defaults(Context& context, const char* filter) {
    RunState& rs = context.rs;
    const int former_method = rs.Method;
    rs.SetFilePath = context.os.open_file({filter, 2, "", rs.AppPath1});
    if (rs.SetFilePath.empty()) return;
    rs.SettingsPath = rs.SetFilePath;
    rs.SettingsName = file_name(rs.SettingsPath);
    ReadDefaults(rs, context.os, rs.SettingsPath);
    context.forms.frm1_Settings.lblUPset.text = shown_name(rs.SettingsName);
    if (rs.Method != former_method) context.shell.activate_again();
}

void cmdChooseSET(Context& context) { open_defaults(context, "All Files (*.*)|*.*|Default Files (*.def)|*.def"); }

// Offers settings files, though what it reads is a default file.
void Command6(Context& context) { open_defaults(context, "All Files (*.*)|*.*|Setting Files (*.set)|*.set"); }

void load_settings_from_file(Context& context) {
    RunState& rs = context.rs;
    Frm1Settings& form = context.forms.frm1_Settings;
    const int former_method = rs.Method;
    rs.SetFilePath = context.os.open_file({"All Files (*.*)|*.*|Setting Files (*.set)|*.set", 2, "", rs.AppPath1});
    if (rs.SetFilePath.empty()) return;
    rs.SettingsPath = rs.SetFilePath;
    rs.SettingsName = file_name(rs.SettingsPath);
    ReadSettings(rs, context.os, rs.SettingsPath);
    form.lblUPset.text = rs.SettingsName;
    rs.STCfilePath = rs.STCfileName = reference_path(rs, rs.setSTCfile_IS.text());
    LoadSTC(rs, context.os);
    form.lblSTC.text = shown_name(rs.STCfileName);
    if (rs.Method != former_method) context.shell.activate_again();
}

void connect_choices(Program& program) {
    Context& context = program.context();
    Frm1Settings& form = context.forms.frm1_Settings;
    form.optData.changed = form.optCreatSTM.changed = form.optCreatBLK.changed = [&context] { follow_mode(context); };
    form.optBfromData.changed = form.optBLKfile.changed = [&context] { follow_blank(context); };
    form.optDweUni.changed = form.optDWEfile.changed = [&context] { follow_dwell(context); };

    RunState& rs = context.rs;
    form.comboIso.changed = [&] { choose_standard(rs, form.comboIso, rs.IS1col, rs.IS1name); };
    form.comboIso2.changed = [&] { choose_standard(rs, form.comboIso2, rs.IS2col, rs.IS2name); };
    form.comboIso3.changed = [&] { choose_standard(rs, form.comboIso3, rs.IS3col, rs.IS3name); };
}

}  // namespace

void connect_settings_window(Program& program) {
    Context& context = program.context();
    Frm1Settings& form = context.forms.frm1_Settings;
    program.shell().set_hooks(
        form, {[&context] { open_settings_window(context); }, [&context] { activate_settings_window(context); }});
    connect_choices(program);

    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click("cmdOK", cmdOK);
    click("cmdNext", cmdNext);
    click("cmdBack", back_to_file_choice);
    click("cmdLoadCSV", choose_File);
    click("Command15", choose_File);
    click("cmdLoadSTC", browse_stc);
    click("cmdLoadSTM", browse_stm);
    click("cmdLoadBLK", browse_blk);
    click("cmdLoadDWE", browse_dwe);
    click("cmdSTCinfo", [](Context& c) { show_stc_info(c.rs, c.os); });
    click("cmdDWEinfo", [](Context& c) { show_dwe_info(c.rs, c.os); });
    for (const char* leaving : {"cmdClose", "cmdExitUP", "cmdExitFLEX"})
        click(leaving, [](Context&) { throw ProgramEnd{0}; });
    click("cmdIndividual", cmdIndividual);
    click("cmdChooseUP", cmdChooseUP);
    click("cmdChooseSET", cmdChooseSET);
    click("Command6", Command6);
    click("cmdOK1", cmdOK1);
    click("Command9", Command9);
    click("cmdSequential", cmdSequential);
    click("cmdCreate", cmdCreate);
    click("cmdOpenMaster", cmdOpenMaster);

    click("cmdSet_1", [](Context& c) { c.shell.open(c.forms.frm_SetUP); });
    click("cmdModiSet", [](Context& c) { open_set_is(c, "back to start"); });
    click("cmdSeq", [](Context& c) { c.shell.open(c.forms.frm_Batch_IS); });

    program.on(form, "mnuFile", EventKind::click, [&context](const Event& event) {
        switch (event.index) {
            case 0:
                return choose_File(context);
            case 1:
                return browse_stc(context);
            case 2:
                return browse_stm(context);
            default:
                throw ProgramEnd{0};
        }
    });
    program.on(form, "mnuSettings", EventKind::click, [&context](const Event& event) {
        switch (event.index) {
            case 0:
                return load_settings_from_file(context);
            case 1:
                if (context.rs.Method == 0) return open_set_is(context, "back to start");
                if (context.rs.Method == 1) context.shell.open(context.forms.frm_SetUP);
                return;
            case 2:
                return context.shell.open(context.forms.frm_InputForm);
            default:
                return context.shell.open(context.forms.frm_ChoseDir);
        }
    });
    program.on(form, "mnuDefault", EventKind::click, [&context](const Event& event) {
        if (event.index == 0) return cmdChooseSET(context);
        if (event.index == 2) return context.shell.open(context.forms.frm_InputForm);
        context.shell.open(context.forms.frm_SetUP);
    });
}

}  // namespace kolvar
