// The readers of the settings file and of the measured blank table.
#pragma once

#include "entries.hpp"
#include "settings/default_file.hpp"
#include "settings/reference_files.hpp"
#include "settings/settings_file.hpp"

namespace kolvar::fuzz {

// A settings file that was read is written so that it reads back and is written the same.
inline void settings(Bytes bytes) {
    static RunState rs;
    static SilentPlatform os(true);
    static ScratchFile file("settings");
    static ScratchFile written("settings-written");
    os.boxes = 0;
    ReadSettings(rs, os, file.write(bytes));
    if (os.boxes != 0) return;
    rs.SetFilePath = written.write({});
    WriteSettings(rs, os);
    const std::string first = read_bytes(rs.SetFilePath);
    ReadSettings(rs, os, rs.SetFilePath);
    WriteSettings(rs, os);
    require(os.boxes == 0);
    require(read_bytes(rs.SetFilePath) == first);
}

// A default file is taken whole or not at all, and what was taken is written so that it reads back the same.
inline void defaults(Bytes bytes) {
    static RunState rs;
    static SilentPlatform os(true);
    static ScratchFile file("defaults");
    static ScratchFile written("defaults-written");
    os.boxes = 0;
    rs.SetFilePath = written.write({});
    WriteDefaults(rs, os);
    const std::string before = read_bytes(rs.SetFilePath);
    ReadDefaults(rs, os, file.write(bytes));
    WriteDefaults(rs, os);
    const std::string first = read_bytes(rs.SetFilePath);
    if (os.boxes != 0) return require(first == before);
    require(rs.setNumSTD.whole() <= MaxStd);
    ReadDefaults(rs, os, rs.SetFilePath);
    WriteDefaults(rs, os);
    require(os.boxes == 0);
    require(read_bytes(rs.SetFilePath) == first);
}

inline void blank_table(Bytes bytes) {
    static RunState rs;
    static ScratchFile file("blank");
    bool faulted = false;
    guarded([&] { LoadBlankTable(rs, file.write(bytes)); }, [&](const Fault&) { faulted = true; });
    require(!faulted || (rs.nBLK == 0 && rs.nBLKraw == 0));
    require(rs.nBLK <= MaxIso && rs.nBLKraw <= MaxSlices);
    for (int i = 1; i <= rs.nBLK; ++i) require(std::isfinite(rs.BLKmean(i)) && std::isfinite(rs.BLKsd(i)));
}

}  // namespace kolvar::fuzz
