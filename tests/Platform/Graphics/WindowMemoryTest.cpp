#include "Platform/Graphics/WindowMemory.h"

#include "Platform/Graphics/DevicePixels.h"
#include "Platform/Graphics/Image.h"
#include "Platform/Graphics/PreparedText.h"
#include "tests/support/GpuPicture.h"
#include "tests/support/Pixels.h"

#include <QBackingStore>
#include <QHBoxLayout>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace platform;

namespace {

QImage noise(QSize size, QImage::Format format, quint32 seed) {
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate());
    return image.convertToFormat(format);
}

/// Opaque inside, with a translucent border and a transparent margin.
QImage framed(QSize size) {
    QImage image = noise(size, QImage::Format_ARGB32_Premultiplied, 1);
    QPainter painter(&image);
    painter.fillRect(image.rect().adjusted(7, 2, -5, -2), Qt::darkCyan);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(0, 0, 2, size.height(), Qt::transparent);
    painter.fillRect(0, size.height() - 1, size.width(), 1, Qt::transparent);
    return image;
}

Image makeImage(bool isTemplate) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("framed.png"));
    framed({24, 16}).save(path);
    return Image(
        {.size = {24, 16}, .capInsets = {9, 4, 8, 4}, .isTemplate = isTemplate, .files = {{1, path}}});
}

void drawPictures(QPainter& painter, Qt::LayoutDirection) {
    const qreal scale = pixelsPerPoint(painter);
    for (const QSize size : {QSize(60, 24), QSize(25, 11), QSize(13, 9), QSize(5, 4), QSize(3, 3)}) {
        QImage picture = framed(size);
        picture.setDevicePixelRatio(scale);
        for (const QPoint pixel : {QPoint(7, 5), QPoint(60, 55)})
            PreparedPicture(picture).draw(painter, QPointF(pixel) / scale);
    }
    PreparedPicture(framed({21, 9})).draw(painter, {40, 3}); // made for another scale, unless this one is 1
}

void drawImages(QPainter& painter, Qt::LayoutDirection) {
    static const Image image = makeImage(false);
    static const Image shape = makeImage(true);
    image.draw(painter, QRectF(3.3, 2.6, 31.2, 22.1));
    image.draw(painter, QRectF(11, 15, 40, 20), 0.4F);
    shape.tinted(QColor(200, 90, 0, 180)).draw(painter, QRectF(30.5, 4.5, 28, 18));
    shape.tinted(Qt::blue).draw(painter, QRectF(-6, 30, 24, 16), 0.7F);
}

void drawTexts(QPainter& painter, Qt::LayoutDirection direction) {
    const auto leading = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    const std::array lines{QStringLiteral("&Open a document"), QString::fromUtf8("שלום עולם")};
    for (int y = 2; const QString& line : lines)
        for (const Qt::Alignment alignment : {Qt::Alignment(leading), Qt::Alignment(Qt::AlignHCenter)}) {
            PreparedText text;
            text.set(line, QFont());
            text.draw(painter, QRectF(3, y, 55, 15), {0xff204060, alignment, true});
            y += 13;
        }
}

using Draw = void (*)(QPainter&, Qt::LayoutDirection);
constexpr std::array<std::pair<const char*, Draw>, 3> drawings{
    {{"pictures", drawPictures}, {"images", drawImages}, {"texts", drawTexts}}};

class Drawing : public QWidget {
public:
    Drawing(Draw draw, QSize size, QWidget* parent = nullptr) : QWidget(parent), m_draw(draw) {
        setFixedSize(size);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        m_draw(painter, layoutDirection());
    }

private:
    Draw m_draw;
};

/// Children at odd offsets, some of them within, beside, above and outside of others.
class Window : public QWidget {
public:
    explicit Window(Qt::LayoutDirection direction) {
        setLayoutDirection(direction);
        auto* const row = new QHBoxLayout(this);
        row->setContentsMargins(7, 5, 4, 3);
        row->setSpacing(3);
        for (const auto& [name, draw] : drawings)
            row->addWidget(new Drawing(draw, {61, 57}), 0, Qt::AlignTop);
        auto* const masked = new Drawing(drawPictures, {33, 31}, row->itemAt(0)->widget());
        masked->move(-5, 37);
        masked->setMask(QRegion(3, 2, 20, 9) + QRegion(0, 15, 31, 7));
        setFixedSize(206, 97);
        if (!GpuDevice::systemDefault())
            return;
        m_frames = std::make_unique<GpuFrames>(
            "color = vec4(fract(gl_FragCoord.xy / vec2(11.0, 7.0)), float(seed) / 9.0, 1.0);");
        auto* const narrow = new QWidget(this);
        narrow->setGeometry(13, 30, 31, 17);
        addView(this, {12, 64});
        addView(this, {64, 64});
        addView(this, {117, 66}, 41); // between pixels, at some scales
        addView(this, {171, 80});     // partly outside
        addView(narrow, {-5, 2});
        auto* const cover = new Drawing(drawImages, {19, 21}, this);
        cover->move(93, 71);
        cover->setAutoFillBackground(true);
    }

