#include "Platform/Graphics/SystemFont.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <gtest/gtest.h>

using platform::monospacedDigitSystemFont;

TEST(SystemFont, DigitsOfOneWidthKeepNumbersStill) {
    for (const int size : {10, 13, 40}) {
        const QFont font = monospacedDigitSystemFont(size, QFont::Medium);
        EXPECT_EQ(QFontInfo(font).pixelSize(), size);
        const QFontMetricsF metrics(font);
        for (const QChar digit : QStringLiteral("0123456789"))
            EXPECT_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'8')) << size;
    }
}
