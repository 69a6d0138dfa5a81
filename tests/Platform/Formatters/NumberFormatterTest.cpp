#include "Platform/Formatters/NumberFormatter.h"
#include "Platform/Formatters/LocalizedSearch.h"
#include "Platform/Formatters/PlainNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace platform;
using Style = NumberFormatter::Style;

namespace {

QLocale german() {
    return {QLocale::German, QLocale::Germany};
}

/// What an object of any type reads like, as a test can print it.
std::string read(const NumberFormatter& formatter, const QString& text) {
    const auto result = formatter.getObjectValue(text);
    return (result.isValid() ? result.object.toString() : *result.errorDescription).toStdString();
}

std::string shown(const NumberFormatter& formatter, const QVariant& object) {
    return formatter.stringForObjectValue(object).value_or(QStringLiteral("none")).toStdString();
}

class LocaleTest : public testing::Test {
protected:
    ~LocaleTest() override { QLocale::setDefault(m_former); }

private:
    const QLocale m_former;
};

using NumberFormatterTest = LocaleTest;
using LocalizedSearchTest = LocaleTest;

} // namespace

TEST_F(NumberFormatterTest, ShowsNumbersOfEachTypeByStyleAndLocale) {
    NumberFormatter formatter;
    formatter.setLocale(german());
    EXPECT_EQ(shown(formatter, -1234567.125), "-1234567,125");
    EXPECT_EQ(shown(formatter, 0.1F), "0,1") << "not the digits of the double";
    EXPECT_EQ(shown(formatter, std::numeric_limits<quint64>::max()), "18446744073709551615");
    EXPECT_EQ(shown(formatter, std::numeric_limits<qint64>::min()), "-9223372036854775808");
    EXPECT_EQ(shown(formatter, QStringLiteral("12.5")), "12,5");
    for (const QVariant& object : {QVariant(), QVariant(true), QVariant(QStringLiteral("x"))})
        EXPECT_EQ(shown(formatter, object), "none");
    formatter.setNumberStyle(Style::decimal);
    EXPECT_EQ(shown(formatter, 1234567.0625), "1.234.567,062");
    formatter.setNumberStyle(Style::percent);
    EXPECT_EQ(shown(formatter, 0.5), "50\u00a0%");
    EXPECT_EQ(formatter.positiveSuffix(), QStringLiteral("\u00a0%"));
    formatter.setLocale({});
    QLocale::setDefault({QLocale::Arabic, QLocale::Egypt});
    EXPECT_EQ(shown(formatter, 0.5), "٥٠٪\u061c") << "it follows the current locale";
}

TEST_F(NumberFormatterTest, SettingsOutliveAChangeOfTheStyle) {
    NumberFormatter formatter;
    formatter.setLocale(QLocale(QLocale::English));
    formatter.setPositivePrefix(QStringLiteral("+"));
    formatter.setPositiveSuffix(QStringLiteral(" ms"));
    formatter.setMinimumFractionDigits(1);
    formatter.setMaximumFractionDigits(2);
    formatter.setNumberStyle(Style::decimal);
    EXPECT_EQ(shown(formatter, 1234), "+1,234.0 ms");
    EXPECT_EQ(shown(formatter, -1.125), "-1.12");
    formatter.setUsesGroupingSeparator(false);
    formatter.setNegativePrefix(QStringLiteral("("));
    formatter.setNegativeSuffix(QStringLiteral(")"));
    EXPECT_EQ(shown(formatter, -1234), "(1234.0)");
    EXPECT_EQ(read(formatter, QStringLiteral("(1234.5)")), "-1234.5");
    formatter.setPositiveSuffix({});
    EXPECT_EQ(shown(formatter, 1), "+1.0");
}

