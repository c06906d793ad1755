// The marked intervals, the clicks that mark them, and the state of the time-selection screen.
#pragma once

#include <string>

#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

struct Intervals {
    Limit SelLow, SelUpp, BlkLow, BlkUpp;  // slices from 1, "" = not marked
    Limit SelN;                            // SelUpp - SelLow + 1, "" after a selection was dropped; may be negative
    int SelNGood = 0, BlkN = 0;
    double SelLowX = 0, SelUppX = 0, BlkLowX = 0, BlkUppX = 0;  // positions on the plot in twips, 0 = not set
    Limit FormerLow, FormerUpp, FormerBlkLow, FormerBlkUpp;     // of the file before, shown as a guide
    double FormerLowX = 0, FormerUppX = 0;
    int BeamStart = 0;
    bool WaitBeamStart = false;

    double ClickX = 0, ClickY = 0;  // twips
    int ClickButton = 0;            // 1 left, 2 right
    int ClickShift = 0;             // 0 no modifier, 1 SHIFT, else other modifiers

    Limit BestLow, BestUpp;    // limits at the start of the last refinement
    bool TrialLimits = false;  // the limits in force are the last pair that a refinement tried
    double ZizzMin68 = 0, ZizzMin75 = 0;
    bool AcceptBest = false, ZizzRunning = false;

    double MaxCps = 0, FullMax = 0, MaxRatio = 0, FullMax2 = 0;
    Value YMaxEntry, YMaxEntry2;  // vertical limits typed or scrolled; "" = none
    double ScaleStep = 0, ScaleStep2 = 0;
    bool LinearView = false;
    bool ScaleFresh = false, ScaleFresh2 = false, AutoScale1 = false, AutoScale2 = false;
    int PlotPool = 1, RatioScale = 0, PlotOn = 0, PlotState = 0;
    std::string ShowFirst;
    std::string ReturnTo;     // window that follows the settings window: "back to start", "back to time" or ""
    std::string SaveRequest;  // holds a marker while the settings window saves
    int CurvesShown = 0;
    Table1<bool> CurveOn{MaxCurveFlags};
    int Curve1 = 0, Curve2 = 0, Curve3 = 0, Curve4 = 0, Curve5 = 0, Curve6 = 0;  // columns of the single curves
    Table1<int> RatioCol{MaxRatioName};  // columns of the six pairs, 0..11: numerator, denominator, ...; 0 = none
    int WindowWasNormal = 0, CameBack = 0;
    bool AspectFix = false;
};

}  // namespace kolvar
