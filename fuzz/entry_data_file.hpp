// The readers of raw tables. The first bytes choose reader and profile, the rest is the file.
#pragma once

#include "entries.hpp"
#include "import/data_file.hpp"

namespace kolvar::fuzz {

inline void data_file(Bytes bytes) {
    constexpr std::size_t head = 4;
    if (bytes.size() < head) return;
    // One program for all runs: what a file leaves behind is what the next one finds, as with a user.
    static RunState rs;
    static Forms forms;
    static SilentPlatform os(true);
    static Shell shell;
    static ScratchFile file("table");
    Context context{rs, forms, os, shell};

    const auto profile = [&](std::size_t at) { return Value(static_cast<int>(bytes[at] % 16U) - 1); };
    rs.setCSVisoLINE = rs.setTXTisoLINE = rs.setXLisoLINE = profile(1);
    rs.setCSVdatLINE = rs.setTXTdatLINE = rs.setXLdatLINE = profile(2);
    rs.setCSVfirstCOL = rs.setTXTfirstCOL = rs.setXLfirstCOL = profile(3);
    rs.setCPS_IS = bytes[0] / 4U % 2U == 0 ? 1 : 0;
    rs.setIS_Dwell = 20;
    rs.DataFilePath = file.write(bytes.subspan(head));
    os.boxes = 0;
    ClearData(rs);
    switch (bytes[0] % 4U) {
        case 0:
            LoadCSV(context, rs.DataFilePath);
            break;
        case 1:
            LoadTXT(context, rs.DataFilePath);
            break;
        default:
            LoadXL(context, rs.DataFilePath);
            break;
    }
    require(os.boxes <= 2);
    require(rs.nIso >= 0 && rs.nIso <= MaxIso);
    require(rs.nSlices >= 0 && rs.nSlices <= MaxSlices);
    for (int i = 1; i <= rs.nIso; ++i) {
        require(rs.IsoCanon(i).size() <= rs.IsoName(i).size());
        for (int j = 1; j <= rs.nSlices; ++j) require(std::isfinite(rs.Sig(i, j)));
    }
}

}  // namespace kolvar::fuzz
