#pragma once

#include "Platform/Controls/CellStyle.h"
#include "Platform/Graphics/Appearance.h"

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
public:
    BaseStyle();

    const std::optional<platform::Appearance>& appearanceName() const override { return m_appearanceName; }

    void setAppearanceName(std::optional<platform::Appearance> value) { m_appearanceName = value; }

    BackgroundStyle backgroundStyle() const override { return m_backgroundStyle; }

    void setBackgroundStyle(BackgroundStyle value) { m_backgroundStyle = value; }

    BackgroundStyle interiorBackgroundStyle() const override { return m_interiorBackgroundStyle; }

    void setInteriorBackgroundStyle(BackgroundStyle value) { m_interiorBackgroundStyle = value; }

    virtual bool opaque() const { return m_opaque; }

    void setOpaque(bool value) { m_opaque = value; }

    const QColor& backgroundColor() const override { return m_backgroundColor; }

    void setBackgroundColor(QColor value) { m_backgroundColor = value; }

private:
    std::optional<platform::Appearance> m_appearanceName = platform::Appearance::dark;
    BackgroundStyle m_backgroundStyle = BackgroundStyle::emphasized;
    BackgroundStyle m_interiorBackgroundStyle = BackgroundStyle::emphasized;
    bool m_opaque = false;
    QColor m_backgroundColor;
};

} // namespace tidepool
