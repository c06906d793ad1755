// The four grounds of the periodic system must differ for everybody, and black must be readable on each.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "ui/forms/frm_period.hpp"

namespace kolvar::test {
namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

// What a dichromat sees, in linear red, green and blue: Machado, Oliveira and Fernandes (2009), A physiologically-based
// model for simulation of color vision deficiency, IEEE Transactions on Visualization and Computer Graphics 15,
// 1291-1298, severity 1.0.
constexpr Matrix normal = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix protanopia = {
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix deuteranopia = {
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix tritanopia = {
    {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};

Vector times(const Matrix& matrix, const Vector& v) {
    Vector out{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t k = 0; k < 3; ++k) out[row] += matrix[row][k] * v[k];
    return out;
}

// sRGB (IEC 61966-2-1) to linear components of 0 to 1.
Vector linear(Colour colour) {
    Vector out{};
    for (unsigned k = 0; k < 3; ++k) {
        const double c = static_cast<double>((colour.rgb >> (16U - 8U * k)) & 0xFFU) / 255;
        out[k] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    }
    return out;
}

// CIE 1976 L*a*b* under D65.
Vector lab(const Vector& rgb) {
    constexpr Matrix to_xyz = {
        {{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}};
    const Vector seen{std::clamp(rgb[0], 0.0, 1.0), std::clamp(rgb[1], 0.0, 1.0), std::clamp(rgb[2], 0.0, 1.0)};
    const Vector xyz = times(to_xyz, seen);
    const auto f = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const double x = f(xyz[0] / 0.95047), y = f(xyz[1]), z = f(xyz[2] / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double distance(Colour one, Colour other, const Matrix& eye) {
    const Vector a = lab(times(eye, linear(one))), b = lab(times(eye, linear(other)));
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

// Web Content Accessibility Guidelines 2.1: (L1 + 0.05) / (L2 + 0.05) of the relative luminances.
double contrast_with_black(Colour ground) {
    const Vector c = linear(ground);
    return (0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2] + 0.05) / 0.05;
}

TEST(PeriodColours, TheSimulationsLeaveGreysAndMakeTheirConfusions) {
    for (const Matrix* eye : {&protanopia, &deuteranopia, &tritanopia})
        for (const Vector& row : *eye) EXPECT_NEAR(row[0] + row[1] + row[2], 1, 2e-6);
    // A red and a green that differ by far for a normal eye come close for a red-green blind one.
    const Colour red = rgb(200, 60, 60), green = rgb(120, 110, 50);
    EXPECT_LT(distance(red, green, deuteranopia), distance(red, green, normal) / 2);
}

TEST(PeriodColours, AnyTwoOfTheFourDifferForEveryEye) {
    // 2.3 is a just noticeable difference (Mahy et al. 1994).
    constexpr double least = 20;
    for (const Matrix* eye : {&normal, &protanopia, &deuteranopia, &tritanopia})
        for (int one = 0; one < 4; ++one)
            for (int other = 0; other < one; ++other)
                EXPECT_GT(distance(FrmPeriod::colours[one], FrmPeriod::colours[other], *eye), least)
                    << one << " " << other;
}

TEST(PeriodColours, BlackIsReadableOnEach) {
    EXPECT_NEAR(contrast_with_black(rgb(255, 255, 255)), 21, 1e-9);
    for (const Colour ground : FrmPeriod::colours) EXPECT_GE(contrast_with_black(ground), 4.5);
}

TEST(PeriodColours, TheControlsWearThem) {
    FrmPeriod form;
    EXPECT_EQ(form.Label1.back, FrmPeriod::colours[1]);
    EXPECT_EQ(form.Label2.back, FrmPeriod::colours[2]);
    EXPECT_EQ(form.Label3.back, FrmPeriod::colours[3]);
    for (int k = 1; k <= 96; ++k) {
        EXPECT_EQ(form.lblEle(k).back, FrmPeriod::colours[0]);
        EXPECT_EQ(form.lblEle(k).fore, palette(0));
    }
}

}  // namespace
}  // namespace kolvar::test
