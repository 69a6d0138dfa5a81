#include "Chorale/ParameterText.h"

#include <gtest/gtest.h>

#include <clocale>

#include <cmath>
#include <limits>
#include <random>

using chorale::AudioParameter;
using platform::AudioUnitParameterUnit;

namespace {

std::unique_ptr<AudioParameter> make(AudioUnitParameterUnit units, float value, float lower = -1e6F,
                                     float upper = 1e6F) {
    return std::make_unique<AudioParameter>(1, QString(), QString(), units,
                                            chorale::ClosedRange<float>(lower, upper), value);
}

} // namespace

// These tests also run in locales that write a comma.
TEST(ParameterText, TheLocaleOfTheProcessIsTheOneThatWasAskedFor) {
    const QByteArray expected = qEnvironmentVariable("NOTELOFT_DECIMAL_POINT", QStringLiteral(".")).toUtf8();
    EXPECT_STREQ(localeconv()->decimal_point, expected.constData());
}

TEST(ParameterText, NumbersAreReadAsAWholeInTheCLocale) {
    const auto read = [](const char* text) { return chorale::decimalNumber(QString::fromUtf8(text)); };
    EXPECT_EQ(read("+2.5"), 2.5F);
    EXPECT_EQ(read(".5"), 0.5F);
    EXPECT_EQ(read("1e50"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(read("-1e500"), -std::numeric_limits<float>::infinity());
    EXPECT_EQ(read("1e-60"), 0);
    for (const char* text : {"", "+", ".", "e1", "++1", " 1", "1\n", "1e", "infinity", "٣"})
        EXPECT_FALSE(read(text)) << text;
}

TEST(ParameterText, ShownInTheUsersLocaleAndEditedInC) {
    const auto level = make(AudioUnitParameterUnit::generic, 12.6F);
    const QLocale german(QLocale::German, QLocale::Germany);
    EXPECT_EQ(chorale::displayText(*level, 0, german), QStringLiteral("13"));
    EXPECT_EQ(chorale::displayText(*level, 2, german), QStringLiteral("12,60"));
    EXPECT_EQ(chorale::displayText(*level, 2, QLocale(QLocale::English)), QStringLiteral("12.60"));
    QLocale::setDefault(german);
    EXPECT_EQ(chorale::editingText(*level, 2), QStringLiteral("12.60"));
    EXPECT_EQ(chorale::displayText(*level, 1), QStringLiteral("12,6"));
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(chorale::numberText(-0.3, 0, german), QStringLiteral("0")) << "no minus before nothing";
}

TEST(ParameterText, TypedValuesAreScaledAndClamped) {
    const auto pitch = make(AudioUnitParameterUnit::absoluteCents, 6900, 0, 12'700);
    EXPECT_EQ(chorale::editingText(*pitch, 1), QStringLiteral("69.0"));
    EXPECT_EQ(chorale::editedValue(*pitch, QStringLiteral("70")), 7000);
    EXPECT_EQ(chorale::editedValue(*pitch, QStringLiteral("1e50")), 12'700);
    EXPECT_FALSE(chorale::editedValue(*pitch, QStringLiteral("inf")));
}

// A text stands for its value: typed back it gives the value that it shows, as exactly as it shows it.
TEST(ParameterText, ParsesBackAtTheShownPrecision) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> values(-20'000, 20'000);
    for (std::uint32_t unit = 0; unit <= 27; ++unit)
        for (int i = 0; i < 500; ++i) {
            const float value = i < 3 ? float(i - 1) : values(random);
            const auto shown = make(static_cast<AudioUnitParameterUnit>(unit), value);
            for (int places = 0; places <= 4; ++places) {
                const QString text = chorale::editingText(*shown, places);
                const auto parsed = chorale::editedValue(*shown, text);
                ASSERT_TRUE(parsed) << text.toStdString();
                const double step = std::pow(10, -places) * double(shown->saveScaleFactor());
                // Half a step, and what a 32-bit float cannot hold.
                const double tolerance = step / 2 + std::abs(double(value)) * 2e-7;
                ASSERT_NEAR(double(*parsed), double(value), tolerance) << unit << ' ' << text.toStdString();
                const auto again = make(static_cast<AudioUnitParameterUnit>(unit), *parsed);
                ASSERT_EQ(chorale::editingText(*again, places), text) << unit;
            }
            const QString hosts = chorale::hostText(value, {});
            ASSERT_EQ(double(chorale::decimalNumber(hosts).value_or(1e9F)), std::nearbyint(double(value)));
        }
}
