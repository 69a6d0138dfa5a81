#pragma once

#include "Tidepool/ControlAssets.h"
#include "Tidepool/TPColors.h"

#include <QFont>
#include <QSizeF>

namespace tidepool {

/// The kit's design tokens: what its styles are set up with. Fonts are made on first use and then shared;
/// lengths are points.
struct Styles {
    struct Control {
        static const QFont& font();
        static const QFont& mediumFont();
        static constexpr auto text = TPColors::grey85;
        static constexpr auto selectedText = TPColors::grey100;
        static constexpr auto disabledText = TPColors::grey40;
        static constexpr auto highlightedText = TPColors::grey50;
        static constexpr auto selection = SignalColors::systemHighlight;
        static constexpr auto error = SignalColors::error;
        static constexpr auto clear = Qt::transparent;
    };

    struct Label {
        static constexpr auto text = TPColors::grey60;
        static constexpr auto disabledText = TPColors::grey30;
    };

    struct TextInput {
        static constexpr auto placeholder = TPColors::grey50;
        static constexpr auto highlightedText = TPColors::grey100;
    };

    struct PropertiesTab {
        static const QFont& font();
        static constexpr auto text = TPColors::grey70;
        static constexpr auto selectedText = TPColors::grey85;
        static constexpr auto highlightedText = TPColors::grey50;
    };

    struct TableHeader {
        static constexpr auto background = TPColors::Background::darkest;
    };

    struct TableRow {
        static constexpr auto background = TPColors::Background::darker;
        static constexpr auto selection = SignalColors::systemHighlight;
        static constexpr auto text = TPColors::grey70;
        static constexpr auto selectedText = TPColors::grey100;
    };

    struct Window {
        static const QFont& font();
        static constexpr QSizeF padding{10, 6};
        static constexpr auto text = TPColors::grey85;
    };
};

} // namespace tidepool
