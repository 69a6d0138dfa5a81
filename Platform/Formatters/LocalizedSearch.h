#pragma once

#include <QString>

#include <optional>

namespace platform {

/// A part of a text, in the text's own units.
struct TextRange {
    qsizetype begin = 0;
    qsizetype end = 0;
};

/// The first place at which `text` holds `wanted` for a reader of the current locale, who does not tell apart
/// letters by case or accents; marks that follow belong to it. None for an empty `wanted`, or one of nothing
/// but such marks. Any thread.
std::optional<TextRange> localizedStandardRange(const QString& text, const QString& wanted);

} // namespace platform
