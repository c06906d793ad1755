// The list of a batch: makes a master list from the files of a folder, opens its files, shows its results.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmFileList : Form {
    FrmFileList() : Form("frm_FileList", "Kolv-AGE  -  List of data files") {}

    ListBox Drive1{*this, "Drive1"};
    FolderList Dir1{*this, "Dir1"};
    Label lblPath{*this, "lblPath"};
    ListBox List1{*this, "List1"};
    ControlArray<OptionButton> optStringSearch{*this, "optStringSearch", 0, 2, "First characters of the file names", 1};
    ListBox Combo1{*this, "Combo1"};
    Label Label2{*this, "Label2", "Number of characters indicating the serial number in the file name:"};
    ListBox Combo2{*this, "Combo2"};
    Entry txtSpecExt{*this, "txtSpecExt", "type your special extension here"};
    Button cmdAccept{*this, "cmdAccept",
                     "This sequence of files corresponds to the sequence of measurements. Accept this file list as it "
                     "is."};
    Button cmdReOrd{*this, "cmdReOrd", "Re-order file list according to these parameters"};
    Button cmdSaveParam{*this, "cmdSaveParam", "Save these parameters in the default file"};
    Label lblTitle{*this, "lblTitle"};
    Grid FlexGrid2{*this, "FlexGrid2"};
    ListBox comboStd{*this, "comboStd"};
    Button cmdSave{*this, "cmdSave", "Save master file"};
    Button cmdBack{*this, "cmdBack", "Back"};
    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace kolvar
