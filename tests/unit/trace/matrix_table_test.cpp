#include "matrix_case.hpp"

namespace kolvar::test {
namespace {

using MatrixTable = MatrixCase;
using Items = std::vector<std::string>;

TEST_F(MatrixTable, CpsViewShowsRoundedCpsAndTheAverageOfEachRow) {
    three_isotopes();
    EXPECT_EQ(grid.rows, 4);
    EXPECT_EQ(grid.cols, 6);
    EXPECT_EQ(grid.cell(0, 0).text, "CPS / Average");
    EXPECT_EQ(texts(0), "t2 t3 t4 t5 t6");
    EXPECT_EQ(grid.cell(1, 0).text, "Si29   /  100");
    EXPECT_EQ(grid.cell(2, 0).text, "Sr88   /  30");
    EXPECT_EQ(texts(2), "10 20 30 40 50");
    EXPECT_EQ(rs.TableView, "cps");
    EXPECT_EQ(rs.NameColWidth, 1550);
    EXPECT_EQ(form.Frame2.text, "CPS  (raw data)");
}

TEST_F(MatrixTable, CpsAreRoundedHalfUpAlsoBelowZero) {
    three_isotopes();
    data(rs.Sig2, 2, {2.5, -0.5, -1.2, -1.5, 0.49});
    rs.CpsMean(2) = 12.5;
    FillTable(context);
    EXPECT_EQ(texts(2), "3 0 -1 -1 0");
    EXPECT_EQ(grid.cell(2, 0).text, "Sr88   /  13");
}

TEST_F(MatrixTable, RatioViewShowsFourDecimals) {
    three_isotopes();
    view(form.optIIS);
    EXPECT_EQ(grid.cell(0, 0).text, "Isot./I.S.");
    EXPECT_EQ(grid.cell(2, 0).text, "Sr88");
    // 10/100, 20/110, 30/90, 40/100, 50/100
    EXPECT_EQ(texts(2), "0.1000 0.1818 0.3333 0.4000 0.5000");
    EXPECT_EQ(rs.TableView, "iis");
    EXPECT_EQ(rs.NameColWidth, 800);
    EXPECT_EQ(form.Frame2.text, "Isotope / Internal Standard  (with blank correction)");
    rs.RatioSD(2) = 0;
    FillTable(context);
    EXPECT_EQ(texts(2), "--- --- --- --- ---");
}

TEST_F(MatrixTable, DeviationsAreCutDownwardsToOneDecimal) {
    three_isotopes();
    data(rs.Sig2, 2, {70.6, 129.4, 100, 130, 99.9});
    cps_statistics(2, 100, 10, 2, 5);
    view(form.optCpsSD);
    EXPECT_EQ(grid.cell(0, 0).text, "S. D.");
    EXPECT_EQ(grid.cell(2, 0).text, "Sr88");
    EXPECT_EQ(texts(2), "-3 2.9 0 3 -0.1");
    EXPECT_EQ(form.Frame2.text, "CPS  (raw data)");

    data(rs.Ratio, 2, {0.706, 1.25, 1, 1.5, 0.75});
    ratio_statistics(2, 1, 0.25, 2, 5);
    view(form.optIisSD);
    // (0.706 - 1) / 0.25 = -1.176 s.d.
    EXPECT_EQ(texts(2), "-1.2 1 0 2 -1");
    EXPECT_EQ(grid.cell(0, 0).text, "S. D.");
}

TEST_F(MatrixTable, RowWithoutBlankShowsDashesAndEmptyCells) {
    three_isotopes();
    rs.BlkMean(2) = Mark::empty;
    rs.CpsSD(2) = Mark::dashes;
    FillTable(context);
    EXPECT_EQ(grid.cell(2, 0).text, "Sr88   /  ---");
    EXPECT_EQ(texts(2), "    ");  // five empty cells
    view(form.optCpsSD);
    EXPECT_EQ(texts(2), "--- --- --- --- ---");
}

TEST_F(MatrixTable, RowsOfTheStandardsInUseArePaleGreenWithTheirHeaders) {
    three_isotopes();
    EXPECT_EQ(picture(), "ggggg ..... .....");
    EXPECT_EQ(grid.cell(1, 0).back, rgb(192, 255, 192));
    EXPECT_EQ(grid.cell(2, 0).back, palette(15));
    rs.setISnum = 2;
    rs.IS2col = 3;
    load_matrix(context);
    EXPECT_EQ(picture(), "ggggg ..... ggggg");
    rs.setISnum = 2;
    rs.IS3col = 2;
    load_matrix(context);
    EXPECT_EQ(picture(), "ggggg ..... ggggg");
    rs.setISnum = 3;
    load_matrix(context);
    EXPECT_EQ(picture(), "ggggg ggggg ggggg");
}

TEST_F(MatrixTable, OpeningWritesHeaderLabelsAndTheLimit) {
    rs.setSD_IS = 2.5;
    rs.DataFileName = "Temora-5.csv";
    form.txtSD.locked = true;
    form.lblFirstSec.text = "1.07";
    three_isotopes();
    EXPECT_EQ(form.lblFile.text, "Temora-5.csv");
    EXPECT_EQ(form.lblSlices.text, "6");
    EXPECT_EQ(form.lblSelected.text, "5");
    EXPECT_EQ(form.lblIsotopes.text, "3");
    EXPECT_EQ(form.txtSD.text, "2.5");
    EXPECT_FALSE(form.txtSD.locked);
    EXPECT_EQ(form.lblFirstSec.text, "First half / Second half:");
    EXPECT_EQ(form.cmdNext.text, "Next Step");
    EXPECT_FALSE(form.cmdReset.enabled);
}

TEST_F(MatrixTable, StoredViewIsTakenAtOpening) {
    rs.setDataTable = 1;
    three_isotopes();
    EXPECT_TRUE(form.optCpsSD.on());
    rs.setDataTable = 2;
    load_matrix(context);
    EXPECT_TRUE(form.optIIS.on());
    EXPECT_EQ(rs.TableView, "iis");
    rs.setDataTable = 3;
    load_matrix(context);
    EXPECT_TRUE(form.optIisSD.on());
    EXPECT_FALSE(form.optIIS.on());
    rs.setDataTable = 0;
    load_matrix(context);
    EXPECT_TRUE(form.optCPS.on());
}

TEST_F(MatrixTable, MakingAFileShowsCpsAloneWhateverViewIsStored) {
    rs.setDataTable = 3;
    rs.ModeCreateSTM = 1;
    rs.IS1col = 1;
    rs.setISnum = 1;
    isotope("Si29", {100, 110, 90, 100, 100});
    load_matrix(context);
    EXPECT_TRUE(form.optCPS.on());
    EXPECT_TRUE(form.optCPS.enabled);
    EXPECT_FALSE(form.optCpsSD.enabled);
    EXPECT_FALSE(form.optIIS.enabled);
    EXPECT_FALSE(form.optIisSD.enabled);
    EXPECT_EQ(form.cmdNext.text, "Save STM file");
    EXPECT_EQ(picture(), ".....");  // no standard is marked
    rs.ModeCreateSTM = 0;
    rs.ModeCreateBLK = 1;
    load_matrix(context);
    EXPECT_EQ(form.cmdNext.text, "Save BLK file");
}

TEST_F(MatrixTable, BlankFileWithoutBlankHasEmptyCellsWhoseDataStillCount) {
    rs.ModeCreateBLK = 1;
    isotope("Si29", {100, 110, 90, 100, 100});
    rs.BlkMean(1) = Mark::empty;
    load_matrix(context);
    EXPECT_EQ(grid.cell(1, 0).text, "Si29   /  ---");
    EXPECT_EQ(texts(1), "    ");
    ReadRejections(context);
    EXPECT_EQ(rs.nData(1), 5);
}

TEST_F(MatrixTable, UpTo20SlicesOfferFiveLevels) {
    rs.RejProcName = "10";
    long_selection(20);
    load_matrix(context);
    EXPECT_EQ(form.comboProc.items, (Items{" 1", "2.5", " 5", "7.5", "10"}));
    EXPECT_EQ(form.comboProc.text, "10");
    EXPECT_TRUE(form.comboProc.enabled);
}

TEST_F(MatrixTable, From21To25SlicesLevelsAbove5BecomeFiveAndOneStays) {
    rs.RejProcName = "7.5";
    long_selection(21);
    load_matrix(context);
    EXPECT_EQ(form.comboProc.items, (Items{" 1", "2.5", " 5"}));
    EXPECT_EQ(rs.RejProcName, " 5");
    rs.RejProcName = "10";
    rs.SelN = 25;
    load_matrix(context);
    EXPECT_EQ(form.comboProc.text, " 5");
    rs.RejProcName = " 1";
    load_matrix(context);
    EXPECT_EQ(rs.RejProcName, " 1");
    EXPECT_EQ(form.comboProc.value, 0);
}

TEST_F(MatrixTable, From26To100SlicesOneBecomesTwoAndAHalf) {
    rs.RejProcName = " 1";
    long_selection(26);
    load_matrix(context);
    EXPECT_EQ(form.comboProc.items, (Items{"2.5", " 5"}));
    EXPECT_EQ(rs.RejProcName, "2.5");
    rs.RejProcName = "10";
    rs.SelN = 100;
    load_matrix(context);
    EXPECT_EQ(form.comboProc.text, " 5");
    EXPECT_TRUE(form.chkGrubbs.enabled);
}

TEST_F(MatrixTable, Above100SlicesGrubbsIsOffAndTheOtherTestsWork) {
    rs.RejProcName = "7.5";
    rs.setShowGrubbs = 1;
    rs.setRejGrubbs = 1;
    long_selection(101);
    load_matrix(context);
    EXPECT_EQ(form.comboProc.items, Items{});
    EXPECT_EQ(form.comboProc.text, "7.5");
    EXPECT_FALSE(form.comboProc.enabled);
    EXPECT_FALSE(form.chkGrubbs.enabled);
    EXPECT_FALSE(form.chkShowGrubbs.enabled);
    EXPECT_FALSE(form.chkGrubbs.on());
    EXPECT_TRUE(form.chkMinMax.enabled);
    form.txtSD.text = "3";
    deviation();
    EXPECT_EQ(row(2)[50], 'x');
    deviation();
    min_max();
    EXPECT_EQ(row(2)[50], 'x');
    EXPECT_FALSE(form.chkGrubbs.enabled);
    min_max();
    EXPECT_FALSE(form.chkShowGrubbs.enabled);
    EXPECT_TRUE(form.chkShowMinMax.enabled);
    EXPECT_FALSE(form.comboProc.enabled);
    reset_rejection(context);
    EXPECT_FALSE(form.chkGrubbs.enabled);
}

TEST_F(MatrixTable, Below4SlicesNoTestCanBeChosenAndNoCellClicked) {
    rs.setRejMinMax = 1;
    rs.ModeData = 1;
    rs.setISnum = 1;
    rs.IS1col = 1;
    isotope("Si29", {100, 110, 90});
    isotope("Sr88", {1, 2, 3});
    load_matrix(context);
    for (const CheckBox* box : {&form.chkShowMinMax, &form.chkShowStDev, &form.chkShowGrubbs, &form.chkMinMax,
                                &form.chkStDev, &form.chkGrubbs}) {
        EXPECT_FALSE(box->enabled) << box->name;
        EXPECT_FALSE(box->on()) << box->name;
    }
    click_matrix(context, 2, 1);
    click_matrix(context, 0, 1);
    click_matrix(context, 2, 0);
    EXPECT_EQ(picture(), "ggg ...");
    EXPECT_FALSE(form.cmdReset.enabled);
    EXPECT_EQ(form.pict1.canvas.labels().size(), 0U);
}

TEST_F(MatrixTable, FourSlicesAreEnoughForTheStoredTestsAndForAClick) {
    rs.setRejMinMax = 1;
    rs.ModeData = 1;
    rs.setISnum = 1;
    rs.IS1col = 1;
    isotope("Si29", {100, 110, 90, 100});
    isotope("Sr88", {1, 3, 4, 2});
    load_matrix(context);
    EXPECT_TRUE(form.chkMinMax.on());
    EXPECT_TRUE(form.chkMinMax.enabled && form.chkGrubbs.enabled && form.cmdReset.enabled);
    EXPECT_EQ(picture(), "gxxg xxx.");
    click_matrix(context, 2, 4);
    EXPECT_EQ(picture(), "gxxg xxxM");
}

TEST_F(MatrixTable, StoredTestsAreSwitchedOnInTheirOrder) {
    rs.setShowMinMax = 1;
    rs.setRejMinMax = 1;
    rs.setShowSD = 1;
    rs.setRejSD = 1;
    rs.setSD_IS = 1;
    three_isotopes();
    EXPECT_TRUE(form.chkShowMinMax.on());
    EXPECT_TRUE(form.chkMinMax.on());
    EXPECT_TRUE(form.chkShowStDev.on());
    EXPECT_TRUE(form.chkStDev.on());
    EXPECT_FALSE(form.chkGrubbs.on());
    EXPECT_TRUE(form.cmdReset.enabled);
    EXPECT_TRUE(form.txtSD.locked);
    // Si29, s.d. 7.07: 110 and 90 are rejected and take their slices along. Sr88 (s.d. 15.8): the ends are rejected.
    // La139 (s.d. 1.414): 5 is its minimum, 9 its maximum.
    EXPECT_EQ(picture(), "gxxgg xxx.x .xx.x");
}

TEST_F(MatrixTable, ChangeOfBasisTakesTheMarksOffAndKeepsRejections) {
    three_isotopes();
    click_matrix(context, 3, 1);
    show_min_max();
    EXPECT_EQ(row(2), "c...m");
    view(form.optCpsSD);  // the same basis
    EXPECT_TRUE(form.chkShowMinMax.on());
    EXPECT_EQ(row(2), "c...m");
    view(form.optIIS);
    EXPECT_FALSE(form.chkShowMinMax.on());
    EXPECT_FALSE(form.pictMinMax.visible);
    EXPECT_TRUE(form.chkShowGrubbs.enabled);
    EXPECT_EQ(picture(), "ggggg ..... M....");
}

TEST_F(MatrixTable, ReadRejectionsTakesWhiteTextAsRejectedAndBlackAsByHand) {
    three_isotopes();
    min_max();
    EXPECT_EQ(picture(), "gxxgg xxx.x .xx.x");
    rs.RejManual = 1;
    rs.nRejected = 99;
    rs.OutText = "old";
    rs.Rej(2, 5) = 1;  // of an earlier visit
    ReadRejections(context);
    EXPECT_EQ(rejected(1), "01100");
    EXPECT_EQ(rejected(2), "11101");
    EXPECT_EQ(rejected(3), "01101");
    EXPECT_EQ(rs.nData(1), 3);
    EXPECT_EQ(rs.nData(2), 1);
    EXPECT_EQ(rs.nData(3), 2);
    EXPECT_EQ(rs.nRejected, 9);
    EXPECT_EQ(rs.RejManual, 0);
    EXPECT_EQ(rs.OutText, "Sr88,    ");
    click_matrix(context, 3, 4);
    ReadRejections(context);
    EXPECT_EQ(rs.RejManual, 1);
    EXPECT_EQ(rs.OutText, "Sr88,    La139,    ");
}

TEST_F(MatrixTable, TwoDataAreEnough) {
    three_isotopes();
    for (const int col : {1, 2, 3}) click_matrix(context, 3, col);
    ReadRejections(context);
    EXPECT_EQ(rs.nData(3), 2);
    EXPECT_EQ(rs.OutText, "");
}

TEST_F(MatrixTable, RejectionByHandIsReadBackFromTheColoursAlone) {
    three_isotopes();
    grid.cell(3, 2).fore = palette(15);
    ReadRejections(context);
    EXPECT_EQ(rejected(3), "01000");
    EXPECT_EQ(rs.RejManual, 0);
    grid.cell(3, 2).back = palette(0);
    ReadRejections(context);
    EXPECT_EQ(rs.RejManual, 1);
}

TEST_F(MatrixTable, ASelectionBeyondTheTablesIsAFault) {
    three_isotopes();
    rs.SelLow = MaxSlices - 3;
    EXPECT_THROW(FillTable(context), Fault);
    form.txtSD.text = "3";
    EXPECT_THROW(deviation(), Fault);
    EXPECT_THROW(show_deviation(), Fault);
    rs.SelLow = 2;
    rs.SelN = 6;
    EXPECT_THROW(ReadRejections(context), Fault);
}

}  // namespace
}  // namespace kolvar::test
