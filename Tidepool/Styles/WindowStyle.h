#pragma once

#include "Tidepool/Styles/BaseStyle.h"

#include <QFont>
#include <QSizeF>

#include <utility>

namespace tidepool {

/// Windows.
class WindowStyle : public BaseStyle {
public:
    WindowStyle();

    virtual const QSizeF& padding() const { return m_padding; }

    void setPadding(QSizeF value) { m_padding = value; }

    virtual const QFont& font() const { return m_font; }

    void setFont(QFont value) { m_font = std::move(value); }

    virtual const QColor& textColor() const { return m_textColor; }

    void setTextColor(QColor value) { m_textColor = value; }

private:
    QSizeF m_padding;
    QFont m_font;
    QColor m_textColor;
};

/// Popovers look like windows.
class PopoverStyle : public WindowStyle {};

} // namespace tidepool
