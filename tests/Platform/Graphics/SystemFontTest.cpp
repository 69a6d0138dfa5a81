#include "Platform/Graphics/SystemFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <gtest/gtest.h>

using platform::customFont;
using platform::FontDesign;
using platform::monospacedDigitSystemFont;
using platform::systemFont;

TEST(SystemFont, RoundedDesignHasAFaceForEachWeight) {
    if (!QFontDatabase::hasFamily(QStringLiteral("Quicksand")))
        GTEST_SKIP() << "this machine has no rounded face";
    for (const auto weight : {QFont::Medium, QFont::Bold})
        EXPECT_TRUE(QFontInfo(systemFont(12, weight, FontDesign::rounded))
                        .family()
                        .startsWith(QStringLiteral("Quicksand")));
    const auto width = [](QFont::Weight weight) {
        return QFontMetricsF(systemFont(48, weight, FontDesign::rounded))
            .horizontalAdvance(QStringLiteral("Noteloft"));
    };
    EXPECT_LT(width(QFont::Medium), width(QFont::Bold));
    EXPECT_NE(width(QFont::Medium), width(QFont::Normal));
}

TEST(SystemFont, DigitsOfOneWidthKeepNumbersStill) {
    for (const int size : {10, 13, 40}) {
        const QFont font = monospacedDigitSystemFont(size, QFont::Medium);
        EXPECT_EQ(QFontInfo(font).pixelSize(), size);
        const QFontMetricsF metrics(font);
        for (const QChar digit : QStringLiteral("0123456789"))
            EXPECT_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'8')) << size;
    }
}

TEST(SystemFont, EndsWithTheDesktopsOwnFont) {
    const QString general = QFont().family();
    EXPECT_EQ(systemFont(12).families().constLast(), general);
    EXPECT_EQ(systemFont(12, QFont::Medium, FontDesign::rounded).families().constLast(), general);
    const QFont missing = customFont(QStringLiteral("No Such Face"), 20, QFont::Bold);
    EXPECT_EQ(QFontInfo(missing).family(), QFontInfo(QFont()).family());
    EXPECT_EQ(QFontInfo(missing).pixelSize(), 20);
}
