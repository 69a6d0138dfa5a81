#include "Platform/Formatters/PlainNumber.h"
#include "Tidepool/Formatters/ConstantNameFormatter.h"
#include "Tidepool/Formatters/ExpressionFormatter.h"
#include "tests/support/FormatterTest.h"

#include <QCoreApplication>
#include <QTranslator>

#include <cmath>
#include <random>

using namespace tidepool;

using ConstantNameFormatterTest = FormatterTest;
using ExpressionFormatterTest = FormatterTest;

namespace {

QStringList texts(const char* texts) {
    return QString::fromUtf8(texts).split(u'|');
}

/// Of pieces that the formatters treat differently.
QString randomText(std::mt19937& random) {
    static const QStringList pieces =
        texts("1|25|0|734|٣|.|,|e|-|+|0x|inf| |\t|$|%|é|\u0301|\u00a0|\U0001d7d9|*") +
        QStringList{QChar(0), QChar(0xdc00)};
    QString text;
    for (auto length = random() % 7; length > 0; --length)
        text += pieces[static_cast<qsizetype>(random() % static_cast<std::size_t>(pieces.size()))];
    return text;
}

} // namespace

TEST_F(ConstantNameFormatterTest, ShowsThePrefixAndEditsWithoutIt) {
    ConstantNameFormatter formatter;
    EXPECT_EQ(shown(formatter, 5) + edited(formatter, {}), "nonenone");
    for (const auto& [name, show, edit] : std::vector<std::array<const char*, 3>>{
             {"abc", "$abc", "abc"}, {"$abc", "$abc", "abc"}, {"a$bc$d", "$a$bc$d", "bc$d"}, {"", "$", ""}}) {
        EXPECT_EQ(shown(formatter, QString::fromUtf8(name)), show);
        EXPECT_EQ(edited(formatter, QString::fromUtf8(name)), edit);
    }
    formatter.setRequiredPrefix(QStringLiteral("Ä_"));
    EXPECT_EQ(shown(formatter, QStringLiteral("xa_b")), "Ä_xa_b");
    EXPECT_EQ(edited(formatter, QStringLiteral("xa_b")), "b") << "neither case nor accents count";
}

TEST_F(ConstantNameFormatterTest, RefusesOtherCharactersAsTheyAreTyped) {
    const ConstantNameFormatter formatter;
    const QString message =
        QStringLiteral("Constant names must only contain A-Z, a-z, 0-9 and the characters _ and $");
    for (const QString& name : texts("|$|gain-db.left|名前|e\u0301|Ⅷ½٣|\U00010400")) {
        EXPECT_EQ(read(formatter, name), QVariant(name));
        EXPECT_EQ(formatter.isPartialStringValid(name).newEditingString, name);
    }
    const QString lone(QChar(0xd801));
    for (const QString& name : texts("my const| |a+|😀") + QStringList{QChar(0), lone, u"a" + lone + u"b",
                                                                      QString(10'000'000, u'a') + u' '}) {
        EXPECT_EQ(formatter.getObjectValue(name).errorDescription, message) << name.left(9).toStdString();
        EXPECT_EQ(formatter.isPartialStringValid(name).errorDescription, message);
        EXPECT_FALSE(formatter.isPartialStringValid(name).newEditingString);
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
    EXPECT_EQ(read(formatter, QStringLiteral(" ")), QByteArray("Namen: %1#a, 50%"));
}

TEST_F(ExpressionFormatterTest, PlainNumbersAreNumbersAndAnythingElseIsText) {
    setCurrentLocale("de_DE");
    ExpressionFormatter formatter;
    formatter.setPositiveSuffix(QStringLiteral(" ms"));
    formatter.setMaximum(20);
    EXPECT_EQ(read(formatter, QStringLiteral("12.5")), QVariant(12.5));
    EXPECT_EQ(read(formatter, QStringLiteral("20.5")), QByteArray("The number must be at most 20 ms."));
    for (const QString& text :
         texts("| 12.5|12.5 |2*x|$gain|1,5|5 ms|30,5") + QStringList(QString(10'000'000, QChar(0x301)))) {
        EXPECT_EQ(read(formatter, text), QVariant(text));
        EXPECT_EQ(formatter.stringForObjectValue(text), text);
        EXPECT_EQ(formatter.editingStringForObjectValue(text), text);
        EXPECT_TRUE(formatter.isPartialStringValid(text).isValid());
    }
    EXPECT_EQ(shown(formatter, {}) + edited(formatter, {}), "nonenone");
}

TEST_F(ExpressionFormatterTest, EveryNumberIsShownWithTheSuffixAndEditedWithout) {
    ExpressionFormatter formatter;
    formatter.setPositiveSuffix(QStringLiteral(" ms"));
    EXPECT_EQ(shown(formatter, -5) + edited(formatter, -5), "-5 ms-5");
    EXPECT_EQ(shown(formatter, QStringLiteral("5")) + edited(formatter, QStringLiteral("5")), "5 ms5");
    formatter.setNegativeSuffix(QStringLiteral(" MS below"));
    EXPECT_EQ(shown(formatter, -5), "-5 MS below ms");
    EXPECT_EQ(edited(formatter, -5), "-5") << "all from the first that reads like it";
    formatter.setFormatterBehavior(ExpressionFormatter::Behavior::oldest);
    EXPECT_EQ(shown(formatter, -5) + edited(formatter, 5), "-5 MS below5 ms");
    ExpressionFormatter percent;
    percent.setNumberStyle(ExpressionFormatter::Style::percent);
    EXPECT_EQ(shown(percent, 0.5) + edited(percent, 0.5), "50%50");
    EXPECT_EQ(read(percent, QStringLiteral("50")), QVariant(0.5));
}

TEST_F(ExpressionFormatterTest, WhateverIsTypedIsKeptOrRefused) {
    std::mt19937 random(20240); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    int numbers = 0;
    for (const char* const name : {"de_DE", "en_US", "fr_FR", "ar_EG", "hi_IN"}) {
        setCurrentLocale(name);
        ExpressionFormatter formatter;
        for (int i = 0; i < 2000; ++i) {
            formatter.setPositiveSuffix(i % 2 == 0 ? std::optional(QStringLiteral("%")) : std::nullopt);
            formatter.setUsesGroupingSeparator(i % 4 < 2);
            const QString typed = randomText(random);
            const auto result = formatter.getObjectValue(typed);
            const auto show = formatter.stringForObjectValue(result.object);
            const auto edit = formatter.editingStringForObjectValue(result.object);
            if (!result.isValid()) {
                EXPECT_FALSE(std::isfinite(platform::plainNumber(typed).value_or(0))) << typed.toStdString();
            } else if (result.object.typeId() == QMetaType::QString) {
                EXPECT_EQ(result.object, QVariant(typed));
                EXPECT_EQ(typed, show);
                EXPECT_EQ(typed, edit);
            } else {
                EXPECT_EQ(show, *edit + formatter.positiveSuffix()) << typed.toStdString();
                EXPECT_EQ(formatter.NumberFormatter::getObjectValue(*edit).object, result.object);
                ++numbers;
            }
        }
    }
    EXPECT_GT(numbers, 100);
}
