// A quick way through the pairs of a scan: the same measures to the last bit, without the tables of each pair.
#pragma once

#include <optional>
#include <vector>

#include "core/run_state.hpp"

namespace kolvar {

struct PairMeasures {
    double first = 0, second = 0;
};

// All that is the same for every pair is taken once: the net signals, the ratios and their order. The sums keep the
// order of the slices, so they begin anew with each lower limit and grow with the upper one.
class QuickPairs {
public:
    // To be called when calc_express_UP has run for the first pair of a band from slice `first` to slice `last`, whose
    // shortest interval has `shortest` slices. Nothing where the quick way does not lead to the same: rejected slices
    // in the band, values that the sort does not know, intervals that are too short, settings without a measure.
    static std::optional<QuickPairs> of(const RunState& rs, int first, int last, int shortest, bool hg_corrected);

    // A new lower limit.
    void begin(int low);
    // Measures of the interval from that limit to `upp`, which never falls between two calls; nothing where the pair
    // needs the long way. Makes the entry of NormP2 that the pair leaves. With the interval in force in `rs`.
    std::optional<PairMeasures> measure(RunState& rs, int upp);
    // The mean of the corrected Pb204 of the pair that was measured last lies below 0.
    [[nodiscard]] bool negative_pb204() const { return negative_pb204_; }

private:
    struct Ratio {
        std::vector<double> values;  // from `first_` on
        std::vector<int> ascending;  // places in `values`
        double sum = 0;
    };
    QuickPairs() = default;
    static Ratio ratio_of(const std::vector<double>& values);
    [[nodiscard]] double sd_of(const Ratio& ratio, double mean) const;
    [[nodiscard]] double cubes_of(const Ratio& ratio, double mean) const;
    template <class Take>
    void each_ascending(const Ratio& ratio, Take&& take) const;
    [[nodiscard]] std::size_t low_place() const { return static_cast<std::size_t>(low_ - first_); }
    [[nodiscard]] std::size_t upp_place() const { return static_cast<std::size_t>(upp_ - first_); }

    int first_ = 0, low_ = 0, upp_ = 0;
    double method_ = 0, plot_ = 0;
    bool u235_ = false;
    Ratio r68_, r75_, r76_;
    std::vector<double> pb204_;  // empty: not corrected
    double pb204_sum_ = 0;
    bool negative_pb204_ = false;
};

}  // namespace kolvar
