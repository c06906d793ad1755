// What follows a load: names, conversion to cps, internal standards, intervals.
#include "import_bench.hpp"

namespace kolvar::test {
namespace {

class AfterLoad : public ImportTest {
protected:
    void mark_intervals() {
        rs.BlkLow = 1;
        rs.BlkUpp = 2;
        rs.BlkN = 2;
        rs.SelLow = 2;
        rs.SelUpp = 3;
        rs.SelN = 2;
        rs.SelNGood = 2;
        rs.SelLowX = rs.SelUppX = rs.BlkLowX = rs.BlkUppX = 100;
        rs.FormerLow = 1;
        rs.FormerUpp = 3;
        rs.FormerLowX = rs.FormerUppX = 50;
    }
    void expect_intervals_dropped() {
        EXPECT_FALSE(rs.SelLow.is_set());
        EXPECT_FALSE(rs.SelUpp.is_set());
        EXPECT_FALSE(rs.BlkLow.is_set());
        EXPECT_FALSE(rs.BlkUpp.is_set());
        EXPECT_FALSE(rs.SelN.is_set());
        EXPECT_EQ(rs.SelNGood, 0);
        EXPECT_EQ(rs.SelLowX, 0);
        EXPECT_EQ(rs.SelUppX, 0);
        EXPECT_EQ(rs.BlkLowX, 0);
        EXPECT_EQ(rs.BlkUppX, 0);
    }
    void dwell_entry(const std::string& isotope, double ms) {
        rs.DWEiso(++rs.nDWE) = isotope;
        rs.DWEms(rs.nDWE) = ms;
    }
    const std::string three_slices = "Li7,Si29\n1,10\n3,20\n5,30\n";
    const std::string four_slices = three_slices + "7,40\n";
};

TEST_F(AfterLoad, NamesAreSplitIntoLettersAndDigits) {
    load("a.csv", "198Hg,Pb206,29Si16O\n1,2,3\n");
    EXPECT_EQ(rs.IsoElem(1), "Hg");
    EXPECT_EQ(rs.IsoCanon(1), "Hg198");
    EXPECT_EQ(rs.IsoCanon(2), "Pb206");
    EXPECT_EQ(rs.IsoElem(3), "SiO");
    EXPECT_EQ(rs.IsoCanon(3), "SiO2916");
}

TEST_F(AfterLoad, HyphensBlanksAndBracketsStayInTheName) {
    load("a.csv", "Hg-198,U238(LR), Pb 206\n1,2,3\n");
    EXPECT_EQ(rs.IsoElem(1), "Hg-");
    EXPECT_EQ(rs.IsoCanon(1), "Hg-198");
    EXPECT_EQ(rs.IsoElem(2), "U(LR)");
    EXPECT_EQ(rs.IsoCanon(2), "U(LR)238");
    EXPECT_EQ(rs.IsoElem(3), " Pb ");
    EXPECT_EQ(rs.IsoCanon(3), " Pb 206");
}

TEST_F(AfterLoad, CountsAreDividedByTheDwellSeconds) {
    rs.setCPS_IS = 0;
    rs.Dwell(1) = 0.02;
    rs.Dwell(2) = 0.1;
    load("a.csv", three_slices);
    EXPECT_EQ(slice(1), (Cells{1 / 0.02, 10 / 0.1}));
    EXPECT_EQ(slice(3), (Cells{5 / 0.02, 30 / 0.1}));
}

TEST_F(AfterLoad, CpsAreNotDividedWhateverTheDwellSettingsSay) {
    rs.Dwell(1) = 0.02;
    rs.DwellFromFile = 1;
    dwell_entry("Li7", 10);
    load("a.csv", three_slices);
    EXPECT_EQ(slice(1), (Cells{1, 10}));
}

TEST_F(AfterLoad, AMissingDwellTimeDividesByMillisecondsAndComesOutAThousandTimesTooSmall) {
    rs.setCPS_IS = 0;
    rs.DwellFromFile = 1;
    rs.setIS_Dwell = 20;
    dwell_entry("Li7", 20);
    load("a.csv", three_slices);
    EXPECT_EQ(slice(3), (Cells{5 / 0.02, 30.0 / 20}));
}

TEST_F(AfterLoad, TheUniformDwellTimeMayBeTheTextOfANumber) {
    rs.setCPS_IS = 0;
    rs.setIS_Dwell = "25 ms";
    load("a.csv", three_slices);
    EXPECT_EQ(slice(2), (Cells{3.0 / 25, 20.0 / 25}));
}

TEST_F(AfterLoad, TheLastEqualDwellEntryAndTheLastEqualColumnCount) {
    rs.DwellFromFile = 1;
    dwell_entry("Li7", 20);
    dwell_entry("Li7", 50);
    rs.IS1name = "Li7";
    rs.IS2name = "Si29";
    rs.IS3name = "Ca43";
    load("a.csv", "Li7,Si29,Li7\n1,2,3\n");
    EXPECT_EQ(rs.Dwell(1), Cell(0.05));
    EXPECT_EQ(rs.Dwell(3), Cell(0.05));
    EXPECT_EQ(rs.IS1col, Limit(3));
    EXPECT_EQ(rs.IS2col, Limit(2));
    EXPECT_EQ(rs.IS3col, Limit(0));
}

TEST_F(AfterLoad, DwellTimesAreFoundByTheNameAsItStandsAlone) {
    rs.DwellFromFile = 1;
    dwell_entry("Hg198", 20);
    load("a.csv", "198Hg,Hg198\n1,2\n");
    EXPECT_EQ(rs.Dwell(1), Cell(Mark::empty));
    EXPECT_EQ(rs.Dwell(2), Cell(0.02));
}

TEST_F(AfterLoad, MissingDwellTimesOfCountsAreTold) {
    rs.setCPS_IS = 0;
    rs.DwellFromFile = 1;
    rs.setIS_Dwell = 20;
    dwell_entry("Si29", 20);
    load("a.csv", "Li7,Si29,U238\n1,2,3\n");
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(
        os.boxes[0].text,
        "Isotopes of the Data File are not present in the Dwell Time File! \n\nLi7,  U238,  \n\nThe calculation of "
        "cps values and the concentrations from counts are NOT CORRECT!\n\nLoad the proper DWELL TIME FILE in the "
        "next window.");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(rs.MissDWE, "Li7,  U238,  ");
}

TEST_F(AfterLoad, MissingDwellTimesAreToldForCountsWithADwellTimeFileOnly) {
    rs.DwellFromFile = 1;
    load("a.csv", "Li7\n1\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.MissDWE, "");
    rs.DwellFromFile = 0;
    rs.setCPS_IS = 0;
    rs.setIS_Dwell = 20;
    load("b.csv", "Li7\n1\n2\n");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.MissDWE, "");
}

TEST_F(AfterLoad, FormerListsOfMissingIsotopesAreEmptiedButTheBlankOne) {
    rs.MissDWE = rs.MissSTC = rs.MissSTM = rs.MissBLK = "Pb206,  ";
    load("a.csv", three_slices);
    EXPECT_EQ(rs.MissDWE, "");
    EXPECT_EQ(rs.MissSTC, "");
    EXPECT_EQ(rs.MissSTM, "");
    EXPECT_EQ(rs.MissBLK, "Pb206,  ");
}

TEST_F(AfterLoad, AUniformDwellTimeOfZeroIsAFailedLoadOfCounts) {
    rs.setCPS_IS = 0;
    rs.setIS_Dwell = 0;
    rs.Dwell(1) = 0.5;
    rs.IS1name = "Li7";
    load("a.csv", three_slices);
    expect_load_message(folder.path("a.csv"));
    // The first slice was converted as far as there is a time; all that follows was not reached.
    EXPECT_EQ(slice(1), (Cells{2, 10}));
    EXPECT_EQ(slice(2), (Cells{3, 20}));
    EXPECT_FALSE(rs.IS1col.is_set());
}

TEST_F(AfterLoad, TheConversionHappensOnceWithTheDwellTimesOfThatMoment) {
    rs.setCPS_IS = 0;
    rs.Dwell(1) = 0.01;
    rs.Dwell(2) = 0.01;
    load("a.csv", three_slices);
    rs.Dwell(1) = 0.02;
    rs.setCPS_IS = 1;
    EXPECT_EQ(slice(1), (Cells{1 / 0.01, 10 / 0.01}));
    rs.setCPS_IS = 0;
    load("a.csv", three_slices);
    EXPECT_EQ(slice(1), (Cells{1 / 0.02, 10 / 0.01}));
}

TEST_F(AfterLoad, TheFirstWindowOpensOnlyWhenTheProgramShowsWindowsAlready) {
    load("a.csv", three_slices);
    EXPECT_EQ(shell.active(), nullptr);
    shell.open(forms.frm2_Time);
    load("b.csv", four_slices);
    EXPECT_EQ(shell.active(), &forms.frm1_Settings);
}

TEST_F(AfterLoad, OnTheOtherPathsValuesStayAndTheBeamStartIsForgotten) {
    for (const int method : {1, 3}) {
        rs.Method = method;
        rs.BeamStart = 12;
        rs.setCPS_IS = 0;
        rs.IS1name = "Li7";
        rs.PlotOn = 0;
        load("a.csv", three_slices);
        EXPECT_EQ(slice(2), (Cells{3, 20}));
        EXPECT_EQ(rs.BeamStart, 0);
        EXPECT_EQ(rs.PlotOn, 1);
        EXPECT_EQ(rs.IsoCanon(1), "Li7");
        EXPECT_FALSE(rs.IS1col.is_set());
        EXPECT_TRUE(os.boxes.empty());
    }
}

TEST_F(AfterLoad, TheSolutionMethodEndsWithTheNames) {
    rs.Method = 2;
    rs.BeamStart = 12;
    mark_intervals();
    load("a.csv", three_slices);
    EXPECT_EQ(rs.IsoElem(2), "Si");
    EXPECT_EQ(rs.BeamStart, 12);
    EXPECT_EQ(rs.SelLow, Limit(2));
    EXPECT_FALSE(rs.IS1col.is_set());
}

TEST_F(AfterLoad, AFileOfTheSameLengthKeepsTheIntervalsWhateverTheFormerSelectionSettingSays) {
    for (const int former : {0, 1}) {
        rs.setFormer_Sel_IS = former;
        rs.setFormer_Sel = former;
        load("a.csv", three_slices);
        mark_intervals();
        load("b.csv", "Li7,Si29\n10,1\n20,3\n5,5\n");
        EXPECT_EQ(rs.SelLow, Limit(2));
        EXPECT_EQ(rs.SelUpp, Limit(3));
        EXPECT_EQ(rs.FormerLowX, 50);
        // The blank of slices 1 and 2 is that of the new file.
        EXPECT_EQ(rs.BlkMean(1), Cell(15.0));
        EXPECT_EQ(rs.BlkMean(2), Cell(2.0));
        EXPECT_TRUE(os.boxes.empty());
    }
}

TEST_F(AfterLoad, AFileOfTheSameLengthComputesTheBlankAlthoughNoneIsMarked) {
    load("a.csv", three_slices);
    EXPECT_TRUE(os.boxes.empty());
    load("b.csv", three_slices);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text, "The selected blank interval is too short.");
}

TEST_F(AfterLoad, AFileOfAnotherLengthDropsTheIntervalsAndKeepsTheFormerSlices) {
    load("a.csv", three_slices);
    mark_intervals();
    load("b.csv", four_slices);
    expect_intervals_dropped();
    EXPECT_EQ(rs.PrevSlices, 0);
    EXPECT_EQ(rs.FormerLowX, 0);
    EXPECT_EQ(rs.FormerUppX, 0);
    EXPECT_EQ(rs.FormerLow, Limit(1));
    EXPECT_EQ(rs.FormerUpp, Limit(3));
}

TEST_F(AfterLoad, OnTheOtherPathsAFileOfTheSameLengthKeepsIntervalsOnlyWhenTheSettingSaysSo) {
    for (const int method : {1, 3}) {
        rs.Method = method;
        rs.setFormer_Sel = 1;
        load("a.csv", four_slices);
        load("a.csv", three_slices);
        mark_intervals();
        rs.RejectOn = true;
        rs.SelNGood = 1;
        rs.RejFlag(6000) = 3;
        load("b.csv", three_slices);
        EXPECT_EQ(rs.SelLow, Limit(2));
        EXPECT_EQ(rs.SelNGood, 2);
        EXPECT_FALSE(rs.RejectOn);
        EXPECT_EQ(rs.RejFlag(6000), 0);
        EXPECT_EQ(rs.BlkMean(2), Cell(15.0));

        rs.setFormer_Sel = 0;
        load("b.csv", three_slices);
        expect_intervals_dropped();
        // The strip of the former selection stays on these paths, and so does the length of the former file.
        EXPECT_EQ(rs.FormerLowX, 50);
        EXPECT_EQ(rs.PrevSlices, 3);
        os.boxes.clear();
    }
}

TEST_F(AfterLoad, OnTheOtherPathsDroppedIntervalsEmptyThePlotsAndTheTwentyResultsAndHideTheRejection) {
    Frm2UP& form = forms.frm2_UP;
    for (const int method : {1, 3}) {
        rs.Method = method;
        rs.setFormer_Sel = 0;
        for (double* result : {&rs.Mean68, &rs.Mean75, &rs.Mean82, &rs.Mean382, &rs.Mean76, &rs.Med68, &rs.Med75,
                               &rs.Med82,  &rs.Med382, &rs.Med76,  &rs.SD68,    &rs.SD75,   &rs.SD82,  &rs.SD382,
                               &rs.SD76,   &rs.Err68,  &rs.Err75,  &rs.Err82,   &rs.Err382, &rs.Err76})
            *result = 0.5;
        rs.Mean85 = rs.SD85 = rs.Err85 = rs.Age68 = rs.Slope68 = 0.5;
        rs.Max68 = rs.Min76 = 0.5;
        Control* const controls[] = {&form.cmdReject, &form.chkShowSD, &form.txtSD, &form.lblReject, &form.lblOM};
        for (Control* control : controls) control->visible = true;
        for (Picture* plot : {&form.pict1, &form.pict2}) plot->canvas.Line(0, 0, 10, 10);
        load("a.csv", method == 1 ? three_slices : four_slices);
        for (const double result : {rs.Mean68, rs.Mean75, rs.Mean82, rs.Mean382, rs.Mean76, rs.Med68, rs.Med75,
                                    rs.Med82,  rs.Med382, rs.Med76,  rs.SD68,    rs.SD75,   rs.SD82,  rs.SD382,
                                    rs.SD76,   rs.Err68,  rs.Err75,  rs.Err82,   rs.Err382, rs.Err76})
            EXPECT_EQ(result, 0);
        // The others keep their values until they are calculated anew.
        for (const double result : {rs.Mean85, rs.SD85, rs.Err85, rs.Age68, rs.Slope68}) EXPECT_EQ(result, 0.5);
        EXPECT_EQ(rs.Max68, Value(0.5));
        EXPECT_EQ(rs.Min76, Value(0.5));
        for (const Control* control : controls) EXPECT_FALSE(control->visible) << control->name;
        for (const Picture* plot : {&form.pict1, &form.pict2}) EXPECT_EQ(plot->canvas.commands().size(), 1U);
    }
}

TEST_F(AfterLoad, OnTheOtherPathsAFirstFileHasNoFormerOne) {
    rs.Method = 1;
    rs.setFormer_Sel = 1;
    mark_intervals();
    load("a.xl", "Li7\n\n");
    EXPECT_EQ(rs.nSlices, 0);
    expect_intervals_dropped();
}

TEST_F(AfterLoad, AnyOtherMethodLeavesTheIntervals) {
    rs.Method = 7;
    mark_intervals();
    MaintainIntervals(context);
    EXPECT_EQ(rs.SelLow, Limit(2));
}

}  // namespace
}  // namespace kolvar::test
