// The settings window of the internal-standard path, opened from the first window.
#pragma once

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {

using Names = std::vector<std::string>;

class SetIsWindow : public ProgramOnKit {
protected:
    FrmSetIS& form() { return forms().frm_SetIS; }
    void open() {
        if (program->shell().active() == nullptr) program->start(0);
        click(forms().frm1_Settings, "cmdModiSet");
        ASSERT_EQ(shown_windows().back(), "frm_SetIS");
    }
    void leave(const std::string& control) { program->dispatch(event_of(EventKind::leave, form(), control)); }
    void choose_ratio(int k, const std::string& item) {
        Event event = event_of(EventKind::choose, form(), "comboRatio", k);
        event.text = item;
        program->dispatch(event);
    }
    std::string only_box() {
        const Names texts = box_texts();
        return texts.size() == 1 ? texts[0] : std::to_string(texts.size()) + " boxes";
    }
    std::string ranges() {
        return form().lblMass1.text + (form().lblMass2.visible ? " " + form().lblMass2.text : "") +
               (form().lblMass3.visible ? " " + form().lblMass3.text : "");
    }
};

inline const std::string second_too_large =
    "Invalid value!\n\nSet the mass boundary for the second internal standard less than 300 amu.";
inline const std::string third_too_large =
    "Invalid value!\n\nSet the mass boundary for the third internal standard less than 300 amu.";

}  // namespace kolvar::test
