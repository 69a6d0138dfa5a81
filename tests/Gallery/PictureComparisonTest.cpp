#include "tests/support/PictureComparison.h"

#include "Platform/Graphics/SystemFont.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace {

/// A small control on a ground, as pages have many.
QImage drawing(QPoint moved = {}, QColor face = QColor(0x30, 0x32, 0x3b), QSize size = {120, 60}) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(0x1d, 0x1d, 0x2c));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(moved);
    painter.setPen(Qt::NoPen);
    painter.setBrush(face);
    painter.drawRoundedRect(20, 20, 16, 16, 3, 3);
    painter.setFont(platform::systemFont(10));
    painter.setPen(QColor(0xd7, 0xd9, 0xe1));
    painter.drawText(44, 32, QStringLiteral("On"));
    return picture;
}

bool isSame(const QImage& a, const QImage& b) {
    return PictureComparison(a, b).isSame();
}

} // namespace

TEST(PictureComparison, ForgivesStrayPixelsAndRoundingButNoShiftColorOrSize) {
    QImage stray = drawing({}, QColor(0x34, 0x2e, 0x3f));
    for (int i = 0; i < 8; ++i)
        stray.setPixelColor(11 * i, 5 * i, Qt::red);
    EXPECT_TRUE(isSame(stray, drawing()));
    stray.setPixelColor(3, 3, Qt::red);
    EXPECT_FALSE(isSame(stray, drawing()));
    for (const QPoint moved : {QPoint(1, 0), QPoint(0, 1), QPoint(-1, 0), QPoint(0, -1)})
        EXPECT_FALSE(isSame(drawing(moved), drawing()));
    // The two nearest grounds of the dark palette.
    EXPECT_FALSE(isSame(drawing({}, QColor(0x16, 0x16, 0x22)), drawing({}, QColor(0x0f, 0x0f, 0x18))));
    EXPECT_FALSE(isSame(drawing({}, QColor(0x30, 0x32, 0x41)), drawing())) << "in one channel only";
    const QImage taller = drawing({}, QColor(0x30, 0x32, 0x3b), {120, 61});
    EXPECT_FALSE(isSame(taller, drawing()));
    EXPECT_EQ(PictureComparison(taller, drawing()).differing(), 120);
}
