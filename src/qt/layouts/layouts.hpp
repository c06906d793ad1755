// The layouts: where the widgets of each window stand, its default button and its keys.
#pragma once

#include "qt/form_window.hpp"
#include "screens/program.hpp"

namespace kolvar {

// Gives the window of this form its layout; to be called once, after its widgets were made.
void lay_out(FormWindow& window, const Form& form, Program& program);

void lay_out_settings(FormWindow& window, const Frm1Settings& form);
void lay_out_time(FormWindow& window, const Frm2Time& form, const RunState& rs);
void lay_out_up(FormWindow& window, Frm2UP& form, const RunState& rs);
void lay_out_missing_upb(FormWindow& window, const FrmMissingUPb& form);
void lay_out_hg_isotopes(FormWindow& window, const FrmHgIsot& form);
void lay_out_matrix(FormWindow& window, const Frm3Matrix& form);
void lay_out_output(FormWindow& window, const Frm4Output& form);
void lay_out_preview(FormWindow& window, const Frm5Preview& form);
void lay_out_dwell(FormWindow& window, const FrmDwell& form);
void lay_out_missing(FormWindow& window, const FrmMissingIso& form);
void lay_out_omit(FormWindow& window, const FrmOmit& form);
void lay_out_folder(FormWindow& window, const FrmChoseDir& form);
void lay_out_averages(FormWindow& window, const FrmAverConc& form);
void lay_out_batch(FormWindow& window, const FrmBatchIS& form);
void lay_out_file_list(FormWindow& window, FrmFileList& form);
void lay_out_drift(FormWindow& window, FrmDrift& form);
void lay_out_set_is(FormWindow& window, FrmSetIS& form);
void lay_out_set_up(FormWindow& window, FrmSetUP& form);
void lay_out_set_flex(FormWindow& window, FrmSetFLEX& form);
void lay_out_period(FormWindow& window, const FrmPeriod& form);
void lay_out_import_filter(FormWindow& window, const FrmInputForm& form);
void lay_out_paste(FormWindow& window, const FrmPaste& form);
void lay_out_help(FormWindow& window, const FrmHelp1& form);

}  // namespace kolvar
