#include "Platform/Formatters/PlainNumber.h"
#include "Tidepool/Formatters/ConstantNameFormatter.h"
#include "Tidepool/Formatters/ExpressionFormatter.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tidepool;

namespace {

constexpr auto none = "none";

std::string text(const std::optional<QString>& text) {
    return text.value_or(QString::fromLatin1(none)).toStdString();
}

std::string shown(const platform::Formatter& formatter, const QVariant& object) {
    return text(formatter.stringForObjectValue(object));
}

std::string edited(const platform::Formatter& formatter, const QVariant& object) {
    return text(formatter.editingStringForObjectValue(object));
}

class FormattersTest : public testing::Test {
protected:
    ~FormattersTest() override { QLocale::setDefault(m_former); }

private:
    const QLocale m_former;
};

using ConstantNameFormatterTest = FormattersTest;
using ExpressionFormatterTest = FormattersTest;

/// Texts of pieces that the formatters treat differently, the same in each run.
class RandomTexts {
public:
    QString next() {
        static const QStringList pieces{QStringLiteral("1"),
                                        QStringLiteral("25"),
                                        QStringLiteral("0"),
                                        QStringLiteral("734"),
                                        QStringLiteral("٣"),
                                        QStringLiteral("."),
                                        QStringLiteral(","),
                                        QStringLiteral("e"),
                                        QStringLiteral("-"),
                                        QStringLiteral("+"),
                                        QStringLiteral("0x"),
                                        QStringLiteral("inf"),
                                        QStringLiteral(" "),
                                        QStringLiteral("\t"),
                                        QStringLiteral("$"),
                                        QStringLiteral("%"),
                                        QStringLiteral("é"),
                                        QStringLiteral("\u0301"),
                                        QStringLiteral("\u00a0"),
                                        QStringLiteral("\U0001d7d9"),
                                        QStringLiteral("*"),
                                        QChar(0),
                                        QChar(0xdc00)};
        QString text;
        for (int length = std::uniform_int_distribution(0, 6)(m_random); length > 0; --length)
            text += pieces[std::uniform_int_distribution<qsizetype>(0, pieces.size() - 1)(m_random)];
        return text;
    }

private:
    std::mt19937 m_random{20240}; // NOLINT(cert-msc32-c,cert-msc51-cpp)
};

} // namespace

TEST_F(ConstantNameFormatterTest, ShowsThePrefixAndEditsWithoutIt) {
    ConstantNameFormatter formatter;
    EXPECT_EQ(shown(formatter, 5), none);
    EXPECT_EQ(edited(formatter, {}), none);
    EXPECT_EQ(shown(formatter, QStringLiteral("abc")), "$abc");
    EXPECT_EQ(shown(formatter, QStringLiteral("$abc")), "$abc");
    EXPECT_EQ(shown(formatter, QStringLiteral("")), "$");
    EXPECT_EQ(edited(formatter, QStringLiteral("$abc")), "abc");
    EXPECT_EQ(edited(formatter, QStringLiteral("a$bc$d")), "bc$d");
    EXPECT_EQ(edited(formatter, QStringLiteral("abc")), "abc");
    formatter.setRequiredPrefix(QStringLiteral("Ä_"));
    EXPECT_EQ(shown(formatter, QStringLiteral("a_b")), "Ä_a_b");
    EXPECT_EQ(edited(formatter, QStringLiteral("xa_b")), "b") << "neither case nor accents count";
    formatter.setRequiredPrefix({});
    EXPECT_EQ(shown(formatter, QStringLiteral("a")) + edited(formatter, QStringLiteral("a")), "aa");
}

TEST_F(ConstantNameFormatterTest, RefusesOtherCharactersAsTheyAreTyped) {
    const ConstantNameFormatter formatter;
    constexpr auto message = "Constant names must only contain A-Z, a-z, 0-9 and the characters _ and $";
    for (const QString& name : QStringList{
             QStringLiteral(""), QStringLiteral("$"), QStringLiteral("gain-db.left"), QStringLiteral("名前"),
             QStringLiteral("e\u0301"), QStringLiteral("Ⅷ½٣"), QStringLiteral("\U00010400")}) {
        const auto result = formatter.getObjectValue(name);
        EXPECT_TRUE(result.isValid()) << name.toStdString();
        EXPECT_EQ(result.object, QVariant(name));
        EXPECT_EQ(formatter.isPartialStringValid(name).newEditingString, name);
    }
    const QString lone(QChar(0xd801));
    for (const QString& name : QStringList{QStringLiteral("my const"), QStringLiteral(" "),
                                           QStringLiteral("a+"), QStringLiteral("😀"), QString(QChar(0)), lone,
                                           u"a" + lone + u"b", QString(10'000'000, u'a') + u" "}) {
        EXPECT_EQ(text(formatter.getObjectValue(name).errorDescription), message)
            << name.left(9).toStdString();
        const auto partial = formatter.isPartialStringValid(name);
        EXPECT_EQ(text(partial.errorDescription), message);
        EXPECT_FALSE(partial.newEditingString);
    }
}

TEST_F(ConstantNameFormatterTest, ATranslationMayPlaceThePrefix) {
    class Translator : public QTranslator {
        bool isEmpty() const override { return false; }

        QString translate(const char*, const char* key, const char*, int) const override {
            return QByteArray(key).startsWith("Constant names") ? QStringLiteral("Namen: %1a, 50%")
                                                                : QString();
        }
    } translator;

    QCoreApplication::installTranslator(&translator);
    ConstantNameFormatter formatter;
    formatter.setRequiredPrefix(QStringLiteral("%1#"));
    EXPECT_EQ(text(formatter.getObjectValue(QStringLiteral(" ")).errorDescription), "Namen: %1#a, 50%");
}

