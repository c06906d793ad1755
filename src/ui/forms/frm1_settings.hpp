// Step 1: files, internal standards, and the start panels of the three paths.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct Frm1Settings : Form {
    Frm1Settings();

    // Menus. mnuDef and mnuSet are the titles; the entries bear the names mnuDefault and mnuSettings.
    MenuTitle mnuFileTitle{*this, "mnuFileTitle", "&File"};
    MenuTitle mnuSet{*this, "mnuSet", "&Settings"};
    MenuTitle mnuDef{*this, "mnuDef", "&Defaults"};
    MenuEntry mnuFile0{*this, "mnuFile", "Open Data File", 0};
    MenuEntry mnuFile1{*this, "mnuFile", "Open Standard Composition File", 1};
    MenuEntry mnuFile2{*this, "mnuFile", "Open Standard Measurement File", 2};
    MenuEntry mnuFile3{*this, "mnuFile", "Exit", 3};
    MenuEntry mnuSettings0{*this, "mnuSettings", "Load settings from file", 0};
    MenuEntry mnuSettings1{*this, "mnuSettings", "Show Settings window", 1};
    MenuEntry mnuSettings2{*this, "mnuSettings", "Set import for the format of data files", 2};
    MenuEntry mnuSettings3{*this, "mnuSettings", "Specify the path to the StartKit directory", 3};
    MenuEntry mnuDefault0{*this, "mnuDefault", "Open default file", 0};
    MenuEntry mnuDefault1{*this, "mnuDefault", "Modify defaults", 1};
    MenuEntry mnuDefault2{*this, "mnuDefault", "Specify import filter for the data files", 2};
    MenuTitle hlp1Title{*this, "hlp1Title", "&Help"};
    MenuEntry hlp1_1{*this, "hlp1", "Most important points ...", 1};
    MenuEntry hlp1_2{*this, "hlp1", "Flow chart", 2};
    MenuEntry hlp1_3{*this, "hlp1", "Introduction (article, MAC)", 3};
    MenuEntry hlp1_4{*this, "hlp1", "Format of the files", 4};
    MenuEntry hlp1_5{*this, "hlp1", "Explanation to the example files", 5};
    MenuEntry hlp1_6{*this, "hlp1", "Equations", 6};
    MenuEntry hlp1_7{*this, "hlp1", "Exported results", 7};
    MenuEntry hlp1_9{*this, "hlp1", "Visit Kolvar homepage for latest version and help", 9};
    MenuEntry hlp1_10{*this, "hlp1", "About", 10};

    Label lblVersion{*this, "lblVersion"};

    // The internal-standard panel.
    Panel pict_IS{*this, "pict_IS"};
    Frame frameMode{*this, "frameMode", "Type of data handling"};
    OptionButton optData{*this, "optData", "Processing a Data File (calculating concentrations)", 1};
    OptionButton optCreatSTM{*this, "optCreatSTM", "Creating a Standard Measurement File", 1};
    OptionButton optCreatBLK{*this, "optCreatBLK", "Creating a Blank File", 1};

    Frame frameFile{*this, "frameFile", "Data File"};
    Label lblCSV{*this, "lblCSV"};
    Button cmdLoadCSV{*this, "cmdLoadCSV", "Browse ..."};
    Button cmdPaste{*this, "cmdPaste", "Paste data from clipboard"};

    Frame Frame2{*this, "Frame2", "Standard composition"};
    Label lblCaptionSTC{*this, "lblCaptionSTC", "Standard Composition File  (.STC):"};
    Label lblSTC{*this, "lblSTC"};
    Button cmdLoadSTC{*this, "cmdLoadSTC", "Browse ..."};
    Button cmdSTCinfo{*this, "cmdSTCinfo", "Info"};

    Frame Frame3{*this, "Frame3", "Standard measurement"};
    Label lblCaptionSTM{*this, "lblCaptionSTM", "Standard Measurement File  (.STM):"};
    Label lblSTM{*this, "lblSTM"};
    Button cmdLoadSTM{*this, "cmdLoadSTM", "Browse ..."};

    Frame Frame1{*this, "Frame1", "Blank"};
    OptionButton optBfromData{*this, "optBfromData", "Will be extracted from the Data File in the next step", 2};
    OptionButton optBLKfile{*this, "optBLKfile", "From a Blank File  (.BLK):", 2};
    Label lblBLK{*this, "lblBLK"};
    Button cmdLoadBLK{*this, "cmdLoadBLK", "Browse ..."};

    Frame frameDwell{*this, "frameDwell", "Dwell time"};
    OptionButton optDweUni{*this, "optDweUni", "Uniform Dwell Time of ", 3};
    Entry txtDwell{*this, "txtDwell"};
    Label lblDweMS{*this, "lblDweMS", "msec"};
    OptionButton optDWEfile{*this, "optDWEfile", "From a Dwell Time File  (.DWE):", 3};
    Label lblDWE{*this, "lblDWE"};
    Button cmdLoadDWE{*this, "cmdLoadDWE", "Browse ..."};
    Button cmdDWEinfo{*this, "cmdDWEinfo", "Info"};

    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdModiSet{*this, "cmdModiSet", "Settings"};
    Button cmdSeq{*this, "cmdSeq", "Sequential processing"};
    Button cmdClose{*this, "cmdClose", "Exit"};

    Frame frameIntStd{*this, "frameIntStd", "Internal standard"};
    Label lblIntHead{*this, "lblIntHead"};
    Label lblIntIso{*this, "lblIntIso", "Isotope"};
    Label lblIntConc{*this, "lblIntConc", "Concentration [ppm]"};
    Label lblIntErr{*this, "lblIntErr", "Error [ppm]"};
    ListBox comboIso{*this, "comboIso"};
    Entry txtISppm{*this, "txtISppm"};
    Entry txtISerr{*this, "txtISerr"};
    ListBox comboIso2{*this, "comboIso2"};
    Entry txtISppm2{*this, "txtISppm2"};
    Entry txtISerr2{*this, "txtISerr2"};
    ListBox comboIso3{*this, "comboIso3"};
    Entry txtISppm3{*this, "txtISppm3"};
    Entry txtISerr3{*this, "txtISerr3"};
    Button cmdBack{*this, "cmdBack", "Back"};
    Button cmdNext{*this, "cmdNext", "Next Step"};

    // The start panel of the U/Pb path.
    Panel pict_UT{*this, "pict_UT"};
    Button cmdIndividual{*this, "cmdIndividual", "Individual processing of data files"};
    Button cmdSequential{*this, "cmdSequential", "Sequential processing of standard-sample-standard file batches"};
    Label lblCaptionSeq{*this, "lblCaptionSeq", "Batch of data files:"};
    Button cmdCreate{*this, "cmdCreate", "Create a master file"};
    Button cmdOpenMaster{*this, "cmdOpenMaster", "Open a master file"};
    Button Command6{*this, "Command6", "Open personal default file first"};
    Button cmdChooseSET{*this, "cmdChooseSET", "Browse ..."};
    Label lblUPset{*this, "lblUPset"};
    Button cmdSet_1{*this, "cmdSet_1", "Modify defaults"};
    Label lblCaptionUP{*this, "lblCaptionUP", "Data file:"};
    Button cmdChooseUP{*this, "cmdChooseUP", "Browse and next step"};
    Label lblUP{*this, "lblUP"};
    Button cmdPaste1{*this, "cmdPaste1", "Paste data from clipboard"};
    Button cmdOK1{*this, "cmdOK1", "Next Step"};
    Button cmdExitUP{*this, "cmdExitUP", "Exit"};

    // The start panel of the FLEX path.
    Panel pict_FLEX{*this, "pict_FLEX"};
    Label lblFLEX{*this, "lblFLEX"};
    Button Command15{*this, "Command15", "Browse"};
    // To be read only: this path takes its blank from the data, and counts become cps by the dwell times of the others.
    Frame frameBlankFLEX{*this, "frameBlankFLEX", "Blank"};
    OptionButton optBfromDataFLEX{*this, "optBfromDataFLEX", "Will be extracted from the Data File in the next step",
                                  4};
    OptionButton optBLKfileFLEX{*this, "optBLKfileFLEX", "From a Blank File  (.BLK):", 4};
    Frame frameDwellFLEX{*this, "frameDwellFLEX", "Dwell time"};
    OptionButton optDweUniFLEX{*this, "optDweUniFLEX", "Uniform Dwell Time of ", 5};
    Entry txtDwellFLEX{*this, "txtDwellFLEX"};
    Label lblDweMSFLEX{*this, "lblDweMSFLEX", "msec"};
    OptionButton optDWEfileFLEX{*this, "optDWEfileFLEX", "From a Dwell Time File  (.DWE):", 5};
    Button Command9{*this, "Command9", "Next Step"};
    Button cmdExitFLEX{*this, "cmdExitFLEX", "Exit"};
};

}  // namespace kolvar
