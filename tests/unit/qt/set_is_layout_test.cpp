#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>

#include "desktop_fixture.hpp"

namespace kolvar::test {
namespace {

TEST_F(DesktopTest, SettingsOpenAsLargeAsTheyNeedOrAsTheScreenHas) {
    show(forms.frm_SetIS);
    QTest::qWait(1);
    const auto* area = window(forms.frm_SetIS).findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    const QSize wanted = area->widget()->sizeHint();
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - QSize(20, 90);
    EXPECT_GE(area->width(), std::min(wanted.width(), room.width()));
    EXPECT_GE(area->height(), std::min(wanted.height(), room.height()));
}

}  // namespace
}  // namespace kolvar::test
