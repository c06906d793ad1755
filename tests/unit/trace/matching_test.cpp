#include "trace/matching.hpp"

#include "interval_case.hpp"

namespace kolvar::test {
namespace {

class Matching : public IntervalCase {
public:
    Forms forms;
    Shell shell;
    Context context{rs, forms, os, shell};

    // Heads without data; three standards, of which standard 1 is "Si29".
    void heads(std::initializer_list<const char*> names) {
        for (const char* name : names) column(name, {0});
        rs.IS1name = "Si29", rs.IS1col = 1, rs.IS1conc = 1000, rs.IS1err = 10;
        rs.IS2name = "Y89", rs.IS2col = 2, rs.IS2conc = 2000, rs.IS2err = 20;
        rs.IS3name = "U238", rs.IS3col = 3, rs.IS3conc = 3000, rs.IS3err = 30;
    }
    void composition(const char* name, double ppm, double error = 1) {
        const int row = ++rs.nSTC;
        rs.STCiso(row) = name, rs.STCcc(row) = ppm, rs.STCerr(row) = error;
    }
    void standard(const char* name, double cps, double error = 1) {
        const int row = ++rs.nSTM;
        rs.STMiso(row) = name, rs.STMcps(row) = cps, rs.STMsd(row) = error;
    }
    void file_blank(const char* name, double cps, double error = 1) {
        const int row = ++rs.nBLK;
        rs.BLKiso(row) = name, rs.BLKmean(row) = cps, rs.BLKsd(row) = error;
    }
    // Rows for a column in all three files.
    void known(const char* name) { composition(name, 5), standard(name, 6), file_blank(name, 7); }
    std::string windows() const {
        std::string names;
        for (const Form* form : shell.shown()) names += form->name + " ";
        return names;
    }
};

TEST_F(Matching, StandardsTakeOverAtTheirMassNotAboveIt) {
    heads({"Y89", "Zr90", "Hg199", "Hg200"});
    rs.setPeriod = 0, rs.setISnum = 3, rs.setMas2 = 90, rs.setMass3 = 200;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 1);
    EXPECT_EQ(rs.IsoISidx(2), 2);
    EXPECT_EQ(rs.IsoISidx(3), 2);
    EXPECT_EQ(rs.IsoISidx(4), 3);
    EXPECT_EQ(rs.IsoISconc(4), 3000);
    EXPECT_EQ(rs.IsoISerr(4), 30);
    EXPECT_EQ(rs.IsoISconc(1), 1000);
    EXPECT_EQ(rs.IsoISerr(2), 20);
}

TEST_F(Matching, TheThirdStandardWinsWhateverTheOrderOfTheBoundaries) {
    heads({"Si29", "Y89", "U238"});
    rs.setPeriod = 0, rs.setISnum = 3, rs.setMas2 = 200, rs.setMass3 = 80;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 1);
    EXPECT_EQ(rs.IsoISidx(2), 3);
    EXPECT_EQ(rs.IsoISidx(3), 3);
}

TEST_F(Matching, FewerStandardsLeaveTheOthersOut) {
    heads({"Si29", "Y89", "U238"});
    rs.setPeriod = 0, rs.setISnum = 2, rs.setMas2 = 80, rs.setMass3 = 200;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(3), 2);
    rs.setISnum = 1;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(3), 1);
}

TEST_F(Matching, OnlyThreeStandardsBringInTheThird) {
    heads({"Si29", "Y89", "U238"});
    rs.setPeriod = 0, rs.setISnum = 4, rs.setMas2 = 80, rs.setMass3 = 200;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 1);
    EXPECT_EQ(rs.IsoISidx(2), 2);
    EXPECT_EQ(rs.IsoISidx(3), 2);
}

