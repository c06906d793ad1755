// The calculations of the ratio screen against their plain reading, to the last bit: every field of the run state,
// every label and the outliers, through a click, the rejection, a click while rejected and other limits.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <random>

#include "../../../bench/plain/ratio_plain.hpp"
#include "core/inspector.hpp"
#include "support/test_support.hpp"
#include "upb/beam_start.hpp"
#include "upb/express.hpp"
#include "upb/regression.hpp"

namespace kolvar::test {
namespace {

struct Screen {
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
    std::mt19937 random;

    int any(int from, int to) { return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1)); }
    bool one_in(int n) { return any(1, n) == 1; }

    explicit Screen(unsigned seed) : random(seed) {
        set_start_values(rs);
        rs.Method = one_in(4) ? 3 : 1;
        rs.nIso = 8;
        rs.nSlices = any(20, 260);
        rs.ColU238 = 1, rs.ColU235 = one_in(4) ? 0 : 2, rs.ColTh232 = one_in(4) ? 0 : 3;
        rs.ColPb208 = 4, rs.ColPb207 = 5, rs.ColPb206 = 6, rs.ColPb204 = 7, rs.ColHg = 8;
        rs.HgMass = one_in(8) ? 0 : any(198, 202);
        rs.Hg8_4 = 1.45, rs.Hg9_4 = 2.46, rs.Hg0_4 = 3.36, rs.Hg1_4 = 1.92, rs.Hg2_4 = 4.36, rs.UU8_5 = 137.818;
        rs.set235_Calc = rs.ColU235 != 0 && one_in(4) ? 1 : 0;
        const int rise = any(5, rs.nSlices / 3);
        const bool coarse = one_in(3);  // many equal values
        const bool constant = one_in(12);
        for (int i = 1; i <= rs.nIso; ++i) {
            const double height = 300.0 * any(1, 40);
            for (int t = 1; t <= rs.nSlices; ++t) {
                double cps = any(0, 40) + (t > rise ? height * (0.9 + 0.0002 * any(0, 1000)) : 0);
                if (t > rise && one_in(60)) cps *= any(2, 6);
                if (coarse) cps = 100 * std::floor(cps / 100);
                if (constant && t > rise) cps = height;
                rs.Sig(i, t) = cps;
            }
            rs.BlkMean(i) = one_in(6) ? height : 20.0;  // of a blank above many signals the rest is cut off
            rs.BlkSD(i) = 4.0;
        }
        for (Value* dwell : {&rs.dweU238, &rs.dweU235, &rs.dweTh232, &rs.dwePb208, &rs.dwePb207, &rs.dwePb206})
            *dwell = 0.001 * any(5, 30);
        for (Value* tested : {&rs.setOL_68, &rs.setOL_75, &rs.setOL_082, &rs.setOL_382, &rs.setOL_76})
            *tested = any(0, 1);
        rs.setErr = any(0, 4), rs.setErr_times = any(1, 3), rs.setTzero = any(0, 3), rs.setDelay = any(0, 5);
        rs.setAver = any(0, 2), rs.setConcordia = any(0, 1);
        for (int t = 0; t <= MaxSlices; ++t) {  // of a file before
            rs.MedianSorted(t) = 0.01 * (t % 89);
            rs.Rat75(t) = 0.5 + 0.001 * (t % 13);
            rs.Rat82(t) = 0.3 + 0.001 * (t % 17);
            rs.Rat382(t) = 2 + 0.001 * (t % 19);
        }
        Frm2UP& form = forms.frm2_UP;
        form.pict3.width = form.pict3.height = 4500;
        form.chkHgCorr.value = any(0, 1);
        form.chkShowSD.value = one_in(5) ? 0 : 1;
        for (CheckBox* box : {&form.chk68, &form.chk75, &form.chk82, &form.chkUTh, &form.chk76}) box->value = any(0, 1);
        form.txtSD.text = one_in(10) ? "two" : std::to_string(any(1, 3)) + ".25";
        rs.BlkLow = 1, rs.BlkUpp = one_in(25) ? 1 : rise - 1;
        rs.BlkN = rs.BlkUpp.val();
        rs.BeamStart = one_in(3) ? rise : 0;
        select(rise);
    }

    // Other limits, as a click on the plot sets them.
    void select(int rise) {
        const int length = one_in(12) ? any(1, 3) : any(3, rs.nSlices - rise);
        rs.SelLow = rise + 1 + any(0, std::max(0, rs.nSlices - rise - length));
        rs.SelUpp = rs.SelLow.val() + length - 1;
        rs.SelN = rs.SelNGood = length;
    }
};

