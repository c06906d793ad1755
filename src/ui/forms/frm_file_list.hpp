// The list of a batch: makes a master list from the files of a folder, opens its files, shows its results.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmFileList : Form {
    FrmFileList() : Form("frm_FileList", "Kolv-AGE  -  List of data files") {
        put_into(pictChoice,
                 {&Drive1, &Dir1, &lblPath, &List1, &lblHint(0), &cmdAccept, &optStringSearch(0), &optStringSearch(1),
                  &optStringSearch(2), &Combo1, &Label2, &Combo2, &txtSpecExt, &cmdReOrd, &cmdSaveParam});
        static const char* const hints[] = {"The directory list needs to be refreshed by up-down and double clicks.",
                                            "  Modify standard: double click on 'Standard'  ",
                                            "  Deselect standard: double click on 'Type'  ",
                                            "  Delete a line: double click on file name  "};
        for (int hint = lblHint.first(); hint <= lblHint.last(); ++hint) lblHint(hint).text = hints[hint];
        optStringSearch(1).text = "In the middle of the file names, starting at character number of";
        optStringSearch(2).text = "At the end of the file names, before the extension";
        comboStd.visible = lblStd.visible = false;
    }

    // Folder and order of a new list.
    Panel pictChoice{*this, "pictChoice"};
    ListBox Drive1{*this, "Drive1"};
    FolderList Dir1{*this, "Dir1"};
    ControlArray<Label> lblHint{*this, "lblHint", 0, 3, ""};
    Label lblPath{*this, "lblPath"};
    ListBox List1{*this, "List1"};
    Button cmdAccept{*this, "cmdAccept",
                     "This sequence of files corresponds to the sequence of measurements. Accept this file list as it "
                     "is."};
    // Where the serial number stands: 0 first, 1 middle, 2 end.
    ControlArray<OptionButton> optStringSearch{*this, "optStringSearch", 0, 2, "First characters of the file names", 1};
    ListBox Combo1{*this, "Combo1"};  // its first character in the middle
    Label Label2{*this, "Label2", "Number of characters indicating the serial number in the file name:"};
    ListBox Combo2{*this, "Combo2"};
    Entry txtSpecExt{*this, "txtSpecExt", "type your special extension here"};
    Button cmdReOrd{*this, "cmdReOrd", "Re-order file list according to these parameters"};
    Button cmdSaveParam{*this, "cmdSaveParam", "Save these parameters in the default file"};

    Label lblTitle{*this, "lblTitle"};
    Grid FlexGrid2{*this, "FlexGrid2"};
    Panel pictKey{*this, "pictKey"};  // what the colours of the lines stand for
    Label lblStd{*this, "lblStd"};    // for which line comboStd asks
    ListBox comboStd{*this, "comboStd"};
    Button cmdSave{*this, "cmdSave", "Save master file"};
    Button cmdBack{*this, "cmdBack", "Back"};
    Button cmdClose{*this, "cmdClose", "Close"};

    // Quiet colours of a line that tell its state at a glance; a sample to be processed is white.
    static constexpr Colour open_standard = pale_green, processed_standard = rgb(160, 214, 180),
                            processed_sample = rgb(221, 232, 250);

    int line_of_standard = 0;  // the line for which comboStd asks
    bool just_opened = false;  // the opening has filled the grid, the activation need not
};

}  // namespace kolvar
