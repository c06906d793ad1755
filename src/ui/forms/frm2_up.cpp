#include "ui/forms/frm2_up.hpp"

#include "core/fault.hpp"

namespace kolvar {

Frm2UP::Frm2UP() : TimeScreen("frm2_UP", "Kolv-AGE  -  Selection of time slices and results on screen", true) {
    width = 18600;
    height = 11400;
    VScroll3.minimum = 5, VScroll3.maximum = 20, VScroll3.value = 20;
    optConcord(0).text = "Wetherill";
    cmdSaveAnd(0).text = "Save results and open previous";
    lblRizsa(6).text = "data per point";
    lblRizsa(12).text = "Y: 206/238";
    lblRizsa(13).text = "X: 207/235";
    lblRizsa(23).text = "Default File:";
    lblRizsa(30).text = "Master file:";

    put_into(pictRightSide, {&optLi, &optLo, &optLiR, &optLoR, &cmdCopyHead, &cmdCopy, &cmdApp, &cmdCopySel,
                             &cmdNewFile, &cmdSett, &cmdExit, &cmdBack, &cmdNext});
    for (Label& label : lblFLEXiso) put_into(picUP_elems, {&label});
    put_into(picUP_elems, {&lbl238,     &lbl235,    &lbl232,    &lbl208,    &lbl207,      &lbl206,    &lbl204,
                           &lblAver(8), &lbl238LoD, &lbl235LoD, &lbl232LoD, &lbl208LoD,   &lbl207LoD, &lbl206LoD,
                           &lbl204LoD,  &lbl20xLoD, &lbl235C,   &chkHgCorr, &chkCommLead, &txtAgePb,  &Check1});
    for (int ratio = 0; ratio < 5; ++ratio) {
        const RatioRow row = ratio_row(ratio);
        put_into(pictResults, {&row.box, &row.mean, &row.median, &row.tzero, &row.poisson, &row.skewness, &row.slope,
                               &row.correlation});
    }
    put_into(pictResults, {&chkLinReg, &lblAv, &lblMed, &lblTz, &lbl8_5});
    put_into(Frame1,
             {&lblAge06_38Head, &lblAge06_38, &lblAge07_35Head, &lblAge07_35, &Label15, &lblConcordHead, &lblConcord1});
    put_into(Frame2, {&optConcord(0), &optConcord(1), &Command1, &lblRizsa(6), &lblFusion});
    put_into(Frame4, {&chkShowSD, &lblIfSD, &txtSD, &chkRejOL, &cmdReject, &lblReject, &lblOM});
    const Colour curves[] = {palette(0), palette(12), palette(10), palette(1), palette(13)};
    for (int k = 1; k <= 5; ++k) {
        put_into(Frame4, {&Shape(k)});
        Shape(k).back = curves[k - 1];
    }
    put_into(FrameBzzz, {&txtZizzRange, &comboBzz, &Combo7, &Combo8, &chkBzzPrompt, &cmdZizeges, &cmdAccept, &lblRMS68,
                         &lblRMS75, &lblZizzMin1, &lblZizzMin2, &lblBest68, &lblBest75, &lblImprove, &lblExplain});
    put_into(pictSeq, {&lblSeqTitle, &lblPos, &lblStdFiNum, &lblSamFiNum, &cmdOpenPrev, &cmdOpenNext, &cmdSaveAnd(0),
                       &cmdSaveAnd(1), &cmdCopyMas, &cmdOpenSeq, &cmdShowTab, &cmdPlot, &cmdInterpolation});
    last_in_tab_order(
        {&cmdCopyHead, &cmdCopy, &cmdApp, &cmdCopySel, &cmdNewFile, &cmdSett, &cmdExit, &cmdBack, &cmdNext});

    hide_until_needed();
    for (Label& label : lblRizsa) label.visible = !label.text.empty();
    for (Control* hidden :
         std::initializer_list<Control*>{&lblBeam_St, &lbl235C, &cmdAccept, &lblBestLow, &lblBestUpp, &lblExplain,
                                         &pictSeq, &lblRizsa(30), &lblDir, &cmdInterpolation, &cmdNext})
        hidden->visible = false;
    for (Control* unusable : std::initializer_list<Control*>{&cmdReject, &cmdCopyHead, &cmdCopy, &cmdApp, &cmdCopySel,
                                                             &cmdSaveAnd(0), &cmdSaveAnd(1), &cmdCopyMas, &cmdPlot})
        unusable->enabled = false;
}

Frm2UP::RatioRow Frm2UP::ratio_row(int ratio) {
    switch (ratio) {
        case 0:
            return {chk68, lbl6_8, lblMed6_8, lblTz6_8, lblExPo68, lblSkew1, lblLR1b, lblLR1r};
        case 1:
            return {chk75, lbl7_5, lblMed7_5, lblTz7_5, lblExPo75, lblSkew2, lblLR2b, lblLR2r};
        case 2:
            return {chk82, lbl8_2, lblMed8_2, lblTz8_2, lblExPo82, lblSkew3, lblLR3b, lblLR3r};
        case 3:
            return {chkUTh, lbl38_2, lblMed38_2, lblTz38_2, lblExPo382, lblSkew4, lblLR4b, lblLR4r};
        case 4:
            return {chk76, lbl7_6, lblMed7_6, lblTz7_6, lblExPo76, lblSkew5, lblLR5b, lblLR5r};
        default:
            fail(FaultKind::index);
    }
}

}  // namespace kolvar
