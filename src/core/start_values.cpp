#include <array>

#include "core/run_state.hpp"

namespace kolvar {
namespace {

constexpr std::array<const char*, 12> flex_catalogue = {"ThO248", "UO254", "Zr91",  "Ca43",  "Sm147", "Pt195",
                                                        "Pt198",  "U238",  "Th230", "Th232", "U233",  "U235"};

}  // namespace

void set_start_values(RunState& rs) {
    rs.setBzzPlot = 0;
    rs.setBzzMethod = 0;
    rs.Method = 0;
    // The slots behind the catalogue stay unset: an empty column head is their equal.
    for (std::size_t i = 0; i < flex_catalogue.size(); ++i) rs.FlexIso(static_cast<int>(i) + 1) = flex_catalogue[i];
    for (int k = 1; k <= MaxShow; ++k) rs.setRatioShow(k) = 1;

    rs.PrevSlices = 0;
    rs.SelCount = 0;
    rs.CurvesShown = 0;
    rs.ModeData = 0;
    rs.ModeCreateBLK = 0;
    rs.ModeCreateSTM = 0;
    rs.DwellUniform = 0.02;
    rs.KeepData = false;
    rs.RefsMatched = false;
    rs.HgChosen = true;
    rs.BeamStart = 0;
    rs.RejProcName = " 5";
    rs.RatioScale = 20;
    rs.RejectOn = false;
    rs.ShowFirst = "elso";
    rs.WaitBeamStart = false;
    rs.SeqMode = "";
    rs.SeqPhase = 0;
    rs.setPasteDat = 1;
    rs.PlotState = 0;

    for (int i = 1; i <= MaxCurveFlags; ++i) rs.CurveOn(i) = true;
    rs.AutoScale1 = false;
    rs.AutoScale2 = false;
    rs.Lambda238 = 1.55125 * 1e-10;
    rs.Lambda235 = 9.8485 * 1e-10;
}

}  // namespace kolvar
