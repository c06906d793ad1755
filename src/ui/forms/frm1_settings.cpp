#include "ui/forms/frm1_settings.hpp"

namespace kolvar {

Frm1Settings::Frm1Settings() : Form("frm1_Settings", "KOLVAR  -  Step 1: File selection, internal standard", true) {
    put_into(mnuFileTitle, {&mnuFile0, &mnuFile1, &mnuFile2, &mnuFile3});
    put_into(mnuSet, {&mnuSettings0, &mnuSettings1, &mnuSettings2, &mnuSettings3});
    put_into(mnuDef, {&mnuDefault0, &mnuDefault1, &mnuDefault2});
    put_into(hlp1Title, {&hlp1_1, &hlp1_2, &hlp1_3, &hlp1_4, &hlp1_5, &hlp1_6, &hlp1_7, &hlp1_9, &hlp1_10});

    put_into(pict_IS, {&frameMode, &frameFile, &Frame2, &Frame3, &Frame1, &frameDwell, &frameIntStd, &cmdOK,
                       &cmdModiSet, &cmdSeq, &cmdClose, &cmdBack, &cmdNext});
    put_into(frameMode, {&optData, &optCreatSTM, &optCreatBLK});
    put_into(frameFile, {&lblCSV, &cmdLoadCSV, &cmdPaste});
    put_into(Frame2, {&lblCaptionSTC, &lblSTC, &cmdLoadSTC, &cmdSTCinfo});
    put_into(Frame3, {&lblCaptionSTM, &lblSTM, &cmdLoadSTM});
    put_into(Frame1, {&optBfromData, &optBLKfile, &lblBLK, &cmdLoadBLK});
    put_into(frameDwell, {&optDweUni, &txtDwell, &lblDweMS, &optDWEfile, &lblDWE, &cmdLoadDWE, &cmdDWEinfo});
    put_into(frameIntStd, {&lblIntHead, &lblIntIso, &lblIntConc, &lblIntErr, &comboIso, &txtISppm, &txtISerr,
                           &comboIso2, &txtISppm2, &txtISerr2, &comboIso3, &txtISppm3, &txtISerr3});
    put_into(pict_UT,
             {&cmdIndividual, &cmdSequential, &cmdCreate, &cmdOpenMaster, &Command6, &cmdChooseSET, &lblUPset,
              &cmdSet_1, &lblCaptionUP, &lblCaptionSeq, &cmdChooseUP, &lblUP, &cmdPaste1, &cmdOK1, &cmdExitUP});
    put_into(pict_FLEX, {&lblFLEX, &Command15, &frameBlankFLEX, &frameDwellFLEX, &Command9, &cmdExitFLEX});
    put_into(frameBlankFLEX, {&optBfromDataFLEX, &optBLKfileFLEX});
    put_into(frameDwellFLEX, {&optDweUniFLEX, &txtDwellFLEX, &lblDweMSFLEX, &optDWEfileFLEX});
    frameBlankFLEX.enabled = frameDwellFLEX.enabled = false;

    optData.value = 1;  // the mode that the program starts in
    pict_IS.visible = pict_UT.visible = pict_FLEX.visible = false;
    // The choice of the internal standards comes after the files were accepted.
    cmdNext.enabled = cmdBack.enabled = false;
    for (Control* control :
         {static_cast<Control*>(&comboIso), static_cast<Control*>(&comboIso2), static_cast<Control*>(&comboIso3),
          static_cast<Control*>(&txtISppm), static_cast<Control*>(&txtISppm2), static_cast<Control*>(&txtISppm3),
          static_cast<Control*>(&txtISerr), static_cast<Control*>(&txtISerr2), static_cast<Control*>(&txtISerr3)})
        control->enabled = false;
}

}  // namespace kolvar
