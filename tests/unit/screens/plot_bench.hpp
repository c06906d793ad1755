// What the tests of marks and plots share: a program without its surface, and the drawing commands sorted by kind.
#pragma once

#include <string>
#include <vector>

#include "support/test_support.hpp"
#include "ui/context.hpp"

namespace kolvar::test {

// A measurement of `isotopes` columns by `slices`, all 0, in a time window of 9000 by 1000 twips a plot at (1000, 500)
// and (1000, 2000); all curves, linear, concentrations wanted, blank from the data file.
struct PlotBench {
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
    Frm2Time& frm = forms.frm2_Time;

    PlotBench(int isotopes, int slices) {
        set_start_values(rs);
        rs.nIso = isotopes;
        rs.nSlices = slices;
        rs.ModeData = 1;
        rs.BlankFromData = 1;
        rs.setAllCurve = 1;
        rs.setRatio_ppmIS = 0;
        rs.setISnum = 1;
        rs.CurvesShown = 1;
        rs.LinearView = true;
        for (int i = 1; i <= isotopes; ++i) rs.IsoISidx(i) = 1;
        size(frm.pict1, 1000, 500, 9000, 1000);
        size(frm.pict2, 1000, 2000, 9000, 1000);
        frm.lblLow.width = 600;
    }

    static void size(Picture& plot, int left, int top, int width, int height) {
        plot.place(left, top);
        plot.width = width;
        plot.height = height;
    }

    void signal(int isotope, const std::vector<double>& cps) {
        for (std::size_t t = 0; t < cps.size(); ++t) rs.Sig(isotope, static_cast<int>(t) + 1) = cps[t];
    }
    void net_signal(int isotope, const std::vector<double>& cps) {
        for (std::size_t t = 0; t < cps.size(); ++t) rs.Sig2(isotope, static_cast<int>(t) + 1) = cps[t];
    }
    void only_curve(int isotope) {
        for (int j = 1; j <= MaxCurveFlags; ++j) rs.CurveOn(j) = j == isotope;
    }
};

inline std::vector<DrawCommand> commands(const Picture& plot, DrawCommand::Kind kind) {
    std::vector<DrawCommand> found;
    for (const DrawCommand& command : plot.canvas.commands())
        if (command.kind == kind) found.push_back(command);
    return found;
}

inline std::vector<DrawCommand> lines(const Picture& plot, Colour colour) {
    std::vector<DrawCommand> found;
    for (const DrawCommand& command : commands(plot, DrawCommand::Kind::line))
        if (command.colour == colour) found.push_back(command);
    return found;
}

// All that a list holds but Clear, labels and line widths, as "kind colour x1 y1 x2 y2".
inline std::vector<std::string> drawn(const Picture& plot) {
    std::vector<std::string> found;
    for (const DrawCommand& command : plot.canvas.commands()) {
        const bool line = command.kind == DrawCommand::Kind::line;
        if (!line && command.kind != DrawCommand::Kind::fill_rect) continue;
        std::string text = line ? "line" : "fill";
        text += " " + std::to_string(command.colour.rgb >> 16U) + "," +
                std::to_string((command.colour.rgb >> 8U) & 255U) + "," + std::to_string(command.colour.rgb & 255U);
        for (const double at : {command.x1, command.y1, command.x2, command.y2})
            text += " " + std::to_string(static_cast<int>(at));
        found.push_back(text);
    }
    return found;
}

}  // namespace kolvar::test