// What a click comes to: the outliers, or the kind of the fault that ended it.
template <class Calculate>
std::string outcome(Calculate&& calculate) {
    std::string out;
    try {
        for (const Outlier& outlier : calculate())
            out += std::to_string(outlier.ratio) + ":" + std::to_string(outlier.slice) + " ";
        return out;
    } catch (const Fault& fault) {
        return std::string("fault: ") + fault.what();
    }
}

std::vector<Outlier> quick_click(Context& context) {
    if (context.rs.BeamStart == 0) Search_BeamStart(context.rs);
    calc_express_UP(context);
    Lin_Regr_UP(context);
    return Out_Liers(context.rs, context.forms.frm2_UP);
}

bool same(const Value& a, const Value& b) {
    if (!a.is_number() || !b.is_number()) return a == b;
    return std::bit_cast<std::uint64_t>(a.val()) == std::bit_cast<std::uint64_t>(b.val());
}

// All fields but those of the references, over the slices of the file.
void expect_same_fields(const Screen& quick, const Screen& plain) {
    for (const std::string& name : field_names()) {
        const FieldShape shape = field_shape(name);
        const int last1 = shape.dimensions == 0 ? 0 : shape.last1;
        const bool by_slice = shape.dimensions == 2 && shape.last2 == MaxSlices;
        const int columns = by_slice ? quick.rs.nIso : last1;
        if (shape.dimensions == 2 && !by_slice) continue;
        const int slices = by_slice || last1 == MaxSlices ? quick.rs.nSlices : 0;
        for (int i = 0; i <= (by_slice ? columns : slices > 0 ? slices : last1); ++i)
            for (int j = 0; j <= (by_slice ? slices : 0); ++j)
                ASSERT_TRUE(same(field_get(quick.rs, name, i, j), field_get(plain.rs, name, i, j)))
                    << name << " " << i << " " << j;
    }
}

void expect_same_texts(const Frm2UP& quick, const Frm2UP& plain) {
    ASSERT_EQ(quick.controls.size(), plain.controls.size());
    for (std::size_t k = 0; k < quick.controls.size(); ++k) {
        const Control& a = *quick.controls[k];
        const Control& b = *plain.controls[k];
        EXPECT_EQ(a.enabled, b.enabled) << a.address();
        EXPECT_EQ(a.visible, b.visible) << a.address();
        EXPECT_EQ(a.text, b.text) << a.address();
        EXPECT_EQ(a.back, b.back) << a.address();
    }
    EXPECT_EQ(quick.pict3.canvas.commands().size(), plain.pict3.canvas.commands().size());
}

TEST(RatioPlain, ClickEqualsThePlainReadingThroughRejectionAndOtherLimits) {
    int faults = 0;
    int outliers = 0;
    int rejected = 0;
    int warnings = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const auto quick = std::make_unique<Screen>(seed);
        const auto plain = std::make_unique<Screen>(seed);
        for (int pass = 0; pass < 4; ++pass) {
            SCOPED_TRACE("pass " + std::to_string(pass));
            for (Screen* screen : {quick.get(), plain.get()}) {
                if (pass == 1) screen->rs.RejectOn = true;
                if (pass == 3) screen->select(screen->rs.nSlices / 3);  // flags of before may stay
            }
            const std::string of_quick = outcome([&] { return quick_click(quick->context); });
            const std::string of_plain = outcome([&] { return plain::ratio_click(plain->context); });
            ASSERT_EQ(of_quick, of_plain);
            ASSERT_EQ(quick->os.boxes.size(), plain->os.boxes.size());
            faults += of_plain.starts_with("fault") ? 1 : 0;
            outliers += !of_plain.empty() && !of_plain.starts_with("fault") ? 1 : 0;
            rejected += plain->rs.SelNGood < plain->rs.SelN.val() ? 1 : 0;
            warnings += plain->os.boxes.empty() ? 0 : 1;
            expect_same_fields(*quick, *plain);
            expect_same_texts(quick->forms.frm2_UP, plain->forms.frm2_UP);
            ASSERT_EQ(quick->forms.frm2_Time.lblHgCorrNegative.visible,
                      plain->forms.frm2_Time.lblHgCorrNegative.visible);
            if (HasFailure()) return;
        }
    }
    // The cases are worth something: many find outliers and reject them, some end in a fault, some warn.
    EXPECT_GT(outliers, 100);
    EXPECT_GT(rejected, 50);
    EXPECT_GT(faults, 5);
    EXPECT_GT(warnings, 5);
}

}  // namespace
}  // namespace kolvar::test
