// The single-curve mode of the time selection: which commands fall back to drawing all curves.
#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

class SingleCurveScreen : public ProgramOnKit {
protected:
    Frm2Time& form() { return forms().frm2_Time; }
    void go() {
        program->start(0);
        click(forms().frm1_Settings, "cmdOK");
        click(forms().frm1_Settings, "cmdNext");
        rs().setAllCurve = 0;
        rs().CurveOn(1) = true;
    }
    // Only the drawing of all curves sets this flag; the single curves leave it.
    bool draws_all_at(const std::string& control) {
        rs().CurvesShown = 0;
        click(form(), control);
        return rs().CurvesShown == 1;
    }
};

TEST_F(SingleCurveScreen, LinesAnalytesAndRatioPanelDrawAllCurvesNevertheless) {
    go();
    for (const char* control : {"cmdHorizLines", "cmdSel", "cmdRatios", "cmdClose"})
        EXPECT_TRUE(draws_all_at(control)) << control;
    rs().CurvesShown = 0;
    click(form(), "chkIs", 1);
    EXPECT_EQ(rs().CurvesShown, 1);
    rs().SelLow = 60;
    rs().SelUpp = 120;
    EXPECT_TRUE(draws_all_at("chkR1"));
}

TEST_F(SingleCurveScreen, ScaleOptionsDrawTheSingleCurves) {
    go();
    click(form(), "optLi");
    const int draws = form().pict1.canvas.draws();
    EXPECT_FALSE(draws_all_at("optLo"));
    EXPECT_FALSE(draws_all_at("optLi"));
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 2);
}

TEST_F(SingleCurveScreen, AnotherSizeOfTheWindowDrawsTheSingleCurves) {
    go();
    click(form(), "optLi");
    const int draws = form().pict1.canvas.draws();
    rs().CurvesShown = 0;
    resize(form(), 15000, 9000);
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
    EXPECT_EQ(rs().CurvesShown, 0);
}

TEST_F(SingleCurveScreen, AnotherSizeOfAPlotDrawsTheSingleCurves) {
    go();
    click(form(), "optLi");
    const int draws = form().pict1.canvas.draws();
    rs().CurvesShown = 0;
    Event event = event_of(EventKind::resize, form(), "pict1");
    event.x = 6000;
    event.y = 3000;
    program->dispatch(event);
    EXPECT_EQ(form().pict1.width, 6000);
    EXPECT_EQ(form().pict1.height, 3000);
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
    EXPECT_EQ(rs().CurvesShown, 0);
}

TEST_F(SingleCurveScreen, ATypedLimitOfTheRatiosDrawsTheSingleCurves) {
    go();
    click(form(), "optLi");
    const int draws = form().pict1.canvas.draws();
    rs().CurvesShown = 0;
    form().lblMaxIIS.visible = true;
    click(form(), "lblMaxIIS");
    type(form(), "txtYMaxInp2", "5");
    enter(form(), "txtYMaxInp2");
    EXPECT_EQ(rs().YMaxEntry2, Value(5));
    EXPECT_FALSE(form().txtYMaxInp2.visible);
    EXPECT_EQ(form().pict1.canvas.draws(), draws + 1);
    EXPECT_EQ(rs().CurvesShown, 0);
    EXPECT_TRUE(os.boxes.empty());
}

}  // namespace
}  // namespace kolvar::test
