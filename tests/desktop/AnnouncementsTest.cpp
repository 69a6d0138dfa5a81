#include "Platform/Controls/PushButton.h"
#include "Tidepool/Choices/StyledSegmentedControl.h"

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

TEST(AnnouncementsTest, WhatChangesInASegmentIsAnnouncedAsItsChild) {
    using Heard = QList<std::pair<QAccessible::Event, int>>;
    static Heard heard;
    tidepool::StyledSegmentedControl control({QStringLiteral("Keys"), QStringLiteral("List")});
    ASSERT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); })) << "somebody has to listen";
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        heard.append({event->type(), event->child()});
    });
    control.setSelectedSegment(0);
    control.setSelectedSegment(1);
    control.cell().setLabel(QStringLiteral("New"), 0);
    control.cell().setKeySegment(0);
    QAccessible::installUpdateHandler(nullptr);
    EXPECT_EQ(heard, (Heard{{QAccessible::StateChanged, 0},
                            {QAccessible::StateChanged, 0},
                            {QAccessible::StateChanged, 1},
                            {QAccessible::NameChanged, 0}}))
        << "the key segment only while the keyboard is here";
}
