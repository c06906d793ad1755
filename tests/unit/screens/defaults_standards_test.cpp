// The table of reference standards in the window of the U/Pb defaults.
#include <array>

#include "unit/screens/program_fixture.hpp"

namespace kolvar::test {
namespace {

using Names = std::vector<std::string>;
const char* const refused = "Type positive numbers to the records of standards, please.";

class StandardsWindow : public ProgramOnKit {
protected:
    FrmSetUP& form() { return forms().frm_SetUP; }
    void open() {
        if (program->shell().active() == nullptr) program->start(1);
        click(forms().frm1_Settings, "cmdSet_1");
    }
    void type_at(const char* control, int index, const std::string& text) {
        Event event = event_of(EventKind::type, form(), control, index);
        event.text = text;
        program->dispatch(event);
    }
    void leave(const char* control, int index) {
        program->dispatch(event_of(EventKind::leave, form(), control, index));
    }
    void add(const std::string& name) {
        click(form(), "cmdNewSTD");
        type(form(), "txtNewSTD", name);
        click(form(), "cmdOKnewSTD");
    }
    Names row_in_fields() {
        Names texts;
        for (const Entry& entry : form().txtStd) texts.push_back(entry.text);
        for (const Entry& entry : form().txtStdEr) texts.push_back(entry.text);
        return texts;
    }
    Names row_in_table(int row) {
        Names texts;
        for (const Table1<Value>* column : std::initializer_list<const Table1<Value>*>{
                 &rs().Std_Abbr, &rs().Std_U, &rs().Std_Th, &rs().Std_Pb, &rs().Std_68, &rs().Std_75, &rs().Std_82,
                 &rs().Std_76, &rs().Std_Age})
            texts.push_back((*column)(row).text());
        for (int k = 1; k <= 8; ++k) texts.push_back(rs().Std_Er(k, row).text());
        return texts;
    }
};

TEST_F(StandardsWindow, ShowsThePreferredStandardFirstAndThenTheChosenOne) {
    program->start(1);
    rs().setPrefSTD = 1;
    open();
    EXPECT_EQ(form().comboStd.items, (Names{"91500", "GJ-1", "Plesovice", "Temora-2", "Mud Tank", "FC-1"}));
    EXPECT_EQ(row_in_fields(), (Names{"GJ-1", "0", "0", "0", "0.09781", "0.81028", "0.03012", "0.06011", "601.6", "0",
                                      "0", "0", "0", "0", "0", "0", "0"}));
    choose(form(), "comboStd", "FC-1");
    EXPECT_EQ(row_in_fields(), (Names{"FC-1", "0", "0", "0", "0.18588", "1.95078", "0.05588", "0.07615", "1099", "0",
                                      "0", "0", "0", "0", "0", "0", "0"}));
}

TEST_F(StandardsWindow, AllFieldsOfTheScreenAreStoredWhenOneIsLeftAndCancelKeepsThem) {
    open();
    const Names second = row_in_table(2);
    type_at("txtStd", 0, "9-15");
    for (int k = 1; k <= 8; ++k) {
        type_at("txtStd", k, std::to_string(k) + ".5");
        type_at("txtStdEr", k, "0.0" + std::to_string(k));
    }
    EXPECT_EQ(rs().Std_Abbr(1), Value("91500"));
    leave("txtStdEr", 4);
    const Names stored{"9-15", "1.5",  "2.5",  "3.5",  "4.5",  "5.5",  "6.5",  "7.5", "8.5",
                       "0.01", "0.02", "0.03", "0.04", "0.05", "0.06", "0.07", "0.08"};
    EXPECT_EQ(row_in_table(1), stored);
    EXPECT_TRUE(rs().Std_68(1).is_number() && rs().Std_Er(8, 1).is_number());
    EXPECT_EQ(row_in_table(2), second);
    click(form(), "cmdCancel");
    EXPECT_EQ(row_in_table(1), stored);
}

TEST_F(StandardsWindow, NoughtPassesAndAnEmptyFieldDoesNot) {
    open();
    const struct {
        const char* text;
        bool passes;
    } tried[] = {{"0", true},   {" 2.5 ", true}, {"1e-3", true}, {".5", true}, {"", false},    {" ", false},
                 {"-1", false}, {"-0", true},    {"1,5", false}, {"x", false}, {"12x", false}, {"-0.001", false}};
    for (const auto& [text, passes] : tried)
        for (const char* control : {"txtStd", "txtStdEr"}) {
            const Names former = row_in_table(1);
            forget_boxes();
            form().focus_wanted = nullptr;
            Control& field = *form().find(control, 4);
            type_at(control, 4, text);
            leave(control, 4);
            EXPECT_EQ(box_texts(), passes ? Names{} : Names{refused}) << control << " " << text;
            EXPECT_EQ(form().focus_wanted, passes ? nullptr : &field) << control << " " << text;
            if (!passes) {
                EXPECT_EQ(row_in_table(1), former) << control << " " << text;
                EXPECT_EQ(os.boxes[0].title, "");
            }
            type_at(control, 4, "1");
            leave(control, 4);
        }
}

TEST_F(StandardsWindow, TheAbbreviationIsAnyTextAndIsStoredWithTheRestAsItStands) {
    open();
    type_at("txtStd", 3, "bad");
    type_at("txtStd", 0, "-5, \"x\"");
    leave("txtStd", 0);
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_EQ(rs().Std_Abbr(1), Value("-5, \"x\""));
    EXPECT_EQ(rs().Std_Pb(1), Value(0));
}

TEST_F(StandardsWindow, WithoutAChosenStandardNothingIsStored) {
    program->start(1);
    rs().setPrefSTD = -1;
    open();
    EXPECT_EQ(row_in_fields(), Names(17, ""));
    const Names former = row_in_table(1);
    type_at("txtStd", 4, "5");
    leave("txtStd", 4);
    type_at("txtStd", 0, "name");
    leave("txtStd", 0);
    EXPECT_EQ(row_in_table(1), former);
    EXPECT_TRUE(rs().Std_68(0).is_unset() && rs().Std_Abbr(0).is_unset());
    EXPECT_EQ(box_texts(), Names{});
}

// After a new name none is chosen; the empty fields let the tabulator pass.
TEST_F(StandardsWindow, EmptyFieldsOfNoStandardCanBeLeft) {
    open();
    add("own");
    EXPECT_EQ(form().comboStd.value, -1);
    EXPECT_EQ(row_in_fields(), Names(17, ""));
    form().focus_wanted = nullptr;
    leave("txtStd", 1);
    leave("txtStdEr", 8);
    EXPECT_EQ(box_texts(), Names{});
    EXPECT_EQ(form().focus_wanted, nullptr);
    type_at("txtStd", 1, "x");
    leave("txtStd", 1);
    EXPECT_EQ(box_texts(), Names{refused});
}

TEST_F(StandardsWindow, TheNamesCanNotBeTyped) {
    open();
    type(form(), "comboStd", "9");
    EXPECT_EQ(box_texts(), Names{"You can not type directly here. The names of standards are not variable."});
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(form().comboStd.text, "91500");
    EXPECT_EQ(form().comboStd.value, 0);
}

TEST_F(StandardsWindow, ANewRowSaysTypeHereAndHoldsOnesAndStaysAfterCancel) {
    open();
    EXPECT_FALSE(form().Picture2.visible);
    click(form(), "cmdNewSTD");
    EXPECT_TRUE(form().Picture2.visible);
    click(form(), "cmdOKnewSTD");  // without a name nothing happens
    EXPECT_TRUE(form().Picture2.visible);
    EXPECT_EQ(rs().setNumSTD, Value(6));
    click(form(), "cmdCancelNewStd");
    EXPECT_FALSE(form().Picture2.visible);
    add("Own, \"new\"");
    EXPECT_FALSE(form().Picture2.visible);
    EXPECT_EQ(form().txtNewSTD.text, "");
    EXPECT_EQ(form().comboStd.items.back(), "Own, \"new\"");
    EXPECT_EQ(form().comboStd.items.size(), 7U);
    click(form(), "cmdCancel");
    EXPECT_EQ(rs().setNumSTD, Value(7));
    EXPECT_EQ(rs().setPrefSTD, Value(0));
    EXPECT_EQ(rs().Std_Name(7), Value("Own, \"new\""));
    EXPECT_EQ(row_in_table(7),
              (Names{"type here", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1", "1"}));
    open();
    EXPECT_FALSE(form().Picture2.visible);
    EXPECT_EQ(form().comboStd.items.size(), 7U);
}

TEST_F(StandardsWindow, TheThirtyFirstStandardIsRefusedAndNothingChanges) {
    open();
    for (int row = 7; row <= 30; ++row) add("standard " + std::to_string(row));
    EXPECT_EQ(rs().setNumSTD, Value(30));
    EXPECT_EQ(box_texts(), Names{});
    const Names last = row_in_table(30);
    add("one more");
    EXPECT_EQ(box_texts(), Names{"The table of standards is full: 30 standards at most."});
    EXPECT_EQ(os.boxes[0].title, "");
    EXPECT_EQ(rs().setNumSTD, Value(30));
    EXPECT_EQ(rs().Std_Name(30), Value("standard 30"));
    EXPECT_EQ(row_in_table(30), last);
    EXPECT_EQ(form().comboStd.items.size(), 30U);
    EXPECT_EQ(form().txtNewSTD.text, "one more");
    // All thirty come back from a file.
    os.saves.emplace_back(folder.path("thirty.def"));
    click(form(), "cmdSaveAs");
    os.opens = {kit("KolvAge-default-b01.def"), folder.path("thirty.def")};
    click(forms().frm1_Settings, "cmdChooseSET");
    EXPECT_EQ(rs().setNumSTD, Value(6));
    click(forms().frm1_Settings, "cmdChooseSET");
    EXPECT_EQ(rs().setNumSTD, Value(30));
    EXPECT_EQ(rs().Std_Name(30), Value("standard 30"));
}

TEST_F(StandardsWindow, WithoutAnyStandardTheListIsEmptyAndAFirstOneCanBeAdded) {
    program->start(1);
    rs().setNumSTD = 0;
    open();
    EXPECT_TRUE(form().comboStd.items.empty());
    EXPECT_EQ(form().comboStd.value, -1);
    add("first");
    choose(form(), "comboStd", "first");
    EXPECT_EQ(row_in_fields()[0], "type here");
    type_at("txtStd", 0, "abc");
    leave("txtStd", 0);
    EXPECT_EQ(rs().Std_Abbr(1), Value("abc"));
    click(form(), "cmdApply");
    EXPECT_EQ(rs().setPrefSTD, Value(0));
    EXPECT_EQ(rs().setNumSTD, Value(1));
}

}  // namespace
}  // namespace kolvar::test
