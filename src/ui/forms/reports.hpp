// The small windows: gaps in the reference files, the start-kit folder, too few data, average concentrations.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmDwell : Form {
    FrmDwell() : Form("frm_Dwell", "KOLVAR  Warning Message") {}

    Label lblHead{*this, "lblHead", "Isotopes of the Data File are not present in the Dwell Time File!"};
    Label lblList{*this, "lblList", "The following isotopes are missing in the Dwell Time File:"};
    Label lblDWE{*this, "lblDWE"};
    Label lblEffect{*this, "lblEffect",
                    "The lack of the dwell times does not allow to calculate the errors of the concentrations."};
    Button cmdBack{*this, "cmdBack", "Back to file selection"};
    Button cmdCont{*this, "cmdCont",
                   "Continue and calculate the error using the shortest time of the Dwell File in case of the isotopes "
                   "where the dwell time is missing"};
};

struct FrmMissingIso : Form {
    FrmMissingIso() : Form("frm_MissingIso", "KOLVAR  Warning Message") {}

    Label lblHead{*this, "lblHead", "Isotopes of the Data File are not present in the standard and/or blank files!"};
    Label lblListSTC{*this, "lblListSTC", "The following isotopes are missing in the Standard Composition File:"};
    Label lblSTC{*this, "lblSTC"};
    Label lblListSTM{*this, "lblListSTM", "The following isotopes are missing in the Standard Measurement File:"};
    Label lblSTM{*this, "lblSTM"};
    Label lblListBLK{*this, "lblListBLK", "The following isotopes are missing in the Blank File:"};
    Label lblBLK{*this, "lblBLK"};
    Button cmdBack{*this, "cmdBack", "Back to file selection"};
    Button cmdCont{*this, "cmdCont", "Continue without calculation of these isotopes"};
};

struct FrmOmit : Form {
    FrmOmit() : Form("frm_Omit", "KOLVER  Warning Message") {}

    Label lblHead{*this, "lblHead", "Too few data in some lines, modify the rejection!"};
    Label lblText{*this, "lblText",
                  "The following lines contains less than two data, thus the calculation is not possible:"};
    Label lblList{*this, "lblList"};
    Button cmdOK{*this, "cmdOK", "OK"};
};

struct FrmChoseDir : Form {
    FrmChoseDir() : Form("frm_ChoseDir", "KOLVAR  -  StartKit directory") {
        // What belongs to a sequence of files comes with the U/Pb path.
        List1.visible = FlexGrid2.visible = cmdOK.visible = cmdProc.visible = false;
    }

    Label lblAdvice{*this, "lblAdvice",
                    "Recommended procedure after installation: (1) create your preferred directory, (2) copy the "
                    "content of the entire 'C:\\Kolvar-StartKit' directory to the preferred directory, (3) save the "
                    "path."};
    ListBox Drive1{*this, "Drive1"};
    FolderList Dir1{*this, "Dir1"};
    ListBox List1{*this, "List1"};
    Label lblPath{*this, "lblPath"};
    Grid FlexGrid2{*this, "FlexGrid2"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdProc{*this, "cmdProc", "Process"};
    Button cmdSave{*this, "cmdSave", "Save this path and this starting directory"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

// Batches on the internal-standard path: the window is all there is of them.
struct FrmBatchIS : Form {
    FrmBatchIS() : Form("frm_Batch_IS", "Sequential treatment of files") {}

    Button cmdClose{*this, "cmdClose", "Close"};
};

struct FrmAverConc : Form {
    FrmAverConc() : Form("frm_AverConc", "Preview of aver. conc. (\xC2\xB1 1 s.d.)") {
        for (Label& label : lbl) label.visible = false;
    }

    ControlArray<Label> lbl{*this, "lbl", 0, 74, ""};
};

}  // namespace kolvar
