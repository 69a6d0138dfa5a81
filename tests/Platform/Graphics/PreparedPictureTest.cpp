#include "Platform/Graphics/PreparedPicture.h"

#include <QPainter>
#include <QRandomGenerator>

#include <gtest/gtest.h>

using platform::PreparedPicture;

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
QImage framed(QSize size, qreal scale) {
    QImage image = noise(size, QImage::Format_ARGB32_Premultiplied, 1);
    QPainter painter(&image);
    painter.fillRect(image.rect().adjusted(7, 2, -5, -2), Qt::darkCyan);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(0, 0, 2, size.height(), Qt::transparent);
    painter.fillRect(0, size.height() - 1, size.width(), 1, Qt::transparent);
    painter.end();
    image.setDevicePixelRatio(scale);
    return image;
}

/// A canvas that `draw` has painted on, with a painter that `prepare` has changed.
template <typename Prepare, typename Draw>
QImage painted(QImage::Format format, qreal scale, Prepare prepare, Draw draw) {
    QImage canvas = noise({90, 70}, format, 2);
    canvas.setDevicePixelRatio(scale);
    QPainter painter(&canvas);
    prepare(painter);
    draw(painter);
    painter.end();
    return canvas;
}

using PreparedPictureTest = testing::TestWithParam<std::tuple<double, QImage::Format>>;

} // namespace

TEST_P(PreparedPictureTest, IsDrawnAsQtDrawsIt) {
    const auto [scale, format] = GetParam();
    const std::vector<std::pair<const char*, void (*)(QPainter&)>> painters{
        {"as it is", [](QPainter&) {}},
        {"between pixels", [](QPainter& painter) { painter.translate(0.3, 0.6); }},
        {"beyond the edges", [](QPainter& painter) { painter.translate(-12, -9); }},
        {"clipped", [](QPainter& painter) { painter.setClipRect(20, 12, 21, 9); }},
        {"faded", [](QPainter& painter) { painter.setOpacity(0.4); }},
        {"added", [](QPainter& painter) { painter.setCompositionMode(QPainter::CompositionMode_Plus); }}};
    for (const QSize size : {QSize(60, 24), QSize(25, 11), QSize(13, 9), QSize(5, 4), QSize(3, 3)}) {
        const QImage image = framed(size, scale);
        const PreparedPicture picture(image);
        for (const auto& [name, prepare] : painters)
            for (const QPoint pixel : {QPoint(7, 5), QPoint(60, 55)}) {
                const QPointF origin = QPointF(pixel) / scale;
                const QImage expected = painted(format, scale, prepare, [&](QPainter& painter) {
                    painter.scale(1 / scale, 1 / scale);
                    painter.drawImage(QRectF(origin * scale, QSizeF(size)), image, QRectF(image.rect()));
                });
                EXPECT_EQ(painted(format, scale, prepare,
                                  [&](QPainter& painter) { picture.draw(painter, origin); }),
                          expected)
                    << name << ", " << size.width() << " pixels wide, at " << pixel.x();
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Graphics, PreparedPictureTest,
                         testing::Combine(testing::Values(1.0, 1.25, 2.0),
                                          testing::Values(QImage::Format_RGB32,
                                                          QImage::Format_ARGB32_Premultiplied,
                                                          QImage::Format_ARGB32)));
