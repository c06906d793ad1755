#include "qt/layouts/layouts.hpp"

namespace kolvar {

void lay_out(FormWindow& window, const Form& form, Program& program) {
    Forms& forms = program.forms();
    if (&form == &forms.frm1_Settings) lay_out_settings(window, forms.frm1_Settings);
    if (&form == &forms.frm2_Time) lay_out_time(window, forms.frm2_Time, program.state());
    if (&form == &forms.frm2_UP) lay_out_up(window, forms.frm2_UP, program.state());
    if (&form == &forms.frm_Missing_UPb) lay_out_missing_upb(window, forms.frm_Missing_UPb);
    if (&form == &forms.frm_Hg_isot) lay_out_hg_isotopes(window, forms.frm_Hg_isot);
    if (&form == &forms.frm3_Matrix) lay_out_matrix(window, forms.frm3_Matrix);
    if (&form == &forms.frm4_Output) lay_out_output(window, forms.frm4_Output);
    if (&form == &forms.frm5_Preview) lay_out_preview(window, forms.frm5_Preview);
    if (&form == &forms.frm_Dwell) lay_out_dwell(window, forms.frm_Dwell);
    if (&form == &forms.frm_MissingIso) lay_out_missing(window, forms.frm_MissingIso);
    if (&form == &forms.frm_Omit) lay_out_omit(window, forms.frm_Omit);
    if (&form == &forms.frm_ChoseDir) lay_out_folder(window, forms.frm_ChoseDir);
    if (&form == &forms.frm_AverConc) lay_out_averages(window, forms.frm_AverConc);
    if (&form == &forms.frm_Batch_IS) lay_out_batch(window, forms.frm_Batch_IS);
    if (&form == &forms.frm_FileList) lay_out_file_list(window, forms.frm_FileList);
    if (&form == &forms.frm_drift) lay_out_drift(window, forms.frm_drift);
    if (&form == &forms.frm_SetIS) lay_out_set_is(window, forms.frm_SetIS);
    if (&form == &forms.frm_SetUP) lay_out_set_up(window, forms.frm_SetUP);
    if (&form == &forms.frm_Set_FLEX) lay_out_set_flex(window, forms.frm_Set_FLEX);
    if (&form == &forms.frm_Period) lay_out_period(window, forms.frm_Period);
    if (&form == &forms.frm_InputForm) lay_out_import_filter(window, forms.frm_InputForm);
    if (&form == &forms.frmPaste) lay_out_paste(window, forms.frmPaste);
    if (&form == &forms.frmHelp1) lay_out_help(window, forms.frmHelp1);
}

}  // namespace kolvar
