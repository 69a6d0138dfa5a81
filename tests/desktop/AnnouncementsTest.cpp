#include "Platform/Controls/PushButton.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QList<QAccessible::State>& announced() {
    static QList<QAccessible::State> states;
    return states;
}

} // namespace

TEST(AnnouncementsTest, ACheckStateIsAnnouncedWhenItChanges) {
    ASSERT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); })) << "somebody has to listen";
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::StateChanged)
            announced() << static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
    });
    platform::PushButton button;
    button.cell().setButtonType(platform::ButtonCell::ButtonType::toggle);
    button.click();
    QAccessible::installUpdateHandler(nullptr);
    ASSERT_EQ(announced().size(), 1);
    EXPECT_TRUE(announced().front().checked);
}
