// The reader of tables on the clipboard.
#pragma once

#include "entries.hpp"
#include "import/data_file.hpp"
#include "import/paste.hpp"

namespace kolvar::fuzz {

// Whatever the clipboard holds becomes a measurement, or the window that tells why not: never both, never a box but for
// nothing at all.
inline void clipboard(Bytes bytes) {
    class Clipboard : public SilentPlatform {
    public:
        std::string text;
        std::string clipboard() override { return text; }
    };
    static RunState rs;
    static Forms forms;
    static Clipboard os;
    static Shell shell;
    Context context{rs, forms, os, shell};
    os.text = to_text(text_of(bytes));
    os.boxes = 0;
    shell.close(forms.frmPaste);
    rs.setCPS_IS = 1;
    ClearData(rs);
    rs.DataFileName = "  ";
    PasteData(context);
    require(rs.nIso >= 0 && rs.nIso <= MaxIso);
    require(rs.nSlices >= 0 && rs.nSlices <= MaxSlices);
    if (os.text.empty()) return require(os.boxes == 1 && !forms.frmPaste.shown);
    require(forms.frmPaste.shown || rs.DataFileName == " pasted from clipboard ");
    if (forms.frmPaste.shown) return;
    require(rs.nIso >= 2 && rs.nSlices >= 3);
    for (int i = 1; i <= rs.nIso; ++i) {
        require(!rs.IsoName(i).empty() && !is_numeric(rs.IsoName(i)));
        for (int j = 1; j <= rs.nSlices; ++j) require(std::isfinite(rs.Sig(i, j)));
    }
}

}  // namespace kolvar::fuzz
