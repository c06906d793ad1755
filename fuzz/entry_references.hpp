// The readers of the four reference files and of the tables of critical values. The first byte chooses the reader, the
// rest is the file.
#pragma once

#include "core/stat_tables.hpp"
#include "entries.hpp"
#include "settings/reference_files.hpp"

namespace kolvar::fuzz {

// A file is read to its end or told in one box. Then no count is that of a half read list: it is 0, or the former one.
inline void references(Bytes bytes) {
    // One program for all runs: what a bad file leaves behind is what the next one finds.
    static RunState rs;
    static SilentPlatform os(true);
    static const ScratchFolder folder("tables");
    if (bytes.empty()) return;
    const Bytes content = bytes.subspan(1);
    const int former_stm = rs.nSTM;
    const int former_blk = rs.nBLK;
    rs.AppPath1 = folder.path();
    os.boxes = 0;
    switch (bytes[0] % 6) {
        case 0:
            rs.STCfilePath = folder.write("a.stc", content);
            LoadSTC(rs, os);
            require(os.boxes == 0 || rs.nSTC == 0);
            break;
        case 1:
            rs.STMfilePath = folder.write("a.stm", content);
            LoadSTM(rs, os);
            require(os.boxes == 0 || rs.nSTM == former_stm);
            for (int i = 1; i <= rs.nSTM; ++i) require(os.boxes != 0 || rs.STMcps(i) != 0);
            break;
        case 2:
            rs.BLKfilePath = folder.write("a.blk", content);
            LoadBLK(rs, os);
            require(os.boxes == 0 || rs.nBLK == former_blk);
            break;
        case 3:
            rs.DWEfilePath = folder.write("a.dwe", content);
            LoadDWE(rs, os);
            require(os.boxes == 0 || rs.nDWE == 0);
            break;
        case 4:
            folder.write("grubbs.dat", content);
            LoadGrubbs(rs, os);
            break;
        default:
            folder.write("student.dat", content);
            LoadStudent(rs, os);
            break;
    }
    require(os.boxes <= 1);
    require(rs.nSTC <= MaxSTC && rs.nSTM <= MaxIso && rs.nBLK <= MaxIso && rs.nDWE <= MaxIso);
    for (const Table1<double>* column :
         {&rs.STCcc, &rs.STCerr, &rs.STMcps, &rs.STMsd, &rs.BLKmean, &rs.BLKsd, &rs.DWEms})
        for (int i = 1; i <= column->last(); ++i) require(std::isfinite((*column)(i)));
    for (const Table1<Cell>* column : {&rs.GrubbsP10, &rs.GrubbsP1, &rs.StudentT1, &rs.StudentT6})
        for (int i = 1; i <= column->last(); ++i) require(std::isfinite((*column)(i).val()));
}

}  // namespace kolvar::fuzz
