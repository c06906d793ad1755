// All windows of the program.
#pragma once

#include <string>
#include <vector>

#include "ui/forms/frm1_settings.hpp"
#include "ui/forms/frm2_time.hpp"
#include "ui/forms/frm2_up.hpp"
#include "ui/forms/frm3_matrix.hpp"
#include "ui/forms/frm4_output.hpp"
#include "ui/forms/frm_drift.hpp"
#include "ui/forms/frm_file_list.hpp"
#include "ui/forms/frm_help1.hpp"
#include "ui/forms/frm_input_form.hpp"
#include "ui/forms/frm_paste.hpp"
#include "ui/forms/frm_period.hpp"
#include "ui/forms/frm_set_flex.hpp"
#include "ui/forms/frm_set_is.hpp"
#include "ui/forms/frm_set_up.hpp"
#include "ui/forms/reports.hpp"
#include "ui/forms/uranium_lead_reports.hpp"

namespace kolvar {

struct Forms {
    Frm1Settings frm1_Settings;
    Frm2Time frm2_Time;
    Frm2UP frm2_UP;
    Frm3Matrix frm3_Matrix;
    Frm4Output frm4_Output;
    Frm5Preview frm5_Preview;
    FrmDwell frm_Dwell;
    FrmMissingIso frm_MissingIso;
    FrmOmit frm_Omit;
    FrmChoseDir frm_ChoseDir;
    FrmAverConc frm_AverConc;
    FrmBatchIS frm_Batch_IS;
    FrmFileList frm_FileList;
    FrmDrift frm_drift;
    FrmMissingUPb frm_Missing_UPb;
    FrmHgIsot frm_Hg_isot;
    FrmSetIS frm_SetIS;
    FrmSetUP frm_SetUP;
    FrmSetFLEX frm_Set_FLEX;
    FrmPeriod frm_Period;
    FrmInputForm frm_InputForm;
    FrmPaste frmPaste;
    FrmHelp1 frmHelp1;

    [[nodiscard]] std::vector<Form*> all() {
        return {&frm1_Settings,   &frm2_Time,      &frm2_UP,   &frm3_Matrix,  &frm4_Output,  &frm5_Preview,
                &frm_Dwell,       &frm_MissingIso, &frm_Omit,  &frm_ChoseDir, &frm_AverConc, &frm_Batch_IS,
                &frm_Missing_UPb, &frm_Hg_isot,    &frm_SetIS, &frm_SetUP,    &frm_Set_FLEX, &frm_Period,
                &frm_InputForm,   &frmPaste,       &frmHelp1,  &frm_FileList, &frm_drift};
    }
    // nullptr when there is no window of this name.
    [[nodiscard]] Form* find(const std::string& name) {
        for (Form* form : all())
            if (form->name == name) return form;
        return nullptr;
    }
};

}  // namespace kolvar
