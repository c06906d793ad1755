#include "upb/scatter_plot.hpp"

#include "drawn_list.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

// 1000 by 1000 twips: the data lie between 100 and 900. Slices 5 to 8: 206/238 .1 .2 .3 .5, 207/235 1 2 3 5, 207/206
// .05 .06 .07 .09; 238/206 is therefore 10, 5, 3 1/3, 2.
class ScatterPlot : public UraniumCase {
protected:
    ScatterPlot() {
        form.pict3.width = form.pict3.height = 1000;
        ratio(rs.Rat68, {0.1, 0.2, 0.3, 0.5});
        ratio(rs.Rat75, {1, 2, 3, 5});
        ratio(rs.Rat76, {0.05, 0.06, 0.07, 0.09});
        rs.Min68 = 0.1, rs.Max68 = 0.5;
        rs.Min75 = 1, rs.Max75 = 5;
        rs.Min76 = 0.05, rs.Max76 = 0.09;
        rs.setConcordia = 0;
        rs.PlotPool = 1;
        form.lblRizsa(12).text = form.lblRizsa(13).text = "as before";
    }
    Drawn draw() {
        draw_XY(context);
        return drawn_list(form.pict3);
    }
};

TEST_F(ScatterPlot, WetherillDiagramIsAListOfCrosses) {
    EXPECT_EQ(draw(), (Drawn{"clear", "line 0 60.0 900.0 140.0 900.0", "line 0 100.0 860.0 100.0 940.0",  //
                             "line 0 260.0 700.0 340.0 700.0", "line 0 300.0 660.0 300.0 740.0",          //
                             "line 0 460.0 500.0 540.0 500.0", "line 0 500.0 460.0 500.0 540.0",          //
                             "line 0 860.0 100.0 940.0 100.0", "line 0 900.0 60.0 900.0 140.0"}));
    EXPECT_EQ(form.lblRizsa(12).text, "Y: 206/238");
    EXPECT_EQ(form.lblRizsa(13).text, "X: 207/235");
}

TEST_F(ScatterPlot, TeraWasserburgDiagramTakesTheReciprocals) {
    rs.setConcordia = 1;
    // 238/206 from 2 to 10: 100 + 100 (c - 2).
    EXPECT_EQ(draw(), (Drawn{"clear", "line 0 860.0 900.0 940.0 900.0", "line 0 900.0 860.0 900.0 940.0",  //
                             "line 0 360.0 700.0 440.0 700.0", "line 0 400.0 660.0 400.0 740.0",           //
                             "line 0 193.3 500.0 273.3 500.0", "line 0 233.3 460.0 233.3 540.0",           //
                             "line 0 60.0 100.0 140.0 100.0", "line 0 100.0 60.0 100.0 140.0"}));
    EXPECT_EQ(form.lblRizsa(12).text, "Y: 207/206");
    EXPECT_EQ(form.lblRizsa(13).text, "X: 238/206");
}

TEST_F(ScatterPlot, ASliceWithoutARatioHasNoPoint) {
    rs.setConcordia = 1;
    rs.Rat68(6) = 0;
    EXPECT_EQ(draw(), (Drawn{"clear", "line 0 860.0 900.0 940.0 900.0", "line 0 900.0 860.0 900.0 940.0",  //
                             "line 0 193.3 500.0 273.3 500.0", "line 0 233.3 460.0 233.3 540.0",           //
                             "line 0 60.0 100.0 140.0 100.0", "line 0 100.0 60.0 100.0 140.0"}));
    rs.Max68 = 0;  // of no slice at all
    EXPECT_EQ(draw(), (Drawn{"clear"}));
}

TEST_F(ScatterPlot, PooledPointsAreMeans) {
    rs.PlotPool = 2;
    // 207/235 1.5 and 4, 206/238 .15 and .4
    EXPECT_EQ(draw(), (Drawn{"clear", "line 0 160.0 800.0 240.0 800.0", "line 0 200.0 760.0 200.0 840.0",  //
                             "line 0 660.0 300.0 740.0 300.0", "line 0 700.0 260.0 700.0 340.0"}));
}

