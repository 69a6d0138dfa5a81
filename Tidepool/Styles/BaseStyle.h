#pragma once

#include "Platform/Controls/CellStyle.h"
#include "Platform/Graphics/Appearance.h"
#include "Tidepool/Styles/StyleField.h"
#include "Tidepool/Styles/Styles.h"

#include <QColor>

#include <optional>

namespace tidepool {

/// What lies behind a control's text, for text that adapts itself to it.
enum class BackgroundStyle { normal = 0, emphasized = 1, raised = 2, lowered = 3 };

/// What every style can say.
class Style : public platform::CellStyle {
public:
    virtual const std::optional<platform::Appearance>& appearanceName() const = 0;
    virtual BackgroundStyle backgroundStyle() const = 0;
    virtual BackgroundStyle interiorBackgroundStyle() const = 0;
    virtual const QColor& backgroundColor() const = 0;
};

/// The root of the styles: values that controls read on each draw and that are changed only while they are
/// set up. Every accessor can be overridden, and the look-ups go through the accessors. Main thread.
class BaseStyle : public Style {
    TP_STYLE_FIELD(std::optional<platform::Appearance>, appearanceName, setAppearanceName,
                   platform::Appearance::dark)
    TP_STYLE_FIELD(BackgroundStyle, backgroundStyle, setBackgroundStyle, BackgroundStyle::emphasized)
    TP_STYLE_FIELD(BackgroundStyle, interiorBackgroundStyle, setInteriorBackgroundStyle,
                   BackgroundStyle::emphasized)
    TP_STYLE_FIELD(bool, opaque, setOpaque, false)
    TP_STYLE_FIELD(QColor, backgroundColor, setBackgroundColor, Styles::BaseStyles::background)

    /// Takes `accent` in place of the kit's blue; a class overrides this for colours and images of its own.
    /// The appearance is still the one in which the style was made.
    virtual void applyAccent(const QColor& /*accent*/) {}

    /// Called once on a style that is made for all controls of its class.
    virtual void prepareToBeShared() {}
};

} // namespace tidepool
