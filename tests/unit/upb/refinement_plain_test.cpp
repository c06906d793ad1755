// The quick scan of the refinement against its plain reading, to the last bit: proposal, labels, limits and all tables
// that it leaves behind.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>

#include "../../../bench/plain/refinement_plain.hpp"
#include "support/test_support.hpp"
#include "upb/refinement.hpp"
#include "upb/regression.hpp"

namespace kolvar::test {
namespace {

struct Case {
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};

    explicit Case(unsigned seed) {
        std::mt19937 random(seed);
        const auto any = [&](int from, int to) {
            return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1));
        };
        set_start_values(rs);
        rs.Method = any(0, 4) == 0 ? 3 : 1;
        rs.nIso = 8;
        rs.nSlices = any(20, 420);
        rs.ColU238 = 1, rs.ColTh232 = any(0, 3) == 0 ? 0 : 3, rs.ColPb208 = 4, rs.ColPb207 = 5;
        rs.ColU235 = any(0, 3) == 0 ? 0 : 2;
        rs.ColPb206 = 6, rs.ColPb204 = 7, rs.ColHg = 8, rs.HgMass = 202;
        rs.Hg2_4 = 4.36, rs.UU8_5 = 137.818;
        rs.set235_Calc = any(0, 3) == 0 ? 1 : 0;
        forms.frm2_UP.chkHgCorr.value = any(0, 1);
        const int rise = any(5, rs.nSlices / 3);
        std::normal_distribution<double> noise(0, 1);
        const bool coarse = any(0, 2) == 0;  // many equal values
        for (int i = 1; i <= 8; ++i) {
            const double height = 300.0 * any(1, 40);
            for (int t = 1; t <= rs.nSlices; ++t) {
                const double mean = 20 + (t > rise ? height * (1 + 0.002 * i * t / rs.nSlices) : 0);
                double cps = std::max(0.0, mean + std::sqrt(mean) * noise(random));
                if (coarse) cps = std::floor(cps / 100) * 100;
                rs.Sig(i, t) = cps;
            }
        }
        for (int t = 0; t <= MaxSlices; ++t) {
            rs.NormP2(t) = 0.001 * (t % 997);  // of files before
            rs.Sorted2(t) = 0.01 * (t % 89);
            rs.Rat75(t) = 0.5 + 0.001 * (t % 13);
        }
        rs.BlkLow = 1, rs.BlkUpp = any(0, 9) == 0 ? 1 : 3, rs.BlkN = 3;
        for (int i = 1; i <= 8; ++i) rs.BlkMean(i) = 20.0, rs.BlkSD(i) = 4.0;
        const int length = std::min(any(3, 300), rs.nSlices - rise);
        rs.SelLow = rise + 1 + any(0, rs.nSlices - rise - length);
        rs.SelUpp = rs.SelLow.val() + length - 1;
        rs.SelN = length;
        rs.SelNGood = length;
        if (any(0, 7) == 0) rs.RejFlag(std::max(1, rs.SelLow.val() - 1)) = 1;  // left by a former selection
        rs.setErr = any(0, 3), rs.setErr_times = 2;
        rs.setBzzMethod = any(0, 1), rs.setBzzPlot = any(0, 19) == 0 ? 2 : any(0, 1);
        rs.ZizzSteps = any(0, 9) == 0 ? 200 : 0;
        Frm2UP& form = forms.frm2_UP;
        form.comboBzz.set_items({"%", "data"});
        form.comboBzz.set_value_quietly(any(0, 1));
        form.txtZizzRange.text = std::to_string(any(0, 9));
        if (any(0, 5) == 0) form.txtZizzRange.text = "2.5";
        try {
            calc_express_UP(context);  // what the screen has calculated before the button is pressed
        } catch (const Fault&) {
        }
    }
};

// True when a fault ended it.
template <class Scan>
bool faulted(Scan&& scan) {
    try {
        scan();
        return false;
    } catch (const Fault&) {
        return true;
    }
}

