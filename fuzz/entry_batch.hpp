// The reader of the master file.
#pragma once

#include "batch/master_file.hpp"
#include "entries.hpp"
#include "ui/forms/frm_file_list.hpp"

namespace kolvar::fuzz {

// A master file is taken whole or not at all, and what was taken is written so that it reads back the same.
inline void master_file(Bytes bytes) {
    static RunState rs;
    static FrmFileList window;
    static SilentPlatform os;
    static ScratchFile file("master");
    static ScratchFile written("master-written");
    const std::string& copy = written.write({});
    rs.ListMode = 1;
    os.boxes = 0;
    const auto saved = [&] {
        require(SaveMaster(rs, os, window.FlexGrid2, copy));
        return read_bytes(copy);
    };
    const std::string before = saved();
    const int phase = rs.SeqPhase;
    bool faulted = false;
    guarded([&] { ReadMaster(rs, file.write(bytes)); }, [&](const Fault&) { faulted = true; });
    const std::string first = saved();
    if (faulted) return require(first == before && rs.SeqPhase == phase);
    require(rs.SeqCount >= 0 && rs.SeqCount <= MaxMaster);
    for (int r = rs.SeqCount + 1; r <= MaxMaster; ++r) require(rs.MasterRecs(r, 0).is_unset());
    const int taken = rs.SeqPhase;
    ReadMaster(rs, copy);
    require(saved() == first && rs.SeqPhase == taken && os.boxes == 0);
}

}  // namespace kolvar::fuzz
