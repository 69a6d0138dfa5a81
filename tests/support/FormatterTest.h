#pragma once

#include "Platform/Formatters/Formatter.h"

#include <QLocale>

#include <gtest/gtest.h>

/// Puts the current locale back, and says what formatters answer in a form that failures print.
class FormatterTest : public testing::Test {
protected:
    ~FormatterTest() override { QLocale::setDefault(m_former); }

    static std::string shown(const platform::Formatter& formatter, const QVariant& object) {
        return formatter.stringForObjectValue(object).value_or(QStringLiteral("none")).toStdString();
    }

    static std::string edited(const platform::Formatter& formatter, const QVariant& object) {
        return formatter.editingStringForObjectValue(object).value_or(QStringLiteral("none")).toStdString();
    }

    /// The object, or the error in its place.
    static QVariant read(const platform::Formatter& formatter, const QString& text) {
        const auto result = formatter.getObjectValue(text);
        return result.isValid() ? result.object : QVariant::fromValue(result.errorDescription->toUtf8());
    }

    static void setCurrentLocale(const char* name) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
    }

private:
    const QLocale m_former;
};