TEST_F(Matching, TheMassIsAllDigitsOfTheHeadJoined) {
    heads({"Hg198(LR)", "ThO248", "Ar40Ar40", "TIC"});
    rs.setPeriod = 0, rs.setISnum = 2, rs.setMas2 = 198;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 2);
    EXPECT_EQ(rs.IsoISidx(2), 2);
    EXPECT_EQ(rs.IsoISidx(3), 2);  // 4040
    EXPECT_EQ(rs.IsoISidx(4), 1);  // no digits: 0
}

TEST_F(Matching, BoundariesThatAreTextsCountByTheirNumber) {
    heads({"Si29", "Y89"});
    rs.setPeriod = "0", rs.setISnum = "2", rs.setMas2 = "89 amu";
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 1);
    EXPECT_EQ(rs.IsoISidx(2), 2);
}

TEST_F(Matching, ByThePeriodicTableALaterStandardInTheSameRowOverwritesAndAColumnWithoutRowKeepsItsOwn) {
    heads({"Si29", "Y89", "U238", "La139"});
    rs.IsoElem(1) = "Si", rs.IsoElem(2) = "Y", rs.IsoElem(3) = "U", rs.IsoElem(4) = "La";
    rs.IS2name = "Si29";  // both names are in one row
    rs.setPeriod = 1;
    rs.PeriodSym(1) = "Y", rs.PeriodIS(1) = "Si29";
    rs.PeriodSym(95) = "U", rs.PeriodIS(95) = "Si29";
    rs.PeriodSym(96) = "U", rs.PeriodIS(96) = "U238";
    rs.PeriodSym(97) = "Si", rs.PeriodIS(97) = "U238";  // behind the last row in use
    rs.PeriodSym(2) = "La", rs.PeriodIS(2) = "Ce140";   // no standard of that name
    rs.IsoISidx(1) = 7, rs.IsoISconc(1) = 70, rs.IsoISidx(4) = 8;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 7);
    EXPECT_EQ(rs.IsoISconc(1), 70);
    EXPECT_EQ(rs.IsoISidx(2), 2);
    EXPECT_EQ(rs.IsoISconc(2), 2000);
    EXPECT_EQ(rs.IsoISidx(3), 3);
    EXPECT_EQ(rs.IsoISidx(4), 8);
}

TEST_F(Matching, AnyOtherRuleAssignsNothing) {
    heads({"Si29"});
    rs.IsoISidx(1) = 5;
    rs.setPeriod = 2;
    AssignInternalStandards(rs);
    EXPECT_EQ(rs.IsoISidx(1), 5);
}

TEST_F(Matching, TheLastEqualRowWinsAndCompositionAndStandardTakeTheCanonicalNameToo) {
    heads({"29Si"});
    rs.IsoCanon(1) = "Si29";
    rs.IS1name = "29Si";
    composition("Si29", 1, 11), composition("29Si", 2, 12), composition("Si29", 3, 13), composition("Si28", 9, 19);
    standard("29Si", 4, 14), standard("Si29", 5, 15);
    rs.BlankFromData = 1;
    MatchReferences(context);
    EXPECT_EQ(rs.StdConc(1), Cell(3.0));
    EXPECT_EQ(rs.StdConcErr(1), Cell(13.0));
    EXPECT_EQ(rs.StdCps(1), Cell(5.0));
    EXPECT_EQ(rs.StdCpsErr(1), Cell(15.0));
}

TEST_F(Matching, AColumnWithoutARowLosesTheValuesOfTheFormerFiles) {
    heads({"Si29", "Y89"});
    known("Si29");
    rs.BlankFromData = 1;
    rs.StdConc(2) = 11.0, rs.StdConcErr(2) = 12.0, rs.StdCps(2) = 13.0, rs.StdCpsErr(2) = 14.0;
    MatchReferences(context);
    EXPECT_EQ(rs.StdConc(2), Cell(Mark::empty));
    EXPECT_EQ(rs.StdConcErr(2), Cell(Mark::empty));
    EXPECT_EQ(rs.StdCps(2), Cell(Mark::empty));
    EXPECT_EQ(rs.StdCpsErr(2), Cell(Mark::empty));
    EXPECT_EQ(rs.IsoOmit(2), 1);
}

