// The help menus: which documents they name, and the three faces of the help window.
#include <algorithm>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;

// A system that has nothing to open a document or a page with.
class HelplessPlatform : public ScriptedPlatform {
public:
    bool open_document(const std::string& path) override {
        opened.push_back(path);
        return false;
    }
};

class Help : public ProgramOnKit {
protected:
    Help() { program->start(0); }
    FrmHelp1& help() { return forms().frmHelp1; }
    void choose_entry(int entry) { click(forms().frm1_Settings, "hlp1", entry); }
    bool faces(bool text, bool about, bool cut_time) {
        return help().txt1.visible == text && help().pictAbout.visible == about &&
               help().pictCutTime.visible == cut_time && help().pictCutText.visible == cut_time;
    }
};

TEST_F(Help, EntriesHandTheirDocumentsOfTheProgramsFolderToTheSystem) {
    const std::pair<int, const char*> documents[] = {{2, "kol-steps.pdf"},  {3, "Intro-to-Kolvar-H.pdf"},
                                                     {4, "kol-files.pdf"},  {5, "Example-files-for-Kolvar.pdf"},
                                                     {6, "kol-equ-01.pdf"}, {7, "kol-out.pdf"}};
    for (const auto& [entry, name] : documents) {
        folder.write(name, "%PDF");
        choose_entry(entry);
        ASSERT_FALSE(os.opened.empty()) << name;
        EXPECT_EQ(os.opened.back(), folder.path(name));
    }
    EXPECT_EQ(os.opened.size(), 6U);
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(Help, WhatCantBeOpenedIsToldByItsPathOrAddress) {
    HelplessPlatform helpless;
    program = std::make_unique<Program>(helpless, folder.path());
    program->start(0);
    choose_entry(4);
    ASSERT_EQ(helpless.boxes.size(), 1U);
    EXPECT_EQ(helpless.boxes[0].text, "The help document was not found:\n" + folder.path("kol-files.pdf"));
    EXPECT_EQ(helpless.boxes[0].title, "KOLVAR");
    EXPECT_EQ(helpless.boxes[0].kind, "warning");
    choose_entry(9);
    ASSERT_EQ(helpless.boxes.size(), 2U);
    EXPECT_EQ(helpless.boxes[1].text, "The page could not be opened:\n" + helpless.opened.back());
    program.reset();
}

TEST_F(Help, ImportantPointsShowTheTextFile) {
    folder.write("kol-read-me.riz",
                 "\xEF\xBB\xBF"
                 "1. Mark.\r\n2. Error \xC2\xB1 s.d.\r\n");
    choose_entry(1);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frmHelp1"}));
    EXPECT_TRUE(faces(true, false, false));
    EXPECT_EQ(help().txt1.text, "1. Mark.\r\n2. Error \xC2\xB1 s.d.\r\n");
    EXPECT_TRUE(help().txt1.locked);
    type(help(), "txt1", "nothing can be typed into it");
    EXPECT_EQ(help().txt1.text, "1. Mark.\r\n2. Error \xC2\xB1 s.d.\r\n");
}

TEST_F(Help, WithoutTheTextFileABoxComesAndNoWindow) {
    choose_entry(1);
    EXPECT_EQ(box_texts(), Names{"The help document was not found:\n" + folder.path("kol-read-me.riz")});
    EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
}

TEST_F(Help, HomepageIsTheAddressThatTheCitationNames) {
    choose_entry(10);
    choose_entry(9);
    ASSERT_EQ(os.opened.size(), 1U);
    const std::string address = os.opened[0];
    EXPECT_TRUE(address.starts_with("http")) << address;
    EXPECT_TRUE(help().lblCitation.text.ends_with(" " + address)) << help().lblCitation.text;
    EXPECT_EQ(box_texts(), Names{});
}

TEST_F(Help, AboutShowsTheVersionOfTheStartPanel) {
    const std::string version = forms().frm1_Settings.lblVersion.text;
    ASSERT_TRUE(version.starts_with("Version ")) << version;
    EXPECT_GT(version.size(), std::string("Version ").size());
    choose_entry(10);
    EXPECT_TRUE(faces(false, true, false));
    EXPECT_EQ(help().lblVersion.text, version);
    const std::string number = version.substr(std::string("Version ").size());
    EXPECT_TRUE(help().lblCitation.text.starts_with("KOLVAR, version " + number +
                                                    ": reduction of time-resolved LA-ICP-MS data. "))
        << help().lblCitation.text;
}

TEST_F(Help, CitationGoesToTheClipboardAsItIsShown) {
    choose_entry(10);
    os.clip = "what was there";
    click(help(), "cmdCopy");
    EXPECT_FALSE(help().lblCitation.text.empty());
    EXPECT_EQ(os.clip, help().lblCitation.text);
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frmHelp1"}));
}

TEST_F(Help, OpenWindowChangesItsFace) {
    folder.write("kol-read-me.riz", "text");
    choose_entry(10);
    choose_entry(1);
    EXPECT_TRUE(faces(true, false, false));
    EXPECT_EQ(shown_windows(), (Names{"frm1_Settings", "frmHelp1"}));
    choose_entry(10);
    EXPECT_TRUE(faces(false, true, false));
}

TEST_F(Help, CloseAndCloseBoxLeadBack) {
    for (const bool by_button : {true, false}) {
        choose_entry(10);
        EXPECT_EQ(help().focus_wanted, &help().cmdClose);
        if (by_button)
            click(help(), "cmdClose");
        else
            close(help());
        EXPECT_EQ(shown_windows(), Names{"frm1_Settings"});
    }
    EXPECT_FALSE(program->ended());
}

TEST_F(Help, MarkingIsExplainedByASketchInTheColoursOfThePlots) {
    go_to_marked_selection();
    const RunState& state = rs();
    const int low = state.SelLow.val(), upp = state.SelUpp.val();
    click(forms().frm2_Time, "hlp2");
    EXPECT_EQ(shown_windows(), (Names{"frm2_Time", "frmHelp1"}));
    EXPECT_TRUE(faces(false, false, true));

    // Blank on its tint, what lies outside the selection on the other one, the selected signal on white: so the fields
    // and lines stand in the order blank, blank, signal, signal.
    const Canvas& canvas = help().pictCutTime.canvas;
    std::vector<double> blank_lines, signal_lines;
    const DrawCommand* blank = nullptr;
    for (const DrawCommand& command : canvas.commands()) {
        if (command.kind == DrawCommand::Kind::fill_rect && command.colour == pale_cyan) blank = &command;
        if (command.kind != DrawCommand::Kind::line || command.x1 != command.x2) continue;
        if (command.colour == palette(3)) blank_lines.push_back(command.x1);
        if (command.colour == palette(6)) signal_lines.push_back(command.x1);
    }
    ASSERT_NE(blank, nullptr);
    ASSERT_EQ(blank_lines.size(), 2U);
    ASSERT_EQ(signal_lines.size(), 2U);
    EXPECT_EQ(blank->x1, blank_lines[0]);
    EXPECT_EQ(blank->x2, blank_lines[1]);
    EXPECT_LT(blank_lines[0], blank_lines[1]);
    EXPECT_LT(blank_lines[1], signal_lines[0]);
    EXPECT_LT(signal_lines[0], signal_lines[1]);
    EXPECT_LT(signal_lines[1], help().pictCutTime.width);
    // Each number stands below its line and tells the click that puts it there.
    const Names clicks{"SHIFT + left click", "SHIFT + right click", "Left click", "Right click"};
    const std::vector<double> lines{blank_lines[0], blank_lines[1], signal_lines[0], signal_lines[1]};
    for (int limit = 1; limit <= 4; ++limit) {
        const auto at = static_cast<std::size_t>(limit - 1);
        EXPECT_EQ(help().lblMark(limit).text, std::to_string(limit));
        EXPECT_NEAR(help().lblMark(limit).left, lines[at], 100);
        EXPECT_EQ(help().lblCutNumber(limit).text, std::to_string(limit));
        EXPECT_TRUE(help().lblCutText(limit).text.starts_with(clicks[at])) << limit;
    }

    click(help(), "cmdClose");
    EXPECT_EQ(shown_windows(), Names{"frm2_Time"});
    EXPECT_EQ(state.SelLow.val(), low);  // the explanation marks nothing
    EXPECT_EQ(state.SelUpp.val(), upp);
}

TEST_F(Help, SketchLiesWithinItsPicture) {
    go_to_marked_selection();
    click(forms().frm2_Time, "hlp2");
    const Picture& picture = help().pictCutTime;
    EXPECT_GT(picture.canvas.commands().size(), 100U);
    for (const DrawCommand& command : picture.canvas.commands()) {
        if (command.kind != DrawCommand::Kind::line && command.kind != DrawCommand::Kind::fill_rect) continue;
        const auto [left, right] = std::minmax(command.x1, command.x2);
        const auto [top, bottom] = std::minmax(command.y1, command.y2);
        EXPECT_GE(left, 0);
        EXPECT_LE(right, picture.width);
        EXPECT_GE(top, 0);
        EXPECT_LE(bottom, picture.height);
    }
    const int draws = picture.canvas.draws();
    const std::size_t commands = picture.canvas.commands().size();
    click(forms().frm2_Time, "hlp2");  // drawn anew, not upon itself
    EXPECT_EQ(picture.canvas.draws(), draws + 1);
    EXPECT_EQ(picture.canvas.commands().size(), commands);
}

}  // namespace
}  // namespace kolvar::test