std::vector<std::string> labels_of(const Frm2UP& form) {
    std::vector<std::string> out;
    for (const Control* control : form.controls) {
        if (const auto* label = dynamic_cast<const Label*>(control))
            out.push_back(label->address() + (label->visible ? " + " : " - ") + label->text);
    }
    return out;
}

template <class T>
void expect_same_table(const Table1<T>& quick, const Table1<T>& plain, const char* name, unsigned seed) {
    for (int t = 0; t <= quick.last(); ++t)
        ASSERT_EQ(std::memcmp(&quick(t), &plain(t), sizeof(T)), 0) << name << " " << t << " seed " << seed;
}

TEST(RefinementPlain, QuickScanEqualsThePlainReading) {
    int faults = 0;
    int proposals = 0;
    int warnings = 0;
    for (unsigned seed = 1; seed <= 250; ++seed) {
        const auto quick = std::make_unique<Case>(seed);
        const auto plain = std::make_unique<Case>(seed);
        const bool quick_fault = faulted([&] { ziz_Manager_UP(quick->context); });
        const bool plain_fault = faulted([&] { plain::scan(plain->context); });
        ASSERT_EQ(quick_fault, plain_fault) << "seed " << seed;
        EXPECT_EQ(quick->os.boxes.size(), plain->os.boxes.size()) << "seed " << seed;
        warnings += quick->os.boxes.empty() ? 0 : 1;
        if (plain_fault) {
            // The plain reading leaves the limits at the pair of the fault.
            ++faults;
            plain->rs.SelLow = plain->rs.BestLow, plain->rs.SelUpp = plain->rs.BestUpp;
            if (!plain->rs.ZizzRunning) continue;
        }
        const RunState& a = quick->rs;
        const RunState& b = plain->rs;
        EXPECT_EQ(a.SelLow, b.SelLow) << "seed " << seed;
        EXPECT_EQ(a.SelUpp, b.SelUpp) << "seed " << seed;
        EXPECT_EQ(labels_of(quick->forms.frm2_UP), labels_of(plain->forms.frm2_UP)) << "seed " << seed;
        EXPECT_EQ(quick->forms.frm2_Time.lblHgCorrNegative.visible, plain->forms.frm2_Time.lblHgCorrNegative.visible)
            << "seed " << seed;
        if (plain_fault) continue;
        if (a.ZizzBest > 0) ++proposals;
        EXPECT_EQ(a.SelN, b.SelN);
        for (const auto field :
             {&RunState::ZizzVal1, &RunState::ZizzVal2, &RunState::ZizzRef1, &RunState::ZizzRef2, &RunState::ZizzGain1,
              &RunState::ZizzGain2, &RunState::ZizzBest, &RunState::Mean68, &RunState::SD75, &RunState::Err76,
              &RunState::Med68, &RunState::Med76, &RunState::Mean85})
            EXPECT_EQ(std::memcmp(&(a.*field), &(b.*field), sizeof(double)), 0) << "seed " << seed;
        for (Table1<double> RunState::*const table : std::initializer_list<Table1<double> RunState::*>{
                 &RunState::Sorted1, &RunState::Sorted2, &RunState::NormP1, &RunState::NormP2, &RunState::MedianSorted,
                 &RunState::Rat68, &RunState::Rat75, &RunState::Rat82, &RunState::Rat382, &RunState::Rat76,
                 &RunState::Sig204Net})
            expect_same_table(a.*table, b.*table, "table", seed);
        for (int i = 1; i <= a.nIso; ++i) {
            EXPECT_EQ(a.CpsMean(i), b.CpsMean(i)) << "seed " << seed;
            EXPECT_TRUE(a.CpsSD(i) == b.CpsSD(i)) << "seed " << seed;
            for (int t = 1; t <= a.nSlices; ++t) ASSERT_EQ(a.Sig2(i, t), b.Sig2(i, t)) << "seed " << seed;
        }
    }
    // The cases are worth something: most make a proposal, some end in a fault, some warn.
    EXPECT_GT(proposals, 100);
    EXPECT_GT(faults, 5);
    EXPECT_GT(warnings, 5);
}

}  // namespace
}  // namespace kolvar::test