TEST_F(ScatterPlot, PooledPointsOfTheTeraWasserburgDiagramAreMeansOfTheReciprocals) {
    rs.PlotPool = 2;
    rs.setConcordia = 1;
    // 238/206 (10 + 5) / 2 = 7.5 and (3 1/3 + 2) / 2 = 2 2/3; 207/206 .055 and .08
    EXPECT_EQ(draw(), (Drawn{"clear", "line 0 610.0 800.0 690.0 800.0", "line 0 650.0 760.0 650.0 840.0",  //
                             "line 0 126.7 300.0 206.7 300.0", "line 0 166.7 260.0 166.7 340.0"}));
}

TEST_F(ScatterPlot, SlicesThatFillNoPointAreLeftOut) {
    rs.PlotPool = 3;
    // 207/235 2, 206/238 .2 of slices 5 to 7
    EXPECT_EQ(draw(), (Drawn{"clear", "line 0 260.0 700.0 340.0 700.0", "line 0 300.0 660.0 300.0 740.0"}));
}

TEST_F(ScatterPlot, RejectedSlicesAreStruckOutBold) {
    rs.RejFlag(6) = 2;
    const Drawn list = draw();
    ASSERT_EQ(list.size(), 13U);
    EXPECT_EQ(Drawn(list.begin() + 3, list.begin() + 9),
              (Drawn{"line 0 260.0 700.0 340.0 700.0", "line 0 300.0 660.0 300.0 740.0", "width 3",
                     "line 4 260.0 660.0 340.0 740.0", "line 4 260.0 740.0 340.0 660.0", "width 1"}));
}

TEST_F(ScatterPlot, StrikeOutIsDrawnUnpooledOnly) {
    rs.RejFlag.fill(1);
    rs.PlotPool = 2;
    EXPECT_EQ(draw().size(), 5U);
}

TEST_F(ScatterPlot, WithoutU235TheTeraWasserburgDiagramBecomesTheSetting) {
    rs.ColU235 = 0;
    EXPECT_EQ(draw().size(), 9U);
    EXPECT_EQ(rs.setConcordia, Value(1));
    EXPECT_EQ(form.lblRizsa(13).text, "X: 238/206");
}

TEST_F(ScatterPlot, NothingIsDrawnBeforeASelectionOrAResult) {
    form.pict3.canvas.Line(1, 2, 3, 4);
    rs.Min68 = "";
    EXPECT_EQ(draw(), (Drawn{"line 0 1.0 2.0 3.0 4.0"}));
    rs.Min68 = 0.1;
    rs.SelLow.clear();
    EXPECT_EQ(draw(), (Drawn{"line 0 1.0 2.0 3.0 4.0"}));
    EXPECT_EQ(form.lblRizsa(12).text, "as before");
}

TEST_F(ScatterPlot, ConstantRatioHasNoPoints) {
    rs.Max75 = 1;
    EXPECT_EQ(draw(), (Drawn{"clear"}));
    rs.Max75 = 5;
    rs.Max68 = 0.1;
    EXPECT_EQ(draw(), (Drawn{"clear"}));
    rs.setConcordia = 1;
    EXPECT_EQ(draw(), (Drawn{"clear"}));
    rs.Max68 = 0.5;
    rs.Max76 = 0.05;
    EXPECT_EQ(draw(), (Drawn{"clear"}));
    EXPECT_TRUE(os.boxes.empty());
}

TEST_F(ScatterPlot, AspectRatioHasNoEffect) {
    const Drawn plain = draw();
    rs.AspectFix = true;
    EXPECT_EQ(draw(), plain);
}

TEST_F(ScatterPlot, PlacesFollowTheExtremesOfTheCalculation) {
    rs.Rat75(8) = 6;
    EXPECT_EQ(draw().back(), "line 0 1100.0 60.0 1100.0 140.0");
}

}  // namespace
}  // namespace kolvar::test
