#include "ui/forms/frm_set_up.hpp"

#include <array>

namespace kolvar {

FrmSetUP::FrmSetUP() : DefaultsForm("frm_SetUP", "Defaults for the U/Pb data reduction") {
    const std::array<const char*, 9> columns = {"Abbr. in file names: ",
                                                "U [ppm]: ",
                                                "Th [ppm]: ",
                                                "Pb [ppm]: ",
                                                "206/238: ",
                                                " 207/235: ",
                                                "208/232: ",
                                                "207/206: ",
                                                "Age [Ma]:"};
    for (Label& label : lblStd) label.text = columns[static_cast<std::size_t>(label.index)];

    put_into(frameStandards, {&comboStd, &cmdNewSTD, &lblStdValue, &lblStdError, &Picture2});
    for (Label& label : lblStd) put_into(frameStandards, {&label});
    for (Entry& entry : txtStd) put_into(frameStandards, {&entry});
    for (Entry& entry : txtStdEr) put_into(frameStandards, {&entry});
    put_into(Picture2, {&lblNewSTD, &txtNewSTD, &cmdOKnewSTD, &cmdCancelNewStd});
    put_into(frameShow, {&chkFormerSel});
    put_into(frameCommonLead,
             {&chkCommLead1, &Option1, &Option2, &Option3, &Option13, &Text4, &Check4, &txtAgePb, &Check6});

    comboStd.editable = true;  // to tell who types there that the names are fixed
    Picture2.visible = false;
    // From a value to its error, then to the next row.
    for (int row = 0; row <= 8; ++row) {
        last_in_tab_order({&txtStd(row)});
        if (row > 0) last_in_tab_order({&txtStdEr(row)});
    }
    last_in_tab_order({&cmdNewSTD, &txtNewSTD, &cmdOKnewSTD, &cmdCancelNewStd, &chkFormerSel, &chkHgCorr1});
    for (Control* unused : std::initializer_list<Control*>{&chkCommLead1, &Option1, &Option2, &Option3, &Option13,
                                                           &Text4, &Check4, &txtAgePb, &Check6}) {
        without_effect.push_back(unused);
        last_in_tab_order({unused});
    }
    next_after_minerals(frameStandards);
}

}  // namespace kolvar
