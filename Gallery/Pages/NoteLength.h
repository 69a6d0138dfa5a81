#pragma once

#include "Tidepool/Menus/EnumPresentation.h"
#include "Tidepool/Menus/MenuStructure.h"

#include <array>

namespace gallery {

/// A setting with several choices, as the maker of an application would have it.
enum class NoteLength { whole, half, quarter, eighth, quarterTriplet, eighthTriplet };

} // namespace gallery

template <>
struct tidepool::Presentation<gallery::NoteLength> : tidepool::EnumPresentation<gallery::NoteLength> {
    using NoteLength = gallery::NoteLength;
    using Structure = tidepool::MenuStructure<NoteLength>;

    static constexpr std::array allCases{NoteLength::whole,          NoteLength::half,
                                         NoteLength::quarter,        NoteLength::eighth,
                                         NoteLength::quarterTriplet, NoteLength::eighthTriplet};

    static QString typeTitle() { return QStringLiteral("Note length"); }

    static QString displayName(NoteLength value);
    static Structure menuStructure();
};
