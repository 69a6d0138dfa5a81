#include "Tidepool/Views/StyledScrollBar.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QProxyStyle>
#include <QScrollArea>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using tidepool::StyledScrollBar;

namespace {

class StyledScrollBarTest : public testing::Test {
protected:
    StyledScrollBarTest() {
        auto* const content = new QWidget;
        content->setFixedSize(400, 1000);
        m_area.setFrameShape(QFrame::NoFrame);
        m_area.setWidget(content);
        tidepool::setStyledScrollBars(m_area);
        m_area.resize(200 + StyledScrollBar::thickness, 100 + StyledScrollBar::thickness);
        m_area.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_area));
    }

    StyledScrollBar& vertical() { return static_cast<StyledScrollBar&>(*m_area.verticalScrollBar()); }

    StyledScrollBar& horizontal() { return static_cast<StyledScrollBar&>(*m_area.horizontalScrollBar()); }

    static void drag(QScrollBar& bar, QPoint from, QPoint to) {
        QTest::mousePress(&bar, Qt::LeftButton, {}, from);
        QTest::mouseMove(&bar, to);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, to);
    }

    bool fades() {
        return QTest::qWaitFor([this] { return vertical().visibility() == 0; }, 10'000);
    }

    QScrollArea m_area;
};

/// A desktop without animations.
class StillStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        return hint == SH_Widget_Animation_Duration ? 0
                                                    : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

TEST_F(StyledScrollBarTest, IsSeenWhileTheViewScrollsAndFadesAfterwards) {
    EXPECT_EQ(vertical().visibility(), 1) << "at first, to tell that there is more";
    EXPECT_TRUE(fades());
    const QImage idle = picture(vertical());
    EXPECT_EQ(difference(idle, QImage(idle).copy()), 0);
    m_area.verticalScrollBar()->setValue(10);
    EXPECT_EQ(vertical().visibility(), 1);
    EXPECT_GT(difference(picture(vertical()), idle), 10);
    vertical().setSliderDown(true);
    EXPECT_FALSE(QTest::qWaitFor([this] { return vertical().visibility() < 1; }, 1500)) << "while it is held";
    vertical().setSliderDown(false);
    QApplication::setStyle(new StillStyle);
    vertical().flash();
    bool wasBetween = false;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        wasBetween = wasBetween || (vertical().visibility() > 0 && vertical().visibility() < 1);
        return vertical().visibility() == 0;
    }));
    EXPECT_FALSE(wasBetween);
    QApplication::setStyle(QStringLiteral("fusion"));
}

TEST_F(StyledScrollBarTest, TheKnobIsDraggedAndTheSlotPages) {
    EXPECT_EQ(m_area.viewport()->size(), QSize(200, 100));
    drag(vertical(), {6, 10}, {6, 46});
    EXPECT_NEAR(vertical().value(), 450, 15) << "half of the way that a knob of 28 has";
    drag(vertical(), {6, 60}, {6, 500});
    EXPECT_EQ(vertical().value(), vertical().maximum());
    QTest::mouseClick(&vertical(), Qt::LeftButton, {}, {6, 5});
    EXPECT_EQ(vertical().value(), 800) << "a page back";
    drag(horizontal(), {10, 6}, {60, 6});
    EXPECT_NEAR(horizontal().value(), 100, 3);
    m_area.setLayoutDirection(Qt::RightToLeft);
    horizontal().setValue(0);
    drag(horizontal(), {190, 6}, {140, 6});
    EXPECT_NEAR(horizontal().value(), 100, 3);
    QTest::mouseClick(&horizontal(), Qt::LeftButton, {}, {5, 6});
    EXPECT_EQ(horizontal().value(), horizontal().maximum()) << "a page on";
}

TEST_F(StyledScrollBarTest, ComesWhenThePointerIsNear) {
    m_area.widget()->setMouseTracking(false);
    EXPECT_TRUE(fades());
    QTest::mouseMove(m_area.window()->windowHandle(), {60, 40});
    QTest::mouseMove(m_area.window()->windowHandle(), {65, 40});
    EXPECT_EQ(vertical().visibility(), 0);
    QTest::mouseMove(m_area.window()->windowHandle(), {190, 40});
    EXPECT_EQ(vertical().visibility(), 1);
    EXPECT_EQ(horizontal().visibility(), 0);
    EXPECT_TRUE(fades()) << "although the pointer rests there";
}

TEST_F(StyledScrollBarTest, GoesToTheVeryPlaceWithShiftOrTheMiddleButton) {
    QTest::mouseClick(&vertical(), Qt::LeftButton, Qt::ShiftModifier, {6, 50});
    EXPECT_NEAR(vertical().value(), 450, 15);
    QTest::mouseClick(&vertical(), Qt::MiddleButton, {}, {6, 99});
    EXPECT_EQ(vertical().value(), vertical().maximum());
    QTest::mouseClick(&vertical(), Qt::LeftButton, {}, {6, 5});
    EXPECT_EQ(vertical().value(), 800) << "and without, by a page";
    m_area.setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(&horizontal(), Qt::LeftButton, Qt::ShiftModifier, {0, 6});
    EXPECT_EQ(horizontal().value(), horizontal().maximum());
}
