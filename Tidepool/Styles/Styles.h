#pragma once

#include "Tidepool/Palette/TPColors.h"

#include <QFont>
#include <QSizeF>

namespace tidepool {

/// The design tokens of the kit, and of windows that are to look like it. Fonts are made on first use and
/// then shared; lengths are points.
struct Styles {
    struct WelcomeHeadings {
        static const QFont& font();
        static const QFont& subtitleFont();
        static constexpr auto subtitleText = TPColors::grey60;
    };

    struct CustomTags {
        static constexpr auto background = TPColors::Vantor::darkPurple;
        static constexpr auto selection = TPColors::Vantor::blue;
        static constexpr qreal cornerRadius = 3;
    };

    struct Layout {
        static constexpr qreal margin = 24;
        static constexpr qreal sectionSpacing = 32;
        static constexpr qreal spacing = 12;
    };

    struct BaseStyles {
        static constexpr auto background = TPColors::Background::normal;
        static constexpr auto clear = Qt::transparent;
    };

    /// Of every control, also in windows and lists, unless another token says otherwise.
    struct Control {
        static const QFont& font();
        static const QFont& mediumFont();
        static constexpr auto text = TPColors::grey85;
        static constexpr auto selectedText = TPColors::grey100;
        static constexpr auto disabledText = TPColors::grey40;
        static constexpr auto highlightedText = TPColors::grey50;
        static constexpr auto selection = TPColors::Highlight::system;
        static constexpr auto error = TPColors::error;
    };

    struct ScrollView {
        static constexpr auto background = TPColors::Background::darkest;
    };

    struct OutlineHeader {
        static const QFont& font();
        static constexpr auto text = TPColors::grey60;
    };

    struct OutlineRow {
        static const QFont& font();
    };

    struct TableView {
        static constexpr qreal rowHeight = 24;
    };

    struct TableHeader {
        static constexpr auto background = TPColors::Background::darkest;
    };

    struct TableRow {
        static constexpr auto background = TPColors::Background::darker;
        static constexpr auto text = TPColors::grey70;
    };

    struct TableGroupRow {
        static const QFont& font();
        static constexpr auto background = TPColors::grey20;
    };

    struct Label {
        static constexpr auto text = TPColors::grey60;
        static constexpr auto disabledText = TPColors::grey30;
    };

    struct TextInput {
        static constexpr auto placeholder = TPColors::grey50;
    };

    struct PropertiesTab {
        static const QFont& font();
        static constexpr auto text = TPColors::grey70;
    };

    struct CanvasInfo {
        /// Its digits are all equally wide, so that numbers that change stand still.
        static const QFont& font();
        static constexpr QSizeF thumbnail{76, 83};
    };

    struct Window {
        static constexpr QSizeF padding{10, 6};
    };
};

} // namespace tidepool