TEST_F(ExpressionFormatterTest, PlainNumbersAreNumbersAndAnythingElseIsText) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ExpressionFormatter formatter;
    EXPECT_EQ(int(formatter.formatterBehavior()), 0);
    formatter.setPositiveSuffix(QStringLiteral(" ms"));
    formatter.setMaximum(20);
    EXPECT_EQ(formatter.getObjectValue(QStringLiteral("12.5")).object, QVariant(12.5));
    EXPECT_EQ(text(formatter.getObjectValue(QStringLiteral("20.5")).errorDescription),
              "The number must be at most 20 ms.");
    for (const QString& string : QStringList{
             QStringLiteral(""), QStringLiteral(" 12.5"), QStringLiteral("12.5 "), QStringLiteral("2*x"),
             QStringLiteral("$gain"), QStringLiteral("1,5"), QStringLiteral("5 ms"), QStringLiteral("30,5"),
             QStringLiteral("é") + QString(10'000'000, QChar(0x301))}) {
        const auto result = formatter.getObjectValue(string);
        EXPECT_EQ(result.object, QVariant(string));
        EXPECT_TRUE(result.isValid());
        EXPECT_EQ(formatter.stringForObjectValue(string), string);
        EXPECT_EQ(formatter.editingStringForObjectValue(string), string);
        EXPECT_TRUE(formatter.isPartialStringValid(string).isValid());
    }
    EXPECT_EQ(shown(formatter, {}) + edited(formatter, {}), "nonenone");
}

TEST_F(ExpressionFormatterTest, EveryNumberIsShownWithTheSuffixAndEditedWithout) {
    ExpressionFormatter formatter;
    formatter.setPositiveSuffix(QStringLiteral(" ms"));
    EXPECT_EQ(shown(formatter, -5), "-5 ms");
    EXPECT_EQ(edited(formatter, -5), "-5");
    EXPECT_EQ(shown(formatter, QStringLiteral("5")) + edited(formatter, QStringLiteral("5")), "5 ms5");
    formatter.setNegativeSuffix(QStringLiteral(" MS below"));
    EXPECT_EQ(shown(formatter, -5), "-5 MS below ms");
    EXPECT_EQ(edited(formatter, -5), "-5") << "all from the first that reads like it";
    formatter.setNegativeSuffix({});
    formatter.setFormatterBehavior(ExpressionFormatter::Behavior::oldest);
    EXPECT_EQ(shown(formatter, -5) + edited(formatter, 5), "-55 ms");
    ExpressionFormatter percent;
    percent.setNumberStyle(ExpressionFormatter::Style::percent);
    EXPECT_EQ(shown(percent, 0.5), "50%");
    EXPECT_EQ(edited(percent, 0.5), "50");
    EXPECT_EQ(percent.getObjectValue(QStringLiteral("50")).object, QVariant(0.5));
}

TEST_F(ExpressionFormatterTest, WhateverIsTypedIsKeptOrRefused) {
    RandomTexts texts;
    int numbers = 0;
    for (const char* const name : {"de_DE", "en_US", "fr_FR", "ar_EG", "hi_IN"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        ExpressionFormatter formatter;
        for (int i = 0; i < 2000; ++i) {
            formatter.setPositiveSuffix(i % 2 == 0 ? std::optional(QStringLiteral("%")) : std::nullopt);
            const QString typed = texts.next();
            const auto result = formatter.getObjectValue(typed);
            if (!result.isValid()) {
                EXPECT_FALSE(std::isfinite(platform::plainNumber(typed).value_or(0))) << typed.toStdString();
                continue;
            }
            const QString show = *formatter.stringForObjectValue(result.object);
            const QString edit = *formatter.editingStringForObjectValue(result.object);
            if (result.object.typeId() == QMetaType::QString) {
                EXPECT_EQ(typed, result.object.toString());
                EXPECT_EQ(typed, show);
                EXPECT_EQ(typed, edit);
                continue;
            }
            ++numbers;
            EXPECT_EQ(show, edit + formatter.positiveSuffix()) << typed.toStdString();
            EXPECT_EQ(formatter.NumberFormatter::getObjectValue(edit).object, result.object)
                << name << typed.toStdString();
        }
    }
    EXPECT_GT(numbers, 100);
}

TEST_F(ConstantNameFormatterTest, ANameThatIsTypedIsShownAndEditedAsThatName) {
    RandomTexts texts;
    const ConstantNameFormatter formatter;
    for (const char* const name : {"de_DE", "en_US", "fr_FR", "ar_EG", "hi_IN"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        for (int i = 0; i < 1000; ++i) {
            const QString typed = texts.next();
            EXPECT_EQ(formatter.getObjectValue(typed).isValid(),
                      formatter.isPartialStringValid(typed).isValid());
            const QString show = *formatter.stringForObjectValue(typed);
            EXPECT_EQ(show, typed.startsWith(u'$') ? typed : u"$" + typed);
            if (!typed.contains(u'$') && !typed.startsWith(u'\u0301')) {
                EXPECT_EQ(formatter.editingStringForObjectValue(show), typed) << typed.toStdString();
            }
        }
    }
}
