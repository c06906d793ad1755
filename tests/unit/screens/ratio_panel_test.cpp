// The panel of signal ratios, and the preview of averages by button and double click.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

class RatioPanel : public ProgramOnKit {
protected:
    Frm2Time& form() { return forms().frm2_Time; }
    void go() {
        program->start(0);
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        ASSERT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
    }
    int marked_label() {
        int marked = -1;
        for (int j = 0; j <= 11; ++j)
            if (form().lblRatio(j).back == palette(14)) marked = marked == -1 ? j : 99;
        return marked;
    }
};

TEST_F(RatioPanel, NamesOfTheSettingsAreSoughtInTheDataAtOpening) {
    set_key("ratioName(1)", "\"Xe131\"");
    go();
    const std::pair<const char*, int> expected[] = {{"Rb85", 10},  {"", 0},       {"Zr90", 13},  {"Hf178", 22},
                                                    {"Nb93", 14},  {"Y89", 12},   {"La139", 16}, {"Yb172", 21},
                                                    {"Ba137", 15}, {"La139", 16}, {"Th232", 24}, {"U238", 25}};
    for (int j = 0; j <= 11; ++j) {
        EXPECT_EQ(rs().RatioCol(j), expected[j].second) << j;
        EXPECT_EQ(form().lblRatio(j).text, expected[j].first) << j;
    }
    EXPECT_EQ(
        form().lblExplanation.text,
        "Select a counter or a denominator in the signal ratios by mouse click and drag a name of an isotope from the "
        "list at the left.");
}

TEST_F(RatioPanel, ShownFromTheStartWhenTheLowerPlotIsSetToSignalRatios) {
    set_key("setRatio_ppmIS", "2");
    set_key("setRatioShow(2)", "0");
    go();
    EXPECT_TRUE(form().pictRatios.visible);
    EXPECT_FALSE(form().cmdRatios.visible);
    EXPECT_EQ(form().cmdAcceptRatios.text, "Modify ratios");
    EXPECT_FALSE(form().lblExplanation.visible);
    EXPECT_TRUE(form().chkR1.on());
    EXPECT_FALSE(form().chkR2.on());
    EXPECT_LT(form().pict2.height, form().pict1.height);  // the panel takes its room
}

TEST_F(RatioPanel, HiddenAtOpeningInAllOtherCases) {
    go();
    EXPECT_FALSE(form().pictRatios.visible);
    EXPECT_TRUE(form().cmdRatios.visible);
    click(form(), "cmdRatios");
    EXPECT_TRUE(form().pictRatios.visible);
    EXPECT_FALSE(form().cmdRatios.visible);
}

TEST_F(RatioPanel, InEditModeTheMarkedLabelTakesTheAnalyteThatIsClicked) {
    go();
    click(form(), "cmdRatios");
    click(form(), "lblRatio", 3);
    EXPECT_EQ(marked_label(), -1);  // not in edit mode
    click(form(), "cmdAcceptRatios");
    EXPECT_EQ(form().cmdAcceptRatios.text, "Plot ratios");
    EXPECT_TRUE(form().lblExplanation.visible);
    EXPECT_EQ(form().pictRatios.height, 2680);
    click(form(), "lblRatio", 3);
    EXPECT_EQ(marked_label(), 3);
    click(form(), "lblRatio", 5);
    EXPECT_EQ(marked_label(), 5);
    click(form(), "chkIs", 1);
    EXPECT_EQ(form().lblRatio(5).text, "Li7");
    EXPECT_EQ(form().lblRatio(3).text, "Hf178");
}