    void drawFrames(std::uint32_t seed) {
        for (GpuView* const view : m_views) {
            m_frames->seed = seed;
            view->setNeedsDisplay();
            view->repaint();
        }
    }

    QImage lastFrame() const { return m_views.isEmpty() ? QImage() : m_views.first()->image(); }

private:
    void addView(QWidget* parent, QPoint place, int width = 40) {
        m_views << new GpuView(parent);
        m_views.last()->setDevice(GpuDevice::systemDefault());
        m_views.last()->setDelegate(m_frames.get());
        m_views.last()->setGeometry(QRect(place, QSize(width, 24)));
    }

    std::unique_ptr<GpuFrames> m_frames;
    QList<GpuView*> m_views;
};

void turn(QPainter& painter) {
    painter.translate(120, 3);
    painter.rotate(90);
}

const std::vector<std::pair<const char*, void (*)(QPainter&)>> preparations{
    {"as it is", [](QPainter&) {}},
    {"between pixels", [](QPainter& painter) { painter.translate(0.3, 0.6); }},
    {"beyond the edges", [](QPainter& painter) { painter.translate(-12, -9); }},
    {"clipped", [](QPainter& painter) { painter.setClipRect(20, 12, 21, 9); }},
    {"clipped twice",
     [](QPainter& painter) { painter.setClipRegion(QRegion(5, 3, 9, 40) + QRect(20, 9, 11, 7)); }},
    {"faded", [](QPainter& painter) { painter.setOpacity(0.4); }},
    {"added", [](QPainter& painter) { painter.setCompositionMode(QPainter::CompositionMode_Plus); }},
    {"scaled", [](QPainter& painter) { painter.scale(1.5, 1.5); }},
    {"stretched", [](QPainter& painter) { painter.scale(1, 1.7); }},
    {"mirrored",
     [](QPainter& painter) {
         painter.scale(-1, 1);
         painter.translate(-70, 0);
     }},
    {"turned", turn},
    {"sheared", [](QPainter& painter) { painter.shear(0.2, 0); }}};

QImage canvas(QSize size, qreal scale, QImage::Format format) {
    QImage image = noise((QSizeF(size) * scale).toSize(), format, 2);
    image.setDevicePixelRatio(scale);
    return image;
}

template <typename Paint>
void expectOneResult(Paint paint) {
    const QImage written = paint();
    const PaintersOnly closed;
    EXPECT_TRUE(written == paint());
}

class WindowMemoryTest : public testing::TestWithParam<double> {};

} // namespace

TEST_P(WindowMemoryTest, IsWrittenAsPaintersWouldDrawOnIt) {
    for (const auto format :
         {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32})
        for (const auto& [preparation, prepare] : preparations)
            for (const auto& [drawing, draw] : drawings) {
                SCOPED_TRACE(testing::Message() << drawing << ' ' << preparation << ", " << format);
                expectOneResult([&] {
                    QImage image = canvas({90, 70}, GetParam(), format);
                    QPainter painter(&image);
                    prepare(painter);
                    draw(painter, Qt::LeftToRight);
                    return image;
                });
            }
}

TEST_P(WindowMemoryTest, IsWrittenAsWidgetsWouldBePainted) {
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        Window window(direction);
        picture(window); // From its first frame on a view is opaque, and covers what lies below.
        for (const auto& [preparation, prepare] : preparations)
            for (const QRegion& part : {QRegion(window.rect()), QRegion(31, 17, 99, 70)}) {
                SCOPED_TRACE(testing::Message() << preparation << ' ' << direction);
                expectOneResult([&] {
                    window.drawFrames(3);
                    QImage image = canvas(window.size(), GetParam(), QImage::Format_RGB32);
                    QPainter painter(&image);
                    prepare(painter);
                    window.render(&painter, {11, 7}, part);
                    return image;
                });
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, WindowMemoryTest, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

// Only a window on the screen has memory that views write their frames into. CTest runs this at all scales.
TEST(WindowMemoryOfTheScreen, IsWrittenAsPaintersWouldDrawOnIt) {
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        Window window(direction);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        expectOneResult([&] {
            window.repaint();
            window.drawFrames(1);
            return static_cast<const QImage*>(window.backingStore()->paintDevice())->copy();
        });
        expectOneResult([&] {
            window.drawFrames(2); // after one that differs
            return window.lastFrame();
        });
    }
}

// Otherwise the tests above would compare a road with itself.
TEST(WindowMemoryOfTheScreen, IsOpenUnlessItIsClosed) {
    QImage image = canvas({8, 8}, 2, QImage::Format_RGB32);
    const QPainter painter(&image);
    const std::vector<PictureRow> rows(16);
    EXPECT_TRUE(windowPixels(image, QRectF(1, 2, 3, 4)) && drawIntoWindow(painter, {1, 1}, image, rows));
    const PaintersOnly closed;
    EXPECT_FALSE(windowPixels(image, QRectF(1, 2, 3, 4)) || drawIntoWindow(painter, {1, 1}, image, rows));
}
