#include "Platform/Gpu/GpuView.h"

#include "tests/support/GpuPicture.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QBackingStore>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

using platform::GpuDevice;
using platform::GpuView;

namespace {

/// Fills the view, with white if not told otherwise, and counts.
class White : public platform::GpuViewDelegate {
public:
    explicit White(const QByteArray& body = "color = vec4(1.0);")
        : m_white(GpuPicture::pipeline(body.constData())) {}

    void drawableSizeWillChange(GpuView&, QSizeF size) override { sizes << size; }

    void draw(GpuView& view) override {
        ++frames;
        const auto descriptor = view.currentRenderPassDescriptor();
        if (!descriptor)
            return;
        const auto buffer = m_queue->makeCommandBuffer();
        const auto encoder = buffer->makeRenderCommandEncoder(*descriptor);
        const auto size = view.drawableSize();
        encoder->setRenderPipelineState(*m_white);
        encoder->setViewport({.width = size.width(), .height = size.height()});
        encoder->setVertexBuffer(*m_vertices, 0, 0);
        encoder->drawTriangleStrip(0, 4);
        encoder->endEncoding();
        buffer->present(*view.currentDrawable());
        buffer->commit();
    }

    int frames = 0;
    QList<QSizeF> sizes;

private:
    static constexpr std::array<float, 8> quad{-1, -1, -1, 1, 1, -1, 1, 1};

    std::shared_ptr<GpuDevice> m_device = GpuDevice::systemDefault();
    std::unique_ptr<platform::CommandQueue> m_queue = m_device->makeCommandQueue();
    std::shared_ptr<platform::RenderPipelineState> m_white;
    std::unique_ptr<platform::GpuBuffer> m_vertices = m_device->makeBuffer(quad.data(), sizeof quad);
};

class TimerCounter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Timer ? 1 : 0;
        return false;
    }

    int count = 0;
};

class GpuViewTest : public testing::Test {
protected:
    void SetUp() override {
        NOTELOFT_REQUIRE_GPU();
        m_white = std::make_unique<White>();
        m_view.resize(101, 53);
        m_view.setDevice(GpuDevice::systemDefault());
        m_view.setDelegate(m_white.get());
        m_view.installEventFilter(&m_timers);
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

    TimerCounter m_timers;
    std::unique_ptr<White> m_white;
    GpuView m_view;
};

/// A red window with a blue widget that may cover part of a view at (7, 5), whose frames are black up to its
/// ninth point and white behind.
class GpuViewInAWindow : public GpuViewTest {
protected:
    void SetUp() override {
        GpuViewTest::SetUp();
        if (IsSkipped())
            return;
        const QByteArray edge = QByteArray::number(9 * m_view.devicePixelRatioF(), 'f');
        m_halves =
            std::make_unique<White>("color = vec4(vec3(gl_FragCoord.x < " + edge + " ? 0.0 : 1.0), 1.0);");
        m_view.setDelegate(m_halves.get());
        m_window.resize(60, 40);
        m_window.setPalette(QPalette(Qt::red));
        m_view.setParent(&m_window);
        m_view.setGeometry(7, 5, 30, 20);
        m_above.raise();
        m_above.setGeometry(20, 10, 30, 6);
        m_above.setPalette(QPalette(Qt::blue));
        m_above.setAutoFillBackground(true);
    }

    void TearDown() override { m_view.setParent(nullptr); }

    QColor expectedAt(QPointF point) const {
        if (m_above.isVisibleTo(&m_window) && QRectF(m_above.geometry()).contains(point))
            return Qt::blue;
        if (QRectF(m_view.geometry()).contains(point))
            return point.x() < m_view.x() + 9 ? Qt::black : Qt::white;
        return Qt::red;
    }

    /// Where an edge may be rounded either way.
    bool isOnEdge(QPointF point, qreal scale) const {
        const qreal margin = scale == std::round(scale) ? 0 : 1 / scale;
        const QList<QPointF> corners{
            {-margin, -margin}, {margin, -margin}, {-margin, margin}, {margin, margin}};
        return std::any_of(corners.begin(), corners.end(),
                           [&](QPointF corner) { return expectedAt(point + corner) != expectedAt(point); });
    }

    /// `shown` gives the colour of a pixel of a picture that has `scale` of them in a point.
    void check(const std::function<QColor(int, int)>& shown, qreal scale) const {
        for (int y = 0; y < m_window.height() * scale; ++y)
            for (int x = 0; x < m_window.width() * scale; ++x) {
                const QPointF point = QPointF(x + 0.5, y + 0.5) / scale;
                if (isOnEdge(point, scale))
                    continue;
                ASSERT_EQ(shown(x, y).rgb(), expectedAt(point).rgb()) << x << ", " << y;
            }
    }

