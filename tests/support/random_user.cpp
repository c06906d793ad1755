#include "support/random_user.hpp"

#include <filesystem>

namespace kolvar::test {

bool RandomPlatform::ask(const std::string& text, const std::string& title) {
    const bool scripted = !yes_or_no.empty();
    const bool yes = ScriptedPlatform::ask(text, title);
    if (scripted) return yes;
    return choices_.below(3) == 1;  // the first choice is No: whoever has none left does not go round for ever
}

std::string RandomPlatform::open_file(const FileDialog& dialog) {
    if (!opens.empty()) {
        const std::string path = ScriptedPlatform::open_file(dialog);
        if (path.ends_with(".msf")) saved_master_ = path;
        return path;
    }
    if (choices_.one_in(4)) return {};
    const auto wants = [&](const char* ending) { return dialog.filter.find(ending) != std::string::npos; };
    if (wants("*.set") && !saved_settings_.empty() && choices_.one_in(2)) return saved_settings_;
    if (wants("*.msf")) return saved_master_;
    const std::string name = wants("*.set")   ? "Kolvar-default-h.set"
                             : wants("*.stc") ? "nist-srm-610.stc"
                             : wants("*.stm") ? "nbs-610-2004-12-19-1.stm"
                             : wants("*.blk") ? "2004-12-19-a.blk"
                             : wants("*.dwe") ? "quadrupole.dwe"
                             : wants("*.def") ? "KolvAge-default-b01.def"
                                              : choices_.one_of(data_);
    return folder_ + "/start-kit/" + name;
}

std::optional<std::string> RandomPlatform::save_file(const FileDialog& dialog) {
    if (!saves.empty()) return ScriptedPlatform::save_file(dialog);
    if (choices_.one_in(3)) return std::nullopt;
    std::string name = std::filesystem::path(dialog.name).filename().string();
    // The list of a batch is only found again beside its measurements.
    if (name.ends_with(".msf")) return saved_master_ = folder_ + "/start-kit/" + name;
    const std::string path = folder_ + "/" + name;
    if (path.ends_with(".set")) saved_settings_ = path;
    return path;
}

std::string RandomPlatform::clipboard() {
    return clip = choices_.one_of<std::string>(
               {"", "no table", "Al27\tSi29\r\n1\t2\r\n", bytes_of(folder_ + "/start-kit/Example-Copy-Paste.xls")});
}

bool beside_the_steps(const Form& form) {
    for (const char* beside : {"frm_SetIS", "frm_Period", "frm_InputForm", "frmPaste", "frmHelp1", "frm_Batch_IS",
                               "frm_FileList", "frm_drift"})
        if (form.name == beside) return true;
    return false;
}

bool leads_out(const Control& control) {
    if (control.name == "mnuFile") return control.index == 3;
    for (const char* name : {"cmdExit", "cmdCancel", "cmdExitUP", "cmdExitFLEX"})
        if (control.name == name && control.form.step) return true;
    return control.name == "cmdClose" && control.form.name == "frm1_Settings";
}

namespace {

bool typed(const Control& control, Choices& choices, Event& event) {
    if (control.locked) return false;
    // On the steps these complain when they lose the focus, and a walk has none.
    for (const char* complaining : {"txtSD", "txtMass2", "txtMass3", "txtStd", "txtStdEr"})
        if (control.name == complaining && !beside_the_steps(control.form)) return false;
    event.kind = EventKind::type;
    if (control.name.starts_with("txtMass")) {
        event.text = choices.one_of<std::string>({"5", "20", "87.5", "120", "300", "300.5", "abc", ""});
        return true;
    }
    std::vector<std::string> texts{"20", "3", "0", "abc", "153319", "2.5", ""};
    if (control.form.name == "frm_InputForm") texts = {"1", "2", "3", "4", "7", "0.5", "two"};
    if (control.name == "txtZizzRange") texts = {"0", "1", "2.5", "3", "few"};  // a wide band takes its time
    // In an entry of several lines Enter begins a new one.
    if (!control.multiline && choices.one_in(3))
        event.kind = EventKind::enter;
    else
        event.text = choices.one_of(texts);
    return true;
}

bool chosen(const Control& control, Choices& choices, Event& event) {
    if (control.items.empty() || control.name == "Drive1") return false;  // there is more on the disk than the kit
    if (control.editable && choices.one_in(3)) {
        event.kind = EventKind::type;
        event.text = choices.one_of<std::string>({"Al27", "Xx99", ""});
        return true;
    }
    event.kind = EventKind::choose;
    event.value = choices.below(static_cast<int>(control.items.size()));
    return true;
}

// An isotope goes onto a place of the ratios, at times.
bool dragged(const Control& control, Choices& choices, Event& event) {
    if (control.name != "chkIs" || control.form.name != "frm2_Time" || !choices.one_in(8)) return false;
    const Control* const place = control.form.find("lblRatio", choices.below(12));
    if (place == nullptr || !place->reachable()) return false;
    event.kind = EventKind::drag;
    event.target = place->name;
    event.target_index = place->index;
    return true;
}

}  // namespace

bool random_event(const Control& control, Choices& choices, const std::vector<std::string>& folders, Event& event) {
    event.window = control.form.name;
    event.control = control.name;
    event.index = control.index;
    switch (control.kind) {
        case ControlKind::check:
            if (dragged(control, choices, event)) return true;
            [[fallthrough]];
        case ControlKind::button:
        case ControlKind::option:
        case ControlKind::menu_entry:
            event.kind = EventKind::click;
            return !leads_out(control);
        case ControlKind::entry:
            return typed(control, choices, event);
        case ControlKind::list:
            return chosen(control, choices, event);
        case ControlKind::folder_list:
            if (folders.empty()) return false;
            event.kind = EventKind::choose;
            event.text = choices.one_of(folders);
            return true;
        case ControlKind::label:
            event.kind = EventKind::click;
            return (control.form.name == "frm_Period" && control.name != "lblNumber") || control.name == "lblRatio";
        case ControlKind::scroll:
            event.kind = EventKind::scroll;
            event.value = control.minimum + choices.below(control.maximum - control.minimum + 1);
            return true;
        case ControlKind::picture:
            if (control.name == "pict3" || (control.form.name != "frm2_Time" && control.form.name != "frm2_UP") ||
                control.width < 1 || control.height < 1)
                return false;
            event.kind = EventKind::press;
            event.button = 1 + choices.below(2);
            event.shift = choices.one_in(2) ? 1 : 0;
            event.x = choices.below(control.width);
            event.y = choices.below(control.height);
            return true;
        case ControlKind::grid: {
            const auto& grid = static_cast<const Grid&>(control);
            if (grid.rows == 0 || grid.cols == 0) return false;
            event.kind = control.form.name == "frm_FileList" ? EventKind::cell_dblclick : EventKind::cell_click;
            event.row = choices.below(grid.rows);
            event.col = choices.below(grid.cols);
            return true;
        }
        default:
            return false;
    }
}

}  // namespace kolvar::test
