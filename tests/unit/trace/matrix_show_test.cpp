#include "matrix_case.hpp"

namespace kolvar::test {
namespace {

using MatrixShow = MatrixCase;

TEST_F(MatrixShow, ExtremesAreCyanAndMagenta) {
    three_isotopes();
    show_min_max();
    EXPECT_EQ(picture(), "gmcgg c...m ..m.c");
    EXPECT_TRUE(form.pictMinMax.visible);
    show_min_max();
    EXPECT_EQ(picture(), "ggggg ..... .....");
    EXPECT_FALSE(form.pictMinMax.visible);
}

TEST_F(MatrixShow, AMinimumThatIsTheMaximumTooIsMagenta) {
    three_isotopes();
    view(form.optIIS);
    show_min_max();
    EXPECT_EQ(picture(), "mgggg c...m ..m.c");
}

TEST_F(MatrixShow, RejectedCellsAreNotMarked) {
    three_isotopes();
    click_matrix(context, 2, 1);
    show_min_max();
    EXPECT_EQ(row(2), "M...m");
}

TEST_F(MatrixShow, CellsWithDashesAreNotMarked) {
    three_isotopes();
    rs.RatioSD(2) = 0;
    view(form.optIIS);
    EXPECT_EQ(grid.cell(2, 1).text, "---");
    show_min_max();
    EXPECT_EQ(row(2), ".....");
}

TEST_F(MatrixShow, DeviationsAreMarkedByBands) {
    three_isotopes();
    data(rs.Sig2, 2, {80, 70.6, 119.9, 139.9, 60});
    cps_statistics(2, 100, 10, 6, 5);
    data(rs.Sig2, 3, {61, 141, 140, 129.9, 100});
    cps_statistics(3, 100, 10, 2, 3);
    show_deviation();
    // -2, -3.0, 1.9, 3.9, -4 and -3.9, 4.1, 4, 2.9, 0
    EXPECT_EQ(row(2), "yr.rm");
    EXPECT_EQ(row(3), "rmmy.");
    EXPECT_TRUE(form.pictStDev.visible);
    show_deviation();
    EXPECT_EQ(row(2), ".....");
}

TEST_F(MatrixShow, BetweenTheBandsThereIsNoColour) {
    EXPECT_EQ(matrix::deviation_colour(1.999), std::nullopt);
    EXPECT_EQ(matrix::deviation_colour(2), palette(14));
    EXPECT_EQ(matrix::deviation_colour(-2.999), palette(14));
    EXPECT_EQ(matrix::deviation_colour(2.9995), std::nullopt);
    EXPECT_EQ(matrix::deviation_colour(3), palette(12));
    EXPECT_EQ(matrix::deviation_colour(3.999), palette(12));
    EXPECT_EQ(matrix::deviation_colour(-3.9995), palette(13));
}

TEST_F(MatrixShow, DeviationsOfRatiosAreMarkedOnTheRatioViews) {
    three_isotopes();
    view(form.optIisSD);
    data(rs.Ratio, 2, {1, 1.5, 0.25, 2.25, 1.25});
    ratio_statistics(2, 1, 0.25, 4, 5);
    show_deviation();
    EXPECT_EQ(texts(2), "0 2 -3 5 1");
    EXPECT_EQ(row(2), ".yrm.");
}

TEST_F(MatrixShow, GrubbsMarksByTheStrictestLevelThatFails) {
    three_isotopes();
    rs.GrubbsP1(5) = 1.75;
    rs.GrubbsP2_5(5) = 1.5;
    rs.GrubbsP5(5) = 1.25;
    rs.GrubbsP7_5(5) = 1;
    rs.GrubbsP10(5) = 0.75;
    data(rs.Sig2, 1, {100, 114, 94, 100, 100});
    data(rs.Sig2, 2, {82, 100, 100, 100, 116});
    data(rs.Sig2, 3, {90, 100, 100, 111, 100});
    cps_statistics(1, 100, 10, 4, 3);  // g 0.6 and 1.4
    cps_statistics(2, 100, 10, 2, 6);  // g 1.8 and 1.6
    cps_statistics(3, 100, 10, 2, 5);  // g 1 (not above 1, so 10 %) and 1.1
    show_grubbs();
    EXPECT_EQ(picture(), "goggg m...r p..y.");
    show_grubbs();
    EXPECT_EQ(picture(), "ggggg ..... .....");
}

TEST_F(MatrixShow, GrubbsMarksByAllLevelsWhateverTheListOffers) {
    rs.RejProcName = "2.5";
    long_selection(30);
    load_matrix(context);
    rs.GrubbsP10(30) = 0.1;
    rs.GrubbsP7_5(30) = rs.GrubbsP5(30) = rs.GrubbsP2_5(30) = rs.GrubbsP1(30) = 100;
    show_grubbs();
    EXPECT_EQ(row(2)[15], 'p');
}

TEST_F(MatrixShow, OneShowBoxAtATime) {
    three_isotopes();
    show_deviation();
    EXPECT_TRUE(form.chkShowStDev.enabled);
    EXPECT_FALSE(form.chkShowMinMax.enabled);
    EXPECT_FALSE(form.chkShowGrubbs.enabled);
    EXPECT_TRUE(form.chkMinMax.enabled);
    EXPECT_TRUE(form.comboProc.enabled);
    show_deviation();
    EXPECT_TRUE(form.chkShowMinMax.enabled && form.chkShowStDev.enabled && form.chkShowGrubbs.enabled);
}

TEST_F(MatrixShow, TwoShowBoxesOnFromTheSettingsShowTheLastLegend) {
    rs.setShowMinMax = 1;
    rs.setShowSD = 1;
    three_isotopes();
    EXPECT_TRUE(form.chkShowMinMax.on() && form.chkShowStDev.on());
    EXPECT_FALSE(form.pictMinMax.visible);
    EXPECT_TRUE(form.pictStDev.visible);
    EXPECT_EQ(row(2), "c...m");
    // Both can be switched off; what the other one marks is kept.
    EXPECT_TRUE(form.chkShowMinMax.enabled && form.chkShowStDev.enabled);
    show_deviation();
    EXPECT_EQ(row(2), "c...m");
    show_min_max();
    EXPECT_EQ(row(2), ".....");
}

TEST_F(MatrixShow, LegendOfGrubbsHasTheLevelsOfTheSelection) {
    const auto words = [&] {
        std::string out;
        for (const auto& label : form.pictGrubbs.canvas.labels()) out += label.text + ";";
        return out;
    };
    long_selection(20);
    load_matrix(context);
    EXPECT_EQ(words(), "P < 1 %;P < 2.5 %;P < 5 %;P < 7.5 %;P < 10 %;");
    rs.SelN = 21;
    matrix::draw_legends(context);
    EXPECT_EQ(words(), "P < 1 %;P < 2.5 %;P < 5 %;");
    rs.SelN = 26;
    matrix::draw_legends(context);
    EXPECT_EQ(words(), "P < 2.5 %;P < 5 %;");
}

// The trend ---------------------------------------------------------------------------------------------------------

struct Profile : MatrixCase {
    // The segments of the curve, without the zero line.
    [[nodiscard]] std::vector<std::string> segments() const {
        std::vector<std::string> out;
        bool zero = true;
        for (const DrawCommand& command : form.pict1.canvas.commands()) {
            if (command.kind != DrawCommand::Kind::line) continue;
            const auto whole = [](double at) { return std::to_string(static_cast<int>(at + (at < 0 ? -0.5 : 0.5))); };
            if (!zero)
                out.push_back(whole(command.x1) + "," + whole(command.y1) + "-" + whole(command.x2) + "," +
                              whole(command.y2));
            zero = false;
        }
        return out;
    }
};

TEST_F(Profile, DrawsTheDeviationsOfTheRatioFromItsMean) {
    three_isotopes();
    data(rs.Ratio, 2, {1, 2, 1, 0, 1});
    rs.RatioMean(2) = 1;
    click_matrix(context, 2, 0);
    // 6000 x 2400: a slice every 1500; 1.2 times the largest deviation, 1, is half the height.
    EXPECT_EQ(segments(), (std::vector<std::string>{"0,1200-1500,200", "1500,200-3000,1200", "3000,1200-4500,2200",
                                                    "4500,2200-6000,1200"}));
    // (1 + 2) / 2 over (1 + 0 + 1) / 3
    EXPECT_EQ(form.lblFirstSec.text, "2.25");
    EXPECT_FALSE(form.cmdReset.enabled);
}

TEST_F(Profile, SlicesWhereTheRawStandardIsNotAboveZeroHereAndNextAreLeftOut) {
    three_isotopes();
    rs.Sig(1, 4) = 0;
    Draw_Profile(context, 2);
    ASSERT_EQ(segments().size(), 2U);
    EXPECT_EQ(segments()[0].substr(0, 2), "0,");
    EXPECT_EQ(segments()[1].substr(0, 5), "4500,");
}

TEST_F(Profile, TheStandardItselfIsAFlatLine) {
    three_isotopes();
    rs.Ratio(1, 3) = 1.4;
    Draw_Profile(context, 1);
    ASSERT_EQ(segments().size(), 4U);
    EXPECT_EQ(segments()[1], "1500,1200-3000,1200");
}

TEST_F(Profile, AConstantRatioIsAFlatLineToo) {
    three_isotopes();
    data(rs.Ratio, 2, {0.5, 0.5, 0.5, 0.5, 0.5});
    rs.RatioMean(2) = 0.5;
    Draw_Profile(context, 2);
    EXPECT_EQ(segments()[0], "0,1200-1500,1200");
    EXPECT_EQ(form.lblFirstSec.text, "1.00");
}

TEST_F(Profile, RowsWithoutStatisticsAreNotDrawn) {
    three_isotopes();
    rs.CpsSD(2) = Mark::dashes;
    form.lblFirstSec.text = "1.00";
    Draw_Profile(context, 2);
    EXPECT_TRUE(segments().empty());
    EXPECT_EQ(form.lblFirstSec.text, "1.00");
}

TEST_F(Profile, WithoutASecondHalfAboveZeroThereIsNoFigure) {
    three_isotopes();
    Draw_Profile(context, 1);
    EXPECT_EQ(form.lblFirstSec.text, "1.00");
    EXPECT_TRUE(form.lblFirstSecHead.visible);
    data(rs.Ratio, 2, {1, 2, 1, -1, 0});
    Draw_Profile(context, 2);
    EXPECT_EQ(form.lblFirstSec.text, "First half / Second half:");
    EXPECT_FALSE(form.lblFirstSecHead.visible);
}

TEST_F(Profile, WhileAFileIsMadeAClickOnANameDoesNothing) {
    three_isotopes();
    rs.ModeData = 0;
    click_matrix(context, 2, 0);
    EXPECT_TRUE(segments().empty());
    EXPECT_EQ(picture(), "ggggg ..... .....");
    EXPECT_FALSE(form.cmdReset.enabled);
}

}  // namespace
}  // namespace kolvar::test