    std::unique_ptr<White> m_halves;
    QWidget m_window;
    QWidget m_above{&m_window};
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

TEST_F(GpuViewTest, KeepsItsFrameRate) {
    m_view.setPreferredFramesPerSecond(20);
    m_view.setPaused(false);
    show();
    const int before = m_white->frames;
    QTest::qWait(1000);
    EXPECT_LE(m_white->frames - before, 21);
    EXPECT_GE(m_white->frames - before, 8);
    m_view.setPreferredFramesPerSecond(0);
    const int stopped = m_timers.count;
    QTest::qWait(100);
    EXPECT_EQ(m_timers.count, stopped);
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

TEST_F(GpuViewTest, ShowsTheWholePicture) {
    show();
    const QImage image = picture(m_view);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_EQ(image.pixel(x, y), 0xffffffff) << x << ", " << y;
}

TEST_F(GpuViewInAWindow, FramesLandInTheWindow) {
    m_window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    for (const bool isCovered : {false, true})
        for (const QPoint place : {QPoint(7, 5), QPoint(0, 0), QPoint(45, 30)}) {
            SCOPED_TRACE(testing::Message() << place.x() << (isCovered ? ", covered" : ""));
            m_above.setVisible(isCovered);
            m_view.move(place);
            QTest::qWait(30);
            const int frames = m_halves->frames;
            m_view.setNeedsDisplay();
            ASSERT_TRUE(QTest::qWaitFor([&] { return m_halves->frames == frames + 1; }));
            const auto* const memory = m_window.backingStore()->paintDevice();
            ASSERT_EQ(memory->devType(), QInternal::Image);
            const auto& image = static_cast<const QImage&>(*memory);
            check([&](int x, int y) { return image.pixelColor(x, y); }, m_window.devicePixelRatioF());
        }
}

TEST_F(GpuViewInAWindow, FramesLandWhereAPainterPaints) {
    for (const bool isTurned : {false, true})
        for (const bool isCovered : {false, true}) {
            SCOPED_TRACE(testing::Message()
                         << (isTurned ? "turned" : "upright") << (isCovered ? ", covered" : ""));
            QImage target(80, 80, QImage::Format_ARGB32_Premultiplied);
            QPainter painter(&target);
            if (isTurned) {
                painter.translate(80, 0);
                painter.rotate(90);
            }
            m_above.setVisible(isCovered);
            m_view.setNeedsDisplay();
            const int frames = m_halves->frames;
            m_window.render(&painter);
            painter.end();
            EXPECT_EQ(m_halves->frames, frames + 1);
            check([&](int x,
                      int y) { return isTurned ? target.pixelColor(79 - y, x) : target.pixelColor(x, y); },
                  1);
            const QImage frame = m_view.image();
            EXPECT_EQ(frame.pixelColor(8, frame.height() - 1), QColor(Qt::black));
            EXPECT_EQ(frame.pixelColor(frame.width() / 2, 0), QColor(Qt::white));
        }
}

TEST_F(GpuViewTest, AnEmptyViewHasNothingToDrawInto) {
    QWidget window;
    window.resize(60, 60);
    m_view.setParent(&window);
    m_view.setGeometry(0, 0, 30, 0);
    window.show();
    m_view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    m_view.setNeedsDisplay();
    QTest::qWait(30);
    EXPECT_FALSE(m_view.currentRenderPassDescriptor());
    m_view.resize(30, 30);
    QTest::qWait(30);
    EXPECT_EQ(QSizeF(m_view.image().size()), pixels(30, 30));
    m_view.setParent(nullptr);
}

TEST(GpuViewWithoutDevice, PaintsNothing) {
    QWidget red;
    red.resize(60, 40);
    red.setPalette(QPalette(Qt::red));
    red.setAutoFillBackground(true);
    const QImage before = picture(red);
    GpuView view(&red);
    view.setGeometry(10, 10, 30, 20);
    view.setPaused(false);
    EXPECT_EQ(difference(picture(red), before), 0);
    EXPECT_TRUE(view.image().isNull());
    EXPECT_FALSE(view.currentRenderPassDescriptor());

    TimerCounter timers;
    view.installEventFilter(&timers);
    red.show();
    QTest::qWait(100);
    EXPECT_EQ(timers.count, 0) << "there is nothing to animate";
}

TEST(GpuViewWithoutDelegate, PaintsNothing) {
    NOTELOFT_REQUIRE_GPU();
    QWidget red;
    red.resize(60, 40);
    red.setPalette(QPalette(Qt::red));
    red.setAutoFillBackground(true);
    const QImage before = picture(red);
    GpuView view(&red);
    view.setDevice(GpuDevice::systemDefault());
    view.setGeometry(10, 10, 30, 20);
    EXPECT_EQ(difference(picture(red), before), 0);
}