TEST_F(Matching, TheBlankFileTakesTheHeadAsReadAndAMissingRowLeavesTheFormerDeviation) {
    heads({"Si29", "Y89"});
    known("Si29"), composition("Y89", 1), standard("Y89", 1);
    rs.IsoName(2) = "89Y", rs.IsoCanon(2) = "Y89";
    file_blank("Y89", 3, 4);
    rs.BlkMean(2) = 8.0, rs.BlkSD(2) = 9.0;
    MatchReferences(context);
    EXPECT_EQ(rs.BlkMean(2), Cell(Mark::empty));
    EXPECT_EQ(rs.BlkSD(2), Cell(9.0));
    EXPECT_EQ(rs.BlkMean(1), Cell(7.0));
    EXPECT_EQ(rs.BlkSD(1), Cell(1.0));
    EXPECT_EQ(rs.MissBLK, "89Y,  ");
    EXPECT_EQ(rs.IsoOmit(2), 1);
}

TEST_F(Matching, TheBlankFileIsBoundEvenWhenTheBlankComesFromTheData) {
    heads({"Si29", "Y89"});
    known("Si29"), composition("Y89", 1), standard("Y89", 1);
    rs.BlkMean(1) = 100.0, rs.BlkMean(2) = 100.0;
    rs.BlankFromData = 1;
    MatchReferences(context);
    EXPECT_EQ(rs.BlkMean(1), Cell(7.0));
    EXPECT_EQ(rs.BlkMean(2), Cell(Mark::empty));
    EXPECT_EQ(rs.MissBLK, "");
    EXPECT_EQ(rs.IsoOmit(2), 0);
}

TEST_F(Matching, ACompleteMatchOpensTheTimeScreen) {
    heads({"Si29", "Y89"});
    known("Si29"), known("Y89");
    rs.MissSTC = "old", rs.MissSTM = "old", rs.MissBLK = "old", rs.MissDWE = "old";
    rs.IsoOmit(1) = 1;
    rs.ModeData = 1;
    MatchReferences(context);
    EXPECT_EQ(windows(), "frm2_Time ");
    EXPECT_EQ(rs.MissSTC + rs.MissSTM + rs.MissBLK + rs.MissDWE, "");
    EXPECT_EQ(rs.IsoOmit(1), 0);
    EXPECT_FALSE(rs.RefsMatched);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(Matching, APlainColumnThatIsMissingStandsInSeveralLists) {
    heads({"Si29", "Y89", "La139"});
    known("Si29");
    rs.ModeData = 1;
    rs.DwellFromFile = 1;
    rs.Dwell(1) = 0.01, rs.Dwell(2) = 0.01, rs.Dwell(3) = 0.01;
    MatchReferences(context);
    EXPECT_EQ(rs.MissSTC, "Y89,  La139,  ");
    EXPECT_EQ(rs.MissSTM, "Y89,  La139,  ");
    EXPECT_EQ(rs.MissBLK, "Y89,  La139,  ");
    EXPECT_EQ(rs.IsoOmit(2), 1);
    EXPECT_EQ(windows(), "frm_MissingIso ");
    EXPECT_FALSE(rs.RefsMatched);
}

TEST_F(Matching, OnlyTheFirstInternalStandardIsCheckedAndTheBoxNamesIt) {
    heads({"Si29", "Y89"});
    known("Y89");
    rs.MissSTM = "old";
    rs.ModeData = 1;
    MatchReferences(context);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text,
              "The selected internal standard (Si29) is not present in the Standard Composition File.");
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(os.boxes[0].kind, "warning");
    EXPECT_TRUE(rs.RefsMatched);
    EXPECT_EQ(windows(), "");
    EXPECT_EQ(rs.MissSTM, "");
}

TEST_F(Matching, TheSecondStandardSimplyBecomesAnOmittedColumn) {
    heads({"Si29", "Y89"});
    known("Si29");
    rs.setISnum = 2;
    rs.ModeData = 1;
    MatchReferences(context);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.IsoOmit(2), 1);
}

