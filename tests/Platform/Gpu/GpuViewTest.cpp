#include "Platform/Gpu/GpuView.h"

#include "tests/support/EventCounter.h"
#include "tests/support/GpuPicture.h"
#include "tests/support/Pixels.h"

#include <QTest>

#include <gtest/gtest.h>

using platform::GpuDevice;
using platform::GpuView;

namespace {

class GpuViewTest : public testing::Test {
protected:
    void SetUp() override {
        NOTELOFT_REQUIRE_GPU();
        m_white = std::make_unique<GpuFrames>();
        m_view.resize(101, 53);
        m_view.setDevice(GpuDevice::systemDefault());
        m_view.setDelegate(m_white.get());
    }

    void show() {
        m_view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_view));
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_white->frames > 0; }));
        QTest::qWait(30);
    }

    QSizeF pixels(int width, int height) const {
        return (QSizeF(width, height) * m_view.devicePixelRatioF()).toSize();
    }

    std::unique_ptr<GpuFrames> m_white;
    GpuView m_view;
    EventCounter m_timers{m_view, QEvent::Timer};
};

} // namespace

TEST_F(GpuViewTest, StandsStillWhilePaused) {
    show();
    EXPECT_TRUE(m_view.isPaused());
    const int before = m_white->frames;
    for (int turn = 0; turn < 50; ++turn)
        QTest::qWait(4);
    EXPECT_EQ(m_white->frames, before);
    EXPECT_EQ(m_timers.count, 0);
    m_view.update();
    QTest::qWait(30);
    EXPECT_EQ(m_white->frames, before) << "what is uncovered shows the last frame";
    m_view.setNeedsDisplay();
    m_view.setNeedsDisplay();
    QTest::qWait(60);
    EXPECT_EQ(m_white->frames, before + 1);
}

TEST_F(GpuViewTest, RunsOnlyWhileShownAndUnpaused) {
    m_view.setPaused(false);
    QTest::qWait(60);
    EXPECT_EQ(m_timers.count, 0) << "not shown yet";
    show();
    const int first = m_white->frames;
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_white->frames >= first + 5; }));
    m_view.hide();
    const int hidden = m_timers.count;
    QTest::qWait(60);
    EXPECT_EQ(m_timers.count, hidden);
    m_view.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_timers.count > hidden + 2; }));
    m_view.setPaused(true);
    const int paused = m_timers.count;
    QTest::qWait(60);
    EXPECT_EQ(m_timers.count, paused);
}

TEST_F(GpuViewTest, AnnouncesItsSizeInPixelsBeforeTheFrame) {
    show();
    EXPECT_EQ(m_white->sizes, QList<QSizeF>{pixels(101, 53)});
    EXPECT_EQ(m_view.drawableSize(), pixels(101, 53));
    const int frames = m_white->frames;
    m_view.resize(77, 40);
    QTest::qWait(60);
    EXPECT_EQ(m_white->sizes, (QList<QSizeF>{pixels(101, 53), pixels(77, 40)}));
    EXPECT_EQ(m_white->frames, frames + 1) << "another size needs another frame, also while paused";
    EXPECT_EQ(QSizeF(m_view.image().size()), pixels(77, 40));
    m_view.update();
    QTest::qWait(30);
    EXPECT_EQ(m_white->sizes.size(), 2) << "the same size is no news";
}

TEST(GpuViewThatCannotDraw, PaintsNothingAndHasNoTimer) {
    QWidget red;
    red.resize(60, 40);
    red.setPalette(QPalette(Qt::red));
    red.setAutoFillBackground(true);
    const QImage before = picture(red);
    GpuView view(&red);
    view.setGeometry(10, 10, 30, 20);
    view.setPaused(false);
    EXPECT_EQ(difference(picture(red), before), 0);
    const EventCounter timers(view, QEvent::Timer);
    red.show();
    QTest::qWait(100);
    EXPECT_EQ(timers.count, 0) << "there is nothing to animate";
    view.setDevice(GpuDevice::systemDefault());
    EXPECT_EQ(difference(picture(red), before), 0) << "with a device but without a delegate";
}
