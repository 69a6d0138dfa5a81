#pragma once

#include "Tidepool/Assets.h"
#include "Tidepool/Menus/EnumPresentation.h"
#include "Tidepool/Menus/MenuStructure.h"

#include <QStringList>

#include <array>

/// A setting as a maker describes it.
enum class Waveform { sine = 3, square, noise };

template <>
struct tidepool::Presentation<Waveform> : tidepool::EnumPresentation<Waveform> {
    static constexpr std::array allCases{Waveform::square, Waveform::sine, Waveform::noise};

    static QString typeTitle() { return QStringLiteral("Waveform"); }

    static QString displayName(Waveform value) {
        return QStringList{QStringLiteral("Sine"), QStringLiteral("Square"), QStringLiteral("Noise")}.value(
            static_cast<int>(value) - 3);
    }

    static platform::Image image(Waveform value) {
        return value == Waveform::noise ? tidepool::Images::organiserIconStar.image() : platform::Image();
    }
};

/// A value that is no enumeration, with an arrangement of its own.
struct Scale {
    QString name;

    friend bool operator==(const Scale&, const Scale&) = default;
};

template <>
struct tidepool::Presentation<Scale> {
    inline static const std::vector<Scale> allCases{
        {QStringLiteral("major")}, {QStringLiteral("minor")}, {QStringLiteral("dorian")}};

    static QString typeTitle() { return QStringLiteral("Scale"); }

    static QString displayName(const Scale& value) { return value.name.toUpper(); }

    static QString rawValue(const Scale& value) { return value.name; }

    static QString title(const Scale& value) { return displayName(value); }

    static int tag(const Scale& value) { return static_cast<int>(value.name.size()); }

    static platform::Image image(const Scale&) { return {}; }

    static MenuStructure<Scale> menuStructure() {
        using Structure = MenuStructure<Scale>;
        return Structure::submenu(
            typeTitle(), {Structure::inlineTitle(QStringLiteral("Common")), Structure::item(allCases[0]),
                          Structure::item(allCases[1]), Structure::separator(),
                          Structure::submenu(QStringLiteral("Modes"), {Structure::item(allCases[2])})});
    }
};