TEST_F(Matching, TheBoxesOfTheStandardMeasurementAndOfTheBlankNameTheirFiles) {
    heads({"Si29", "Y89"});
    composition("Si29", 5);
    MatchReferences(context);
    ASSERT_EQ(os.boxes.size(), 1U);
    EXPECT_EQ(os.boxes[0].text,
              "The selected internal standard (Si29) is not present in the Standard Measurement File.");
    rs.RefsMatched = false;
    standard("Si29", 6);
    MatchReferences(context);
    ASSERT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(os.boxes[1].text, "The selected internal standard (Si29) is not present in the Blank File.");
    rs.RefsMatched = false;
    rs.BlankFromData = 1;
    MatchReferences(context);
    EXPECT_EQ(os.boxes.size(), 2U);
    EXPECT_EQ(rs.MissSTC, "Y89,  ");
}

TEST_F(Matching, ADwellTimeThatIsMissingAloneOmitsNothingAndOpensItsWindowFirst) {
    heads({"Si29", "Y89", "La139"});
    known("Si29"), known("Y89");
    rs.ModeData = 1;
    rs.DwellFromFile = 1;
    rs.Dwell(1) = 0.01, rs.Dwell(2) = Mark::empty, rs.Dwell(3) = 0.01;
    MatchReferences(context);
    EXPECT_EQ(rs.MissDWE, "Y89,  ");
    EXPECT_EQ(rs.IsoOmit(2), 0);
    EXPECT_EQ(windows(), "frm_Dwell ");
    EXPECT_FALSE(rs.RefsMatched);

    // The user goes on: the lists stand as they are, nothing is matched again.
    rs.RefsMatched = true;
    rs.StdConc(1) = 99.0;
    MatchReferences(context);
    EXPECT_EQ(rs.StdConc(1), Cell(99.0));
    EXPECT_EQ(rs.MissSTC, "La139,  ");
    EXPECT_EQ(windows(), "frm_Dwell frm_MissingIso ");
    EXPECT_FALSE(rs.RefsMatched);
}

TEST_F(Matching, DwellTimesMatterOnlyForADataFileWithADwellFile) {
    heads({"Si29"});
    known("Si29");
    rs.Dwell(1) = Mark::empty;
    rs.ModeCreateSTM = 1;
    rs.DwellFromFile = 1;
    MatchReferences(context);
    EXPECT_EQ(rs.MissDWE, "Si29,  ");
    EXPECT_EQ(windows(), "frm2_Time ");
    rs.DwellFromFile = 0;
    MatchReferences(context);
    EXPECT_EQ(rs.MissDWE, "");
}

TEST_F(Matching, AGapOfTheBlankFileDoesNotCountWhenTheBlankComesFromTheData) {
    heads({"Si29", "Y89"});
    known("Si29"), composition("Y89", 1), standard("Y89", 1);
    rs.ModeData = 1;
    rs.RefsMatched = true;
    rs.MissBLK = "Y89,  ";  // left from a former match
    rs.BlankFromData = 1;
    MatchReferences(context);
    EXPECT_EQ(windows(), "");
    rs.RefsMatched = true;
    rs.BlankFromData = 0;
    MatchReferences(context);
    EXPECT_EQ(windows(), "frm_MissingIso ");
}

TEST_F(Matching, InTheCreateModesAGapOpensNothing) {
    heads({"Si29", "Y89"});
    known("Si29");
    rs.ModeCreateBLK = 1;
    MatchReferences(context);
    EXPECT_EQ(rs.MissSTC, "Y89,  ");
    EXPECT_EQ(windows(), "");
}

TEST_F(Matching, WithoutAChosenStandardNoColumnIsFatal) {
    heads({"Si29"});
    rs.IS1col.clear();
    MatchReferences(context);
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs.MissSTC, "Si29,  ");
}

}  // namespace
}  // namespace kolvar::test
