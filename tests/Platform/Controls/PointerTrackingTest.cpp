#include "Platform/Controls/PointerTracking.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

using platform::PointerTracking;

TEST(PointerTracking, EndsOnceThoughItsEndEndsItAgain) {
    QWidget control;
    QList<PointerTracking::End> ends;
    PointerTracking* current = nullptr;
    {
        PointerTracking tracking(control, [&](PointerTracking::End end) {
            ends << end;
            if (ends.size() < 5)
                current->interrupt();
        });
        current = &tracking;
        tracking.release();
        EXPECT_FALSE(tracking.isActive());
    }
    EXPECT_EQ(ends, QList{PointerTracking::End::released});
}

TEST(PointerTracking, AMoveWithoutAButtonSaysNothingOfAKeyThatHolds) {
    QWidget control;
    QTest::mouseRelease(&control, Qt::LeftButton); // which another test may have left pressed
    PointerTracking tracking(control, [](PointerTracking::End) {});
    QMouseEvent move(QEvent::MouseMove, {5, 5}, {5, 5}, Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&control, &move);
    EXPECT_TRUE(tracking.isActive());
}
