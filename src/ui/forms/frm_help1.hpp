// Help with three faces: a text, what the program is, and how the intervals are marked.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmHelp1 : Form {
    FrmHelp1() : Form("frmHelp1", "KOLVAR  -  Help") {
        put_into(pictAbout, {&lblName, &lblVersion, &lblPurpose, &lblCitationHead, &lblCitation, &cmdCopy});
        txt1.multiline = txt1.locked = true;
        txt1.visible = pictAbout.visible = pictCutTime.visible = false;
    }

    enum class Face { text = 1, about = 2, cut_time = 3 };
    // Which of the three the window shows; to be set before it is opened.
    void show_face(Face face) {
        txt1.visible = face == Face::text;
        pictAbout.visible = face == Face::about;
        pictCutTime.visible = face == Face::cut_time;
    }

    Entry txt1{*this, "txt1"};
    Panel pictAbout{*this, "pictAbout"};
    Label lblName{*this, "lblName", "KOLVAR"};
    Label lblVersion{*this, "lblVersion"};
    Label lblPurpose{*this, "lblPurpose", "Reduction of time-resolved LA-ICP-MS data"};
    Label lblCitationHead{*this, "lblCitationHead", "Please cite as:"};
    Label lblCitation{*this, "lblCitation"};
    Button cmdCopy{*this, "cmdCopy", "Copy citation to clipboard"};
    Picture pictCutTime{*this, "pictCutTime"};
    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace kolvar
