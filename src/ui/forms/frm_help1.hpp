// Help with three faces: a text, what the program is, and how the intervals are marked.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmHelp1 : Form {
    FrmHelp1() : Form("frmHelp1", "KOLVAR  -  Help") {
        put_into(pictAbout, {&lblName, &lblVersion, &lblPurpose, &lblCitationHead, &lblCitation, &cmdCopy});
        put_into(pictCutTime, {&lblBlankHere, &lblSignalHere});
        for (Label& mark : lblMark) put_into(pictCutTime, {&mark});
        for (Label& number : lblCutNumber) put_into(pictCutText, {&number});
        for (Label& text : lblCutText) put_into(pictCutText, {&text});
        txt1.multiline = txt1.locked = true;
        pictCutTime.width = 9600;
        pictCutTime.height = 4500;
        show_face(Face::text);
    }

    enum class Face { text = 1, about = 2, cut_time = 3 };
    // Which of the three the window shows.
    void show_face(Face face) {
        txt1.visible = face == Face::text;
        pictAbout.visible = face == Face::about;
        pictCutTime.visible = pictCutText.visible = face == Face::cut_time;
    }

    Entry txt1{*this, "txt1"};
    Panel pictAbout{*this, "pictAbout"};
    Label lblName{*this, "lblName", "KOLVAR"};
    Label lblVersion{*this, "lblVersion"};
    Label lblPurpose{*this, "lblPurpose", "Reduction of time-resolved LA-ICP-MS data"};
    Label lblCitationHead{*this, "lblCitationHead", "Please cite as:"};
    Label lblCitation{*this, "lblCitation"};
    Button cmdCopy{*this, "cmdCopy", "Copy citation to clipboard"};

    // A sketch of a signal with its four limits, and what each of them is clicked with.
    Picture pictCutTime{*this, "pictCutTime"};
    Label lblBlankHere{*this, "lblBlankHere", "gas blank"};
    Label lblSignalHere{*this, "lblSignalHere", "selected signal"};
    ControlArray<Label> lblMark{*this, "lblMark", 1, 4, ""};  // the numbers of the limits, below their lines
    Panel pictCutText{*this, "pictCutText"};
    ControlArray<Label> lblCutNumber{*this, "lblCutNumber", 1, 4, ""};
    ControlArray<Label> lblCutText{*this, "lblCutText", 1, 8, ""};  // 1 to 4 belong to the numbers

    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace kolvar
