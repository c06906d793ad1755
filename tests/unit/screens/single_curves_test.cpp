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

}  // namespace
}  // namespace kolvar::test
