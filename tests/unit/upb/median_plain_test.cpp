// The fast median against its plain reading, to the last bit, while slices are rejected too.
#include <random>

#include "../../../bench/plain/median_plain.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/regression.hpp"
#include "uranium_case.hpp"

namespace kolvar::test {
namespace {

class MedianPlain : public UraniumCase {};

TEST_F(MedianPlain, TablesOfTheMedianEqualThePlainReadingThroughRejectionAndRestoring) {
    std::mt19937 random(206);
    std::vector<double> sorted(MaxSlices + 1, 0);
    for (int pass = 0; pass < 200; ++pass) {
        const int low = 1 + static_cast<int>(random() % 20);
        const int upp = low + 1 + static_cast<int>(random() % 60);
        select(low, upp);
        const auto count = static_cast<std::size_t>(upp - low + 1);
        for (const RatioFields& ratio : ratio_fields()) {
            for (int t = low; t <= upp; ++t) {
                const auto kind = random() % 20;
                // Equal values, values at and above the mark of a taken one, and plain ones.
                double value = static_cast<double>(random() % 9999) / 7;
                if (kind < 6) value = 0.25;
                if (kind < 2) value = kind == 0 ? 1.0E9 : 3.0E9;
                (rs.*ratio.slices)(t) = value;
            }
        }
        for (int t = low; t <= upp; ++t) {
            const auto kind = random() % 8;
            rs.RejFlag(t) = pass % 3 == 0 || kind > 2 ? 0 : static_cast<int>(kind);
        }
        median_UP(rs);
        for (const RatioFields& ratio : ratio_fields()) {
            const auto cells = (rs.*ratio.slices).range(low, upp);
            const std::span places = std::span(sorted).subspan(static_cast<std::size_t>(low), count);
            plain::sort_around_rejected(cells, rs.RejFlag.range(low, upp), places);
            const std::size_t half = count / 2;
            const double median = count % 2 == 0 ? (places[half - 1] + places[half]) / 2 : places[half];
            ASSERT_EQ(rs.*ratio.median, median) << "pass " << pass;
        }
        for (int t = low; t <= upp; ++t)
            ASSERT_EQ(rs.MedianSorted(t), sorted[static_cast<std::size_t>(t)]) << "pass " << pass << " slice " << t;
    }
}

}  // namespace
}  // namespace kolvar::test
