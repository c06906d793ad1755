// What holds for each window beside the steps: keys that differ, Enter and Esc, room for its contents.
#include <QAbstractButton>
#include <QShortcut>
#include <set>

#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class SideWindows : public DesktopTest {
protected:
    std::vector<Form*> all() {
        return {&forms.frm_SetIS, &forms.frm_Period,   &forms.frm_InputForm,
                &forms.frmPaste,  &forms.frm_Batch_IS, &forms.frmHelp1};
    }
};

TEST_F(SideWindows, NoTwoControlsOfAWindowHaveTheSameKeys) {
    for (Form* form : all()) {
        show(*form);
        std::multiset<QString> keys;
        for (const auto* button : window(*form).findChildren<QAbstractButton*>())
            if (!button->shortcut().isEmpty()) keys.insert(button->shortcut().toString());
        for (const auto* shortcut : window(*form).findChildren<QShortcut*>()) keys.insert(shortcut->key().toString());
        for (const QString& key : keys) EXPECT_EQ(keys.count(key), 1U) << form->name << " " << key.toStdString();
    }
}

TEST_F(SideWindows, EveryButtonStandsWholeWithinItsWindow) {
    for (Form* form : all()) {
        show(*form);
        QTest::qWait(1);
        for (const Control* control : form->controls) {
            if (control->kind != ControlKind::button) continue;
            const QWidget& button = widget<QWidget>(*control);
            if (!button.isVisible() || button.visibleRegion().isEmpty()) continue;  // to be scrolled to
            EXPECT_GE(button.width(), button.minimumSizeHint().width()) << form->name << "." << control->name;
            EXPECT_GE(button.height(), button.minimumSizeHint().height()) << form->name << "." << control->name;
        }
    }
}

// 960 x 540 are left of a screen of 1920 x 1080 pixels at twice the size; a title bar takes some 30 of them.
TEST_F(SideWindows, WindowsThatDoNotScrollFitAScreenAtTwiceTheSize) {
    for (Form* form : std::initializer_list<Form*>{&forms.frm_Period, &forms.frm_InputForm, &forms.frmPaste}) {
        show(*form);
        QTest::qWait(1);
        EXPECT_LE(window(*form).minimumSizeHint().width(), 960) << form->name;
        EXPECT_LE(window(*form).minimumSizeHint().height(), 510) << form->name;
    }
}

TEST_F(SideWindows, EnterAndEscCloseTheHintOnPasting) {
    show(forms.frmPaste);
    catch_events(forms.frmPaste, "cmdClose", EventKind::click);
    catch_events(forms.frmPaste, "cmdPaste", EventKind::click);
    QTest::keyClick(&window(forms.frmPaste), Qt::Key_Return);
    QTest::keyClick(&window(forms.frmPaste), Qt::Key_Escape);
    ASSERT_EQ(caught.size(), 2U);
    for (const Event& event : caught) EXPECT_EQ(event.control, "cmdClose");
}

TEST_F(SideWindows, TextsOfTheHintOnPastingStandWhole) {
    show(forms.frmPaste);
    for (const Control* control : forms.frmPaste.controls) {
        if (control->kind != ControlKind::label) continue;
        const auto& text = widget<LabelView>(*control);
        EXPECT_GE(text.height(), text.heightForWidth(text.width())) << control->name;
    }
}

TEST_F(SideWindows, TheWindowOfBatchesHasRoomForItsTitleAndClosesByEnterAndEsc) {
    FrmBatchIS& form = forms.frm_Batch_IS;
    show(form);
    const QFontMetrics metrics(window(form).font());
    EXPECT_GT(window(form).width(), metrics.horizontalAdvance(QString::fromStdString(form.title)) + 100);
    catch_events(form, "cmdClose", EventKind::click);
    QTest::keyClick(&window(form), Qt::Key_Return);
    QTest::keyClick(&window(form), Qt::Key_Escape);
    EXPECT_EQ(caught.size(), 2U);
}

}  // namespace
}  // namespace kolvar::test
