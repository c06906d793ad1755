// The reader of the file that names the start kit. The first byte chooses the path, the rest is the file.
#pragma once

#include "entries.hpp"
#include "screens/start_up.hpp"

namespace kolvar::fuzz {

// Whatever the file names, the first window comes up and no fault ends the start. At the most each file is told once:
// the two tables of critical values, which are missing here, the start path, and those of the kit.
inline void start_path(Bytes bytes) {
    static RunState rs;
    static Forms forms;
    static SilentPlatform os;
    static const ScratchFolder folder("start");
    if (bytes.empty()) return;
    constexpr int methods[] = {0, 1, 3};
    const int method = methods[bytes[0] % 3];
    folder.write(method == 0 ? "start_path" : "start_path_KolvAGE", bytes.subspan(1));
    Shell shell;
    Context context{rs, forms, os, shell};
    os.boxes = 0;
    rs.WorkPath.clear();
    start_up(context, method, folder.path());
    require(shell.active() == &forms.frm1_Settings);
    shell.close(forms.frm1_Settings);
    constexpr int tables = 2, start_path_itself = 1, kit_files = 6;
    require(os.boxes >= tables && os.boxes <= tables + start_path_itself + kit_files);
    require(rs.AppPath1 == folder.path());
}

}  // namespace kolvar::fuzz
