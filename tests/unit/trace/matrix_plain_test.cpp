// The matrix beside its plain reading, on a simulated measurement.
#include "../../../bench/plain/matrix_plain.hpp"
#include "../../../bench/plain/simulated_run.hpp"
#include "matrix_case.hpp"
#include "trace/statistics.hpp"

namespace kolvar::test {
namespace {

struct MatrixBesidePlain : MatrixCase {
    void SetUp() override { open_table(600, 150); }
    void open_table(int slices, int blank) {
        plain::simulate_run(rs, 12, slices, blank);
        ComputeBlank(rs, os);
        rs.setISnum = 1;
        rs.setSD_IS = 1.5;
        rs.CpsSD(7) = Mark::dashes;
        load_matrix(context);
        for (int c = 5; c < grid.cols; c += 31) click_matrix(context, 1 + c % 12, c);
    }
    void accept_all() {
        for (int i = 1; i < grid.rows; ++i)
            for (Grid::Cell& cell : matrix::row_of(grid, i).subspan(1))
                if (cell.back == palette(8)) matrix::accept(cell);
        matrix::paint_standards(context);
    }
    [[nodiscard]] std::vector<std::string> all_texts() const {
        std::vector<std::string> out;
        for (int i = 1; i < grid.rows; ++i) out.push_back(texts(i));
        return out;
    }
};

TEST_F(MatrixBesidePlain, DeviationsRejectTheSameCellsInEveryView) {
    for (OptionButton* option : {&form.optCPS, &form.optCpsSD, &form.optIIS, &form.optIisSD}) {
        view(*option);
        const std::string before = picture();
        plain::reject_deviations(context);
        const std::string expected = picture();
        ASSERT_NE(expected, before);
        accept_all();
        deviation();
        EXPECT_EQ(picture(), expected) << option->name;
        deviation();
        EXPECT_EQ(picture(), before) << option->name;
    }
}

TEST_F(MatrixBesidePlain, ExtremesAreTheSameCellsInEveryView) {
    for (OptionButton* option : {&form.optCPS, &form.optCpsSD, &form.optIIS, &form.optIisSD}) {
        view(*option);
        const std::string before = picture();
        plain::reject_extremes(context);
        const std::string expected = picture();
        ASSERT_NE(expected, before);
        accept_all();
        min_max();
        EXPECT_EQ(picture(), expected) << option->name;
        min_max();
    }
}

TEST_F(MatrixBesidePlain, GrubbsRejectsTheSameCellsInEveryView) {
    rs.RejProcName = " 5";
    for (int n = 3; n <= 100; ++n) rs.GrubbsP5(n) = 2.25;
    open_table(100, 20);
    for (OptionButton* option : {&form.optCPS, &form.optCpsSD, &form.optIIS, &form.optIisSD}) {
        view(*option);
        const std::string before = picture();
        plain::reject_grubbs(context, 2.25);
        const std::string expected = picture();
        ASSERT_NE(expected, before);
        accept_all();
        grubbs();
        EXPECT_EQ(picture(), expected) << option->name;
        grubbs();
    }
}

TEST_F(MatrixBesidePlain, DeviationsHaveTheSameTexts) {
    view(form.optCpsSD);
    const std::vector<std::string> fast = all_texts();
    plain::fill_deviations(context);
    EXPECT_EQ(fast, all_texts());
}

}  // namespace
}  // namespace kolvar::test
