#include "Chorale/RocketFontModifier.h"

#include "Chorale/Assets.h"
#include "Platform/Core/Bundle.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLabel>

#include <gtest/gtest.h>

using chorale::RocketFontModifier;

namespace {

const QString family = QStringLiteral("Rocket");

class RocketFontModifierTest : public testing::Test {
protected:
    void SetUp() override {
        if (QFontDatabase::hasFamily(family))
            GTEST_SKIP() << "this machine has the face installed";
    }

    ~RocketFontModifierTest() override {
        if (m_font >= 0)
            QFontDatabase::removeApplicationFont(m_font);
    }

    void registerFont() {
        m_font = QFontDatabase::addApplicationFont(
            platform::Bundle::main().path(QStringLiteral("Fonts/Rocket.ttf")));
        ASSERT_GE(m_font, 0);
    }

    int m_font = -1;
};

} // namespace

TEST_F(RocketFontModifierTest, SetsTheFaceAtItsSize) {
    registerFont();
    QLabel label(QStringLiteral("Noteloft"));
    chorale::rocketFont(label, 36);
    EXPECT_EQ(QFontInfo(label.font()).family(), family);
    EXPECT_EQ(QFontInfo(label.font()).pixelSize(), 36);
    const QString title = QStringLiteral("Noteloft 0123456789.,:%+-()");
    for (const QChar character : title)
        EXPECT_TRUE(QFontMetricsF(label.font()).inFont(character)) << int(character.unicode());
}

TEST_F(RocketFontModifierTest, WithoutTheFaceTheDesktopsFontStandsIn) {
    const QFont font = RocketFontModifier{20}.font();
    EXPECT_EQ(QFontInfo(font).family(), QFontInfo(QFont()).family());
    EXPECT_EQ(QFontInfo(font).pixelSize(), 20);
}

TEST(ChoraleBundle, IsRequired) {
    EXPECT_DEATH(
        {
            platform::Bundle::setMainDirectory(QStringLiteral("/nowhere"));
            chorale::resourceBundle();
        },
        "^unable to find bundle named Chorale_Chorale\n$");
}
