#pragma once

#include "Platform/Controls/CellStyle.h"
#include "Platform/Controls/CellTypes.h"
#include "Platform/Controls/StyledControlState.h"
#include "Platform/Graphics/PreparedText.h"

#include <QRectF>

class QPainter;
class QWidget;

namespace platform {

/// What a control is at this moment, handed to its cell to measure and to draw. Valid for that call.
struct CellContext {
    StyledControlState state;
    const PreparedText& title;
    Qt::LayoutDirection direction;
    const CellStyle& style;
};

/// What a control measures and draws itself with. It receives no event, and neither measuring nor drawing
/// changes it. Its setters show the change. Rectangles are points in the control's coordinates. Main thread.
class Cell {
public:
    virtual ~Cell() = default;

    bool isBordered() const { return m_bordered; }

    void setBordered(bool bordered) { set(m_bordered, bordered); }

    bool isBezeled() const { return m_bezeled; }

    void setBezeled(bool bezeled) { set(m_bezeled, bezeled); }

    /// True if it has a frame of either kind.
    bool isFramed() const { return m_bordered || m_bezeled; }

    /// The control that shows the cell, or null. Not owned.
    QWidget* controlView() const { return m_controlView; }

    void setControlView(QWidget* view) { m_controlView = view; }

    /// Pixels in a point where the cell is shown; that of the main screen without a control.
    qreal backingScale() const;

    /// Looked up once for each time that the control is measured or drawn.
    virtual const CellStyle& style() const;

    /// The flags that the control knows, with those that the cell does.
    virtual StyledControlState controlState(StyledControlState ofControl) const;

    /// The font of a title in a control whose own is `ofControl`.
    virtual const QFont& titleFont(const QFont& ofControl, const CellStyle& style) const;

    /// The colour of an enabled control's text, which templates take.
    virtual QColor controlTextColor(const CellContext& context) const;

    /// The part of `bounds` that the frame leaves to the content.
    virtual QRectF drawingRect(const QRectF& bounds, const CellContext& context) const;

    /// The natural size.
    virtual QSizeF cellSize(const CellContext& context) const = 0;

    virtual void draw(QPainter& painter, const QRectF& frame, const CellContext& context) const = 0;

    /// Shows within `bounds` that the keyboard is on the control.
    virtual void drawFocus(QPainter& painter, const QRectF& bounds, const CellContext& context) const;

protected:
    /// Measures the control anew and shows it.
    void changed() const;

    template <typename T>
    void set(T& field, T value) {
        if (field == value)
            return;
        field = std::move(value);
        changed();
    }

private:
    bool m_bordered = true;
    bool m_bezeled = false;
    QWidget* m_controlView = nullptr;
};

} // namespace platform