TEST_F(RatioPanel, AnAnalyteIsDraggedOntoALabelInEditModeOnly) {
    go();
    click(form(), "cmdRatios");
    Event drag = event_of(EventKind::drag, form(), "chkIs", 2);
    drag.target = "lblRatio";
    drag.target_index = 0;
    program->dispatch(drag);
    EXPECT_EQ(form().lblRatio(0).text, "Rb85");
    click(form(), "cmdAcceptRatios");
    program->dispatch(drag);
    EXPECT_EQ(form().lblRatio(0).text, "Mg25");
    drag.target_index = 12;  // dropped beside the labels
    program->dispatch(drag);
    drag.target = "pict1";
    drag.target_index = -1;
    program->dispatch(drag);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(RatioPanel, AcceptedPairsAreKeptByNameAndColumn) {
    go();
    click(form(), "cmdRatios");
    click(form(), "cmdAcceptRatios");
    click(form(), "lblRatio", 0);
    click(form(), "chkIs", 4);
    click(form(), "cmdAcceptRatios");
    EXPECT_TRUE(os.boxes.empty());
    EXPECT_EQ(rs().RatioCol(0), 4);
    EXPECT_EQ(rs().ratioName(0).text(), "Si29");
    EXPECT_EQ(rs().RatioCol(1), 11);
    EXPECT_EQ(form().cmdAcceptRatios.text, "Modify ratios");
    EXPECT_FALSE(form().lblExplanation.visible);
    for (int j = 0; j <= 11; ++j) EXPECT_EQ(form().lblRatio(j).back, palette(15)) << j;
    EXPECT_EQ(form().pictRatios.top, form().pict2.top + form().pict2.height + 240);
}

TEST_F(RatioPanel, WithoutACompletePairNothingIsPlotted) {
    go();
    for (int j = 0; j <= 11; j += 2) form().lblRatio(j).text = "";
    click(form(), "cmdRatios");
    click(form(), "cmdAcceptRatios");
    click(form(), "cmdAcceptRatios");
    EXPECT_EQ(box_texts(),
              std::vector<std::string>{"There is no isotope pairs selected, thus drawing is not possible."});
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(form().cmdAcceptRatios.text, "Plot ratios");  // the user goes on choosing
    EXPECT_EQ(rs().RatioCol(0), 0);
    EXPECT_EQ(rs().RatioCol(1), 11);
}

TEST_F(RatioPanel, DeletedRatioPlotGivesWayToConcentrations) {
    set_key("setRatio_ppmIS", "2");
    go();
    click(form(), "cmdClose");
    EXPECT_TRUE(rs().setRatio_ppmIS == Value(1));
    EXPECT_FALSE(form().pictRatios.visible);
    EXPECT_TRUE(form().cmdRatios.visible);
    EXPECT_TRUE(form().shown);
    EXPECT_EQ(form().pict2.height, form().pict1.height);
}

TEST_F(RatioPanel, AnAcceptedPairIsSwitchedOnlyWhenASelectionStands) {
    set_key("setRatio_ppmIS", "2");
    go();
    click(form(), "chkR3");
    EXPECT_TRUE(rs().setRatioShow(3) == Value(1.0));
    click(form(), "chkR3");
    mark(1, 0, 60);
    mark(2, 0, 120);
    scroll(form(), "VScroll1", 5);
    click(form(), "chkR3");
    EXPECT_TRUE(rs().setRatioShow(3) == Value(0));
    EXPECT_EQ(form().VScroll1.value, 1);
    EXPECT_TRUE(rs().ScaleFresh2);
}

TEST_F(RatioPanel, DoubleClickShowsTheAveragesOnceEnoughIsMarked) {
    go();
    dblclick(form());
    dblclick(form(), "pictRightSide");
    EXPECT_FALSE(forms().frm_AverConc.shown);
    mark(1, 0, 60);
    dblclick(form());  // one limit: -59 slices
    mark(2, 0, 120);
    dblclick(form());  // the blank is missing
    EXPECT_FALSE(forms().frm_AverConc.shown);
    // Not the double clicks but the completed selection asked for the blank.
    EXPECT_EQ(box_texts(), std::vector<std::string>{"The selected blank interval is too short."});
    mark(1, 1, 5);
    mark(2, 1, 45);
    for (const char* place : {"", "pictRightSide"}) {
        dblclick(form(), place);
        EXPECT_EQ(shown_windows(), (std::vector<std::string>{"frm2_Time", "frm_AverConc"}));
        // Li7 at 6.21539638 ppm, computed apart from this program by the generator of the example.
        EXPECT_EQ(forms().frm_AverConc.lbl(0).text.substr(0, 13), " Li7      6.2");
        close(forms().frm_AverConc);
        EXPECT_EQ(shown_windows(), std::vector<std::string>{"frm2_Time"});
    }
    EXPECT_EQ(rs().nData(1), 61);
}

TEST_F(RatioPanel, WithABlankFileTheSelectionAloneGivesThePreview) {
    set_key("setBLK_IS", "0");
    go();
    mark(1, 0, 60);
    mark(2, 0, 120);
    dblclick(form());
    EXPECT_TRUE(forms().frm_AverConc.shown);
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(RatioPanel, PreviewThatIsOpenShowsTheNewAverages) {
    go();
    mark(1, 1, 5);
    mark(2, 1, 45);
    mark(1, 0, 60);
    mark(2, 0, 120);
    click(form(), "cmdShowConc");
    const std::string first = forms().frm_AverConc.lbl(1).text;
    mark(2, 0, 70);
    click(form(), "cmdShowConc");
    EXPECT_EQ(shown_windows(), (std::vector<std::string>{"frm2_Time", "frm_AverConc"}));
    EXPECT_NE(forms().frm_AverConc.lbl(1).text, first);
    EXPECT_EQ(rs().nData(2), 11);
}

}  // namespace
}  // namespace kolvar::test
