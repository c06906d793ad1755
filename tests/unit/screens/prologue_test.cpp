// The places where the walks of the dispatcher's fuzzer begin are the ones that they are named after.
#include "../../../fuzz/prologues.hpp"

#include <memory>

#include "batch/master_file.hpp"
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using fuzz::Place;

class Prologue : public ProgramOnKit {
protected:
    void go_to(Place place) {
        program = std::make_unique<Program>(answers, folder.path());
        program->start(fuzz::method_of(place));
        fuzz::go_to(place, *program, answers);
        for (const auto& box : answers.boxes) {
            if (box.text == "The selected blank interval is too short.") continue;
            EXPECT_EQ(box.text.substr(0, 24), "The blank is very noisy!");
        }
        answers.boxes.clear();
        EXPECT_TRUE(answers.opens.empty() && answers.yes_or_no.empty());
        EXPECT_FALSE(program->busy() || program->ended());
    }
    // Windows from below to the top.
    void expect_windows(const std::vector<std::string>& names) { EXPECT_EQ(shown_windows(), names); }
    void expect_marked() {
        EXPECT_EQ(rs().BlkLow.val(), 5);
        EXPECT_EQ(rs().BlkUpp.val(), 45);
        EXPECT_EQ(rs().SelLow.val(), 60);
        EXPECT_EQ(rs().SelUpp.val(), 100);
    }

    Dice dice{1};
    RandomPlatform answers{dice, folder.path(), {}};
};

TEST_F(Prologue, TheFirstWindowOfEachPath) {
    for (const Place place : {Place::concentrations, Place::ages, Place::solutions}) {
        go_to(place);
        expect_windows({"frm1_Settings"});
        EXPECT_EQ(rs().Method, fuzz::method_of(place));
    }
}

TEST_F(Prologue, MarkedIntervals) {
    go_to(Place::marked_concentrations);
    expect_windows({"frm2_Time"});
    expect_marked();
    go_to(Place::marked_ages);
    expect_windows({"frm2_UP"});
    expect_marked();
    // 91500 is 1062 million years old, and the spots of the kit are made with a few per cent of fractionation.
    EXPECT_NEAR(rs().Mean76, 0.0749, 0.002);
    go_to(Place::marked_solutions);
    expect_windows({"frm2_UP"});
    expect_marked();
    EXPECT_EQ(rs().Method, 3);
    EXPECT_GT(rs().Mean68, 0);
    EXPECT_FALSE(forms().frm2_UP.lbl6_8.text.empty());
}

TEST_F(Prologue, MatrixResultsAndTheirPreviews) {
    go_to(Place::matrix);
    expect_windows({"frm3_Matrix"});
    go_to(Place::output);
    expect_windows({"frm4_Output"});
    go_to(Place::preview);
    expect_windows({"frm4_Output", "frm5_Preview"});
    EXPECT_GT(forms().frm5_Preview.FlexGrid1.rows, 20);
    go_to(Place::averages);
    expect_windows({"frm2_Time", "frm_AverConc"});
    EXPECT_TRUE(forms().frm_AverConc.lbl(0).visible);
}

TEST_F(Prologue, DefaultsAndRefinement) {
    go_to(Place::defaults);
    expect_windows({"frm2_UP", "frm_SetUP"});
    expect_marked();
    go_to(Place::flex_defaults);
    expect_windows({"frm2_UP", "frm_Set_FLEX"});
    expect_marked();
    go_to(Place::refinement);
    expect_windows({"frm2_UP"});
    EXPECT_TRUE(forms().frm2_UP.cmdAccept.visible);
    EXPECT_FALSE(forms().frm2_UP.lblBestLow.text.empty());
}

TEST_F(Prologue, AListInTheMaking) {
    go_to(Place::new_list);
    expect_windows({"frm1_Settings", "frm_FileList"});
    EXPECT_GE(rs().SeqCount, 12);
    EXPECT_EQ(rs().ListMode, 0);
}

TEST_F(Prologue, ABatchWhoseStandardsAreBeingMeasured) {
    go_to(Place::batch_of_standards);
    expect_windows({"frm2_UP"});
    EXPECT_EQ(rs().SeqPhase, 1);
    EXPECT_EQ(rs().SeqCount, 12);
    EXPECT_EQ(rs().SeqStdDone, 4);
    EXPECT_EQ(rs().DataFileName, "011-std-GJ-1.csv");
    EXPECT_FALSE(is_processed(rs(), rs().SeqPos));
    expect_marked();
    EXPECT_TRUE(forms().frm2_UP.cmdSaveAnd(1).enabled);
}

TEST_F(Prologue, ABatchBeforeItsFactors) {
    go_to(Place::batch_before_factors);
    expect_windows({"frm2_UP", "frm_FileList", "frm_drift"});
    EXPECT_EQ(rs().SeqPhase, 2);
    EXPECT_TRUE(forms().frm_drift.plotted);
    EXPECT_TRUE(forms().frm_drift.cmdAccept.enabled);
    // Measured ever lower, so the factors rise.
    EXPECT_GT(rs().DriftB68, 0);
    EXPECT_GT(rs().DriftCF68(1), 1.02);
    EXPECT_LT(rs().DriftCF68(1), 1.03);
}

TEST_F(Prologue, ABatchOfSamples) {
    go_to(Place::batch_of_samples);
    expect_windows({"frm2_UP", "frm_FileList", "frm_drift"});
    EXPECT_EQ(rs().SeqPhase, 3);
    EXPECT_EQ(rs().DataFileName, "003-zircon-A-1.csv");
    EXPECT_EQ(rs().ListMode, 2);
    EXPECT_TRUE(forms().frm_drift.plotted);
    expect_marked();
    EXPECT_TRUE(forms().frm2_UP.cmdSaveAnd(0).enabled);
}

}  // namespace
}  // namespace kolvar::test
