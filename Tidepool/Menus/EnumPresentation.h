#pragma once

#include "Platform/Graphics/Image.h"
#include "Tidepool/Menus/Presentation.h"

#include <QString>

#include <type_traits>

namespace tidepool {

/// Most of an enumeration's presentation. What is missing is what only its maker knows:
///
///     template <>
///     struct tidepool::Presentation<Waveform> : tidepool::EnumPresentation<Waveform> {
///         static constexpr std::array allCases{Waveform::sine, Waveform::square};
///         static QString typeTitle();
///         static QString displayName(Waveform value);
///     };
template <typename T>
requires std::is_enum_v<T>

struct EnumPresentation {
    static constexpr auto rawValue(T value) { return static_cast<std::underlying_type_t<T>>(value); }

    static QString title(T value) { return Presentation<T>::displayName(value); }

    static constexpr int tag(T value) { return static_cast<int>(value); }

    static platform::Image image(T) { return {}; }
};

} // namespace tidepool
