// The windows of the defaults on a screen of 1280 x 800: nothing scrolls, every text stands whole, keys reach the
// buttons.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>

#include "desktop_fixture.hpp"
#include "qt/widgets.hpp"

namespace kolvar::test {
namespace {

class DefaultsLayout : public DesktopTest {
protected:
    // What a display of 1280 x 800 leaves between its panel, the title of the window and its edges.
    static constexpr int room_across = 1260, room_down = 710;

    void open(Form& form, int method) {
        program.start(method);
        os.boxes.clear();
        form.width = room_across * 15;
        form.height = room_down * 15;
        program.shell().open(form);
        desktop.sync();
        ASSERT_TRUE(QTest::qWaitForWindowActive(desktop.window(form)));
    }
    void expect_no_scrolling(const Form& form) {
        QTest::qWait(1);
        const auto* area = window(form).findChild<QScrollArea*>();
        ASSERT_NE(area, nullptr);
        const QSize wanted = area->widget()->minimumSizeHint();
        EXPECT_LE(wanted.width(), area->viewport()->width());
        EXPECT_LE(wanted.height(), area->viewport()->height());
        EXPECT_EQ(window(form).width(), room_across);
        EXPECT_EQ(window(form).height(), room_down);
    }
    void expect_whole_texts(const Form& form) {
        for (const Control* control : form.controls) {
            const QWidget* const part = desktop.widget(*control);
            ASSERT_NE(part, nullptr);
            if (!part->isVisible()) continue;
            EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry())) << control->address();
            if (const auto* label = dynamic_cast<const LabelView*>(part)) {
                const int needed =
                    label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
                EXPECT_GE(label->height(), needed) << control->address();
                if (!label->wordWrap()) {
                    EXPECT_GE(label->width(), label->sizeHint().width()) << control->address();
                }
            } else if (qobject_cast<const QAbstractButton*>(part) != nullptr) {
                EXPECT_GE(part->width(), part->sizeHint().width()) << control->address() << " " << control->text;
            } else if (const auto* list = qobject_cast<const QComboBox*>(part)) {
                // Less the frame and the arrow at the right.
                EXPECT_GE(list->width() - 30, list->fontMetrics().horizontalAdvance(list->currentText()))
                    << control->address();
            }
        }
    }
    void expect_apart(const std::vector<const Control*>& controls) {
        const auto place = [&](const Control& control) {
            const QWidget& part = widget<QWidget>(control);
            return QRect(part.mapTo(part.window(), QPoint(0, 0)), part.size());
        };
        for (std::size_t a = 0; a < controls.size(); ++a)
            for (std::size_t b = a + 1; b < controls.size(); ++b)
                EXPECT_FALSE(place(*controls[a]).intersects(place(*controls[b])))
                    << controls[a]->name << " over " << controls[b]->name;
    }
};

TEST_F(DefaultsLayout, AllControlsOfTheUraniumLeadPathStandWholeOnALaptop) {
    FrmSetUP& form = forms.frm_SetUP;
    open(form, 1);
    form.Picture2.visible = true;
    form.Label7.visible = form.lblPicture1.visible = true;
    form.comboBzzPlot.set_items({"Wetherill", "Tera-Wasserburg"});
    form.comboBzzPlot.set_value_quietly(1);
    desktop.sync();
    expect_no_scrolling(form);
    expect_whole_texts(form);
    expect_apart(
        {&form.frameMethod,    &form.frameMinerals, &form.frameStandards,  &form.frameDwell,    &form.frameIsotopes,
         &form.chkU235calc,    &form.chkHgCorr1,    &form.frameCommonLead, &form.frameUnused,   &form.frameLin,
         &form.frameLinRatios, &form.frameShow,     &form.frameConcordia,  &form.frameOutliers, &form.frameZizz,
         &form.frameAver,      &form.Frame15,       &form.Frame9,          &form.frameErr,      &form.framePasteDat,
         &form.txtComments,    &form.Picture1,      &form.cmdApply,        &form.cmdSaveAs,     &form.cmdCancel});
}

TEST_F(DefaultsLayout, AllControlsOfTheFlexPathStandWholeOnALaptop) {
    FrmSetFLEX& form = forms.frm_Set_FLEX;
    open(form, 3);
    form.Label7.visible = form.lblPicture1.visible = true;
    desktop.sync();
    expect_no_scrolling(form);
    expect_whole_texts(form);
    expect_apart({&form.frameMethod,   &form.frameMinerals,  &form.framePref,     &form.Frame6,
                  &form.frameDwell,    &form.frameIsotopes,  &form.chkU235calc,   &form.frameUnused,
                  &form.frameLin,      &form.frameLinRatios, &form.frameShow,     &form.frameConcordia,
                  &form.frameOutliers, &form.frameZizz,      &form.frameAver,     &form.Frame15,
                  &form.Frame9,        &form.frameErr,       &form.framePasteDat, &form.txtComments});
}