TEST_F(NumberFormatterTest, LenientReadingGuessesWhatTheLocaleDoesNotWrite) {
    constexpr auto refused = "The text cannot be read as a number.";
    NumberFormatter formatter;
    formatter.setLocale(german());
    formatter.setNumberStyle(Style::decimal);
    for (const char* const text : {"12.5", "0x1p3", "5 ", "inf", "nan", "1e999", "x"})
        EXPECT_EQ(read(formatter, QString::fromLatin1(text)), refused) << text;
    EXPECT_TRUE(formatter.getObjectValue({}).isValid()) << "no object, and no error";
    formatter.setLenient(true);
    for (const auto& [text, number] : std::vector<std::pair<const char*, const char*>>{{"12.5", "12.5"},
                                                                                       {"12,5", "12.5"},
                                                                                       {"1.234", "1234"},
                                                                                       {"1234,5", "1234.5"},
                                                                                       {"1e3", "1000"},
                                                                                       {"0x1p3", "8"},
                                                                                       {"+5", "5"},
                                                                                       {"inf", refused},
                                                                                       {"nan", refused},
                                                                                       {"1e999", refused},
                                                                                       {"5 x", refused}})
        EXPECT_EQ(read(formatter, QString::fromLatin1(text)), number) << text;
    formatter.setLocale(QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(read(formatter, QStringLiteral("1.234")), "1.234") << "the French group with a space";
    formatter.setNumberStyle(Style::percent);
    EXPECT_EQ(read(formatter, QStringLiteral("12.5")), "0.125");
}

TEST_F(NumberFormatterTest, RefusesNumbersBeyondTheLimits) {
    NumberFormatter formatter;
    formatter.setLocale(german());
    formatter.setLenient(true);
    formatter.setMinimum(-0.5);
    formatter.setMaximum(2);
    EXPECT_EQ(read(formatter, QStringLiteral("-0.5")), "-0.5");
    EXPECT_EQ(read(formatter, QStringLiteral("2")), "2");
    EXPECT_EQ(read(formatter, QStringLiteral("-0.51")), "The number must be at least -0,5.");
    EXPECT_EQ(read(formatter, QStringLiteral("1e999")), "The number must be at most 2.");
    EXPECT_EQ(shown(formatter, 3), "3") << "shown all the same";
}

TEST_F(NumberFormatterTest, WhatIsShownReadsAsTheSameNumber) {
    std::mt19937_64 random(20240); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (const char* const name : {"de_DE", "en_US", "fr_FR", "ar_EG", "hi_IN"}) {
        NumberFormatter formatter;
        formatter.setLocale(QLocale(QString::fromLatin1(name)));
        for (int i = 0; i < 200; ++i) {
            formatter.setLenient(i % 2 == 0);
            formatter.setUsesGroupingSeparator(i % 4 < 2);
            const double number = std::ldexp(mantissa(random), exponent(random));
            const QString text = *formatter.stringForObjectValue(number);
            EXPECT_EQ(formatter.getObjectValue(text).object, QVariant(number)) << name << text.toStdString();
        }
    }
}

TEST_F(NumberFormatterTest, EndlessDigitsAndLettersEndSoon) {
    NumberFormatter formatter;
    formatter.setLenient(true);
    EXPECT_EQ(read(formatter, QString(10'000'000, u'7')), "The text cannot be read as a number.");
    EXPECT_EQ(read(formatter, u"0." + QString(10'000'000, u'0')), "0");
    EXPECT_EQ(read(formatter, QString(10'000'000, QChar(0xd800))), "The text cannot be read as a number.");
}

TEST(PlainNumber, IsWhatTheCLocaleReadsToTheEnd) {
    for (const char* const text : {"12.5", "-.5e-3", "+5", "0x1p3", "inf", "-Infinity", "nan", "5."})
        EXPECT_TRUE(plainNumber(QString::fromLatin1(text))) << text;
    for (const char* const text : {"", " 1", "\t1", "\v1", "1 ", "1,5", "1.5x", "-", "e3", "١", "1\u0301"})
        EXPECT_FALSE(plainNumber(QString::fromUtf8(text))) << text;
    for (const QString& rest : QStringList{QString(QChar(0)), QString(QChar(0xd800))}) {
        EXPECT_FALSE(plainNumber(u"1" + rest));
        EXPECT_FALSE(plainNumber(rest + u"1"));
    }
}

TEST_F(LocalizedSearchTest, IgnoresCaseAndAccentsButNoPunctuation) {
    const auto found = [](const char* text, const char* wanted) {
        const auto range = localizedStandardRange(QString::fromUtf8(text), QString::fromUtf8(wanted));
        return range ? std::pair(range->begin, range->end) : std::pair<qsizetype, qsizetype>(-1, -1);
    };
    constexpr std::pair<qsizetype, qsizetype> nowhere(-1, -1);
    for (const char* const name : {"C", "en_US", "th_TH", "vi_VN", "tr_TR"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        EXPECT_EQ(found("xGÄB", "gab"), std::pair(qsizetype(1), qsizetype(4))) << name;
        EXPECT_EQ(found("a$\u0301b", "$"), std::pair(qsizetype(1), qsizetype(3))) << name;
        EXPECT_EQ(found("a b-c_d.", "$"), nowhere) << name;
        EXPECT_EQ(found("a b", "ab"), nowhere) << name;
        for (const char* const wanted : {"", "\u0301", "\u200d"})
            EXPECT_EQ(found("a\u0301\u200d", wanted), nowhere) << name;
        EXPECT_EQ(found("", "$"), nowhere) << name;
    }
    EXPECT_EQ(found("ISI", "ı"), std::pair(qsizetype(0), qsizetype(1))) << "in Turkish";
}

TEST_F(LocalizedSearchTest, MarksWithoutEndEndSoon) {
    QString marks = QStringLiteral("\u0301\u0323").repeated(5'000'000);
    for (const char* const name : {"en_US", "vi_VN"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        EXPECT_FALSE(localizedStandardRange(u"$" + marks, QStringLiteral("$x")));
        EXPECT_EQ(localizedStandardRange(u"$" + marks, QStringLiteral("$"))->end, marks.size() + 1);
    }
}
