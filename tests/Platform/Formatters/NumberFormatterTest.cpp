#include "Platform/Formatters/NumberFormatter.h"
#include "Platform/Formatters/LocalizedSearch.h"
#include "Platform/Formatters/PlainNumber.h"
#include "tests/support/FormatterTest.h"

#include <cmath>
#include <limits>
#include <random>

using namespace platform;
using Style = NumberFormatter::Style;
using NumberFormatterTest = FormatterTest;
using LocalizedSearchTest = FormatterTest;

TEST_F(NumberFormatterTest, ShowsNumbersOfEachTypeByStyleAndLocale) {
    NumberFormatter formatter;
    setCurrentLocale("de_DE");
    EXPECT_EQ(shown(formatter, -1234567.125), "-1234567,125");
    EXPECT_EQ(shown(formatter, 0.1F), "0,1") << "not the digits of the double";
    EXPECT_EQ(shown(formatter, std::numeric_limits<quint64>::max()), "18446744073709551615");
    EXPECT_EQ(shown(formatter, QStringLiteral("12.5")), "12,5");
    for (const QVariant& object : {QVariant(), QVariant(true), QVariant(QStringLiteral("x"))})
        EXPECT_EQ(shown(formatter, object), "none");
    formatter.setNumberStyle(Style::decimal);
    EXPECT_EQ(shown(formatter, 1234567.0625), "1.234.567,062");
    formatter.setNumberStyle(Style::percent);
    EXPECT_EQ(shown(formatter, 0.5), "50\u00a0%");
    setCurrentLocale("ar_EG");
    EXPECT_EQ(shown(formatter, 0.5), "٥٠٪\u061c") << "it follows the current locale";
}

TEST_F(NumberFormatterTest, SettingsOutliveAChangeOfTheStyle) {
    NumberFormatter formatter;
    formatter.setPositivePrefix(QStringLiteral("+"));
    formatter.setPositiveSuffix(QStringLiteral(" ms"));
    formatter.setMinimumFractionDigits(1);
    formatter.setMaximumFractionDigits(2);
    formatter.setNumberStyle(Style::decimal);
    EXPECT_EQ(shown(formatter, 1234), "+1,234.0 ms");
    formatter.setUsesGroupingSeparator(false);
    formatter.setNegativePrefix(QStringLiteral("("));
    formatter.setNegativeSuffix(QStringLiteral(")"));
    EXPECT_EQ(shown(formatter, -1234), "(1234.0)");
    EXPECT_EQ(read(formatter, QStringLiteral("(1234.5)")), -1234.5);
}

TEST_F(NumberFormatterTest, ReadsWithinTheLimitsAndGuessesIfLenient) {
    const QByteArray refused("The text cannot be read as a number.");
    NumberFormatter formatter;
    formatter.setLocale(QLocale(QStringLiteral("de_DE")));
    formatter.setNumberStyle(Style::decimal);
    for (const char* const text : {"12.5", "0x1p3", "5 ", "inf", "nan", "1e999", "x"})
        EXPECT_EQ(read(formatter, QString::fromLatin1(text)), refused) << text;
    EXPECT_EQ(read(formatter, {}), QVariant()) << "no object, and no error";
    formatter.setLenient(true);
    for (const auto& [text, number] : std::vector<std::pair<const char*, QVariant>>{{"12.5", 12.5},
                                                                                    {"12,5", 12.5},
                                                                                    {"1.234", 1234},
                                                                                    {"1234,5", 1234.5},
                                                                                    {"1e3", 1000},
                                                                                    {"0x1p3", 8},
                                                                                    {"+5", 5},
                                                                                    {"inf", refused},
                                                                                    {"nan", refused},
                                                                                    {"1e999", refused},
                                                                                    {"5 x", refused}})
        EXPECT_EQ(read(formatter, QString::fromLatin1(text)), number) << text;
    formatter.setLocale(QLocale(QStringLiteral("fr_FR")));
    EXPECT_EQ(read(formatter, QStringLiteral("1.234")), 1.234) << "the French group with a space";
    EXPECT_EQ(read(formatter, QString(10'000'000, u'7')), refused) << "and soon";
    formatter.setNumberStyle(Style::none);
    formatter.setMinimum(-0.5);
    formatter.setMaximum(2);
    EXPECT_EQ(read(formatter, QStringLiteral("2")), 2);
    EXPECT_EQ(read(formatter, QStringLiteral("-0.51")), QByteArray("The number must be at least -0,5."));
    EXPECT_EQ(read(formatter, QStringLiteral("1e999")), QByteArray("The number must be at most 2."));
}

TEST_F(NumberFormatterTest, WhatIsShownReadsAsTheSameNumber) {
    std::mt19937_64 random(20240); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    for (const char* const name : {"de_DE", "en_US", "fr_FR", "ar_EG", "hi_IN"}) {
        setCurrentLocale(name);
        NumberFormatter formatter;
        for (int i = 0; i < 200; ++i) {
            formatter.setLenient(i % 2 == 0);
            formatter.setUsesGroupingSeparator(i % 4 < 2);
            const auto number = std::ldexp(static_cast<double>(static_cast<qint64>(random())), i * 3 - 360);
            EXPECT_EQ(read(formatter, *formatter.stringForObjectValue(number)), number) << name;
        }
    }
}

TEST(PlainNumber, IsWhatTheCLocaleReadsToTheEnd) {
    for (const char* const text : {"12.5", "-.5e-3", "+5", "0x1p3", "inf", "-Infinity", "nan", "5."})
        EXPECT_TRUE(plainNumber(QString::fromLatin1(text))) << text;
    for (const char* const text : {"", " 1", "\t1", "\v1", "1 ", "1,5", "1.5x", "-", "e3", "١", "1\u0301"})
        EXPECT_FALSE(plainNumber(QString::fromUtf8(text))) << text;
    for (const QChar other : {QChar(0), QChar(0xd800)})
        EXPECT_FALSE(plainNumber(u'1' + other) || plainNumber(other + QStringLiteral("1")));
}

TEST_F(LocalizedSearchTest, IgnoresCaseAndAccentsButNoPunctuation) {
    using Place = std::pair<qsizetype, qsizetype>;
    const auto found = [](const char* text, const char* wanted) {
        const auto range = localizedStandardRange(QString::fromUtf8(text), QString::fromUtf8(wanted));
        return range ? Place(range->begin, range->end) : Place(-1, -1);
    };
    for (const char* const name : {"C", "en_US", "th_TH", "vi_VN", "tr_TR"}) {
        setCurrentLocale(name);
        EXPECT_EQ(found("xGÄB", "gab"), Place(1, 4)) << name;
        EXPECT_EQ(found("a$\u0301b", "$"), Place(1, 3)) << name;
        for (const char* const wanted : {"$", "ab", "", "\u0301", "\u200d"})
            EXPECT_EQ(found("a\u0301\u200d b-c_d.", wanted), Place(-1, -1)) << name;
    }
    EXPECT_EQ(found("ISI", "ı"), Place(0, 1)) << "in Turkish";
    setCurrentLocale("vi_VN");
    const QString text = u'$' + QStringLiteral("\u0301\u0323").repeated(5'000'000);
    EXPECT_FALSE(localizedStandardRange(text, QStringLiteral("$x"))) << "and soon";
    EXPECT_EQ(localizedStandardRange(text, QStringLiteral("$"))->end, text.size());
}