TEST_F(DefaultsLayout, AStandardShowsEachValueBesideItsError) {
    FrmSetUP& form = forms.frm_SetUP;
    open(form, 1);
    for (int row = 1; row <= 8; ++row) {
        const QRect value = widget<QWidget>(form.txtStd(row)).geometry();
        const QRect error = widget<QWidget>(form.txtStdEr(row)).geometry();
        EXPECT_EQ(value.top(), error.top()) << row;
        EXPECT_LT(value.right(), error.left()) << row;
        EXPECT_LT(error.left() - value.right(), 20) << row;
    }
}

TEST_F(DefaultsLayout, WhatHasNoEffectSaysSo) {
    show(forms.frm_SetUP);
    show(forms.frm_Set_FLEX);
    for (DefaultsForm* form : std::initializer_list<DefaultsForm*>{&forms.frm_SetUP, &forms.frm_Set_FLEX})
        for (const Control* control : form->without_effect)
            EXPECT_EQ(widget<QWidget>(*control).toolTip().toStdString(), "stored, not used in the calculation")
                << form->name << "." << control->name;
    EXPECT_EQ(forms.frm_SetUP.without_effect.size(), 19U);
    EXPECT_EQ(forms.frm_Set_FLEX.without_effect.size(), 10U);
    EXPECT_EQ(widget<QWidget>(forms.frm_SetUP.chkHgCorr1).toolTip().toStdString(), "");
}

TEST_F(DefaultsLayout, EnterAppliesAndEscapeCancelsAndTheQuestionForANameComesFirst) {
    FrmSetUP& form = forms.frm_SetUP;
    open(form, 1);
    for (const char* button : {"cmdApply", "cmdSaveAs", "cmdCancel", "cmdOKnewSTD", "cmdCancelNewStd"})
        catch_events(form, button, EventKind::click);
    widget<QWidget>(form.chk68).setFocus();
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
        QTest::qWait(150);  // the button is seen going down
    };
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    press(Qt::Key_S, Qt::AltModifier);
    press(Qt::Key_A, Qt::AltModifier);
    press(Qt::Key_C, Qt::AltModifier);
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(form.txtNewSTD));
    widget<QWidget>(form.chk68).setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    std::vector<std::string> names;
    for (const Event& event : caught) names.push_back(event.control);
    EXPECT_EQ(names, (std::vector<std::string>{"cmdApply", "cmdCancel", "cmdSaveAs", "cmdApply", "cmdCancel",
                                               "cmdOKnewSTD", "cmdCancelNewStd"}));
}

TEST_F(DefaultsLayout, TheTabulatorGoesFromAValueToItsError) {
    FrmSetUP& form = forms.frm_SetUP;
    open(form, 1);
    catch_events(form, "txtStd", EventKind::leave);
    catch_events(form, "txtStdEr", EventKind::leave);
    widget<QWidget>(form.txtStd(7)).setFocus();
    for (const Control* next : std::initializer_list<const Control*>{&form.txtStdEr(7), &form.txtStd(8),
                                                                     &form.txtStdEr(8), &form.cmdNewSTD}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(*next)) << next->address();
    }
}

TEST_F(DefaultsLayout, AFigureOfAStandardIsStoredWhenTheKeysOfApplyLeaveItsField) {
    FrmSetUP& form = forms.frm_SetUP;
    open(form, 1);
    program.state().setNumSTD = 1;
    form.comboStd.set_items({"glass"});
    form.comboStd.set_value_quietly(0);
    for (Entry& entry : form.txtStd) entry.text = "1";
    for (Entry& entry : form.txtStdEr) entry.text = "1";
    desktop.sync();
    auto& field = widget<QLineEdit>(form.txtStd(4));
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, "0.25");
    QTest::keyClick(&field, Qt::Key_A, Qt::AltModifier);
    QTest::qWait(150);
    EXPECT_FALSE(form.shown);
    EXPECT_EQ(program.state().Std_68(1), Value(0.25));
}

TEST_F(DefaultsLayout, AnAnalyteThatIsNotMeasuredIsGrey) {
    FrmSetFLEX& form = forms.frm_Set_FLEX;
    form.comboPref(1).back = rgb(128, 128, 128);
    form.comboPref(2).back = palette(15);
    show(form);
    EXPECT_EQ(widget<QWidget>(form.comboPref(1)).palette().color(QPalette::Button), QColor(128, 128, 128));
    EXPECT_EQ(widget<QWidget>(form.comboPref(2)).palette().color(QPalette::Button), QColor(255, 255, 255));
}

}  // namespace
}  // namespace kolvar::test
