#pragma once

#include "Platform/Controls/CellTypes.h"
#include "Platform/Graphics/Image.h"

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;
class QWidget;

namespace platform {

/// What a control measures and draws itself with. It receives no event: its control tells it what to show.
/// Rectangles are points in the control's coordinates. Main thread.
class Cell {
public:
    virtual ~Cell() = default;

    bool isEnabled() const { return m_enabled; }

    void setEnabled(bool enabled) { m_enabled = enabled; }

    /// Pressed.
    bool isHighlighted() const { return m_highlighted; }

    void setHighlighted(bool highlighted) { m_highlighted = highlighted; }

    bool isBordered() const { return m_bordered; }

    void setBordered(bool bordered) { m_bordered = bordered; }

    bool isBezeled() const { return m_bezeled; }

    void setBezeled(bool bezeled) { m_bezeled = bezeled; }

    /// True if it has a frame of either kind.
    bool isFramed() const { return m_bordered || m_bezeled; }

    ControlState state() const { return m_state; }

    void setState(ControlState state) { m_state = state; }

    const QString& title() const { return m_title; }

    // A view tells its cell all of this before each paint: to compare costs less than to share it again.
    void setTitle(const QString& title) {
        if (title != m_title)
            m_title = title;
    }

    /// The title's font, unless a style says otherwise.
    const QFont& font() const { return m_font; }

    void setFont(const QFont& font) {
        if (font != m_font)
            m_font = font;
    }

    Qt::LayoutDirection layoutDirection() const { return m_direction; }

    void setLayoutDirection(Qt::LayoutDirection direction) { m_direction = direction; }

    /// The control that shows the cell, or null. Not owned.
    QWidget* controlView() const { return m_controlView; }

    void setControlView(QWidget* view) { m_controlView = view; }

    /// Pixels in a point where the cell is shown; that of the main screen without a control.
    qreal backingScale() const;

    /// The colour of an enabled control's text, which templates take: the one of the control's palette,
    /// unless a style says otherwise.
    virtual QColor controlTextColor() const;

    /// The part of `bounds` that the frame leaves to the content.
    virtual QRectF drawingRect(const QRectF& bounds) const { return bounds; }

    /// Where the title and the image stand, without and with an own one.
    virtual QRectF titleRect(const QRectF& bounds) const = 0;
    virtual QRectF imageRect(const QRectF& bounds) const = 0;

    /// The natural size.
    virtual QSizeF cellSize() const = 0;

    virtual void draw(QPainter& painter, const QRectF& frame) const = 0;

private:
    bool m_enabled = true;
    bool m_highlighted = false;
    bool m_bordered = true;
    bool m_bezeled = false;
    ControlState m_state = ControlState::off;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
    QString m_title;
    QFont m_font;
    QWidget* m_controlView = nullptr;
};

} // namespace platform
