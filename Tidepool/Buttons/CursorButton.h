#pragma once

#include "Platform/Controls/PushButton.h"
#include "Tidepool/Buttons/ImageButtonCell.h"

#include <QCursor>

#include <optional>

namespace tidepool {

using CursorButtonCell = ImageButtonCell;

/// An image to press that changes the pointer while it is over it; otherwise the pointer is what `setCursor`
/// says. It takes the first click of an inactive window.
class CursorButton : public platform::PushButton {
    Q_OBJECT

public:
    explicit CursorButton(QWidget* parent = nullptr);

    const platform::Image& cursorImage() const { return m_cursorImage; }

    /// Without one the pointer stays as it is.
    void setCursorImage(platform::Image image);

    QPointF cursorHotSpot() const { return m_cursorHotSpot; }

    /// In points from the image's upper left corner.
    void setCursorHotSpot(QPointF hotSpot);

    bool acceptsFirstMouse() const override { return true; }

protected:
    CursorButton(std::unique_ptr<platform::ButtonCell> cell, QWidget* parent);

    bool event(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void pushPointer();
    void popPointer();
    void refreshPointer();

    platform::Image m_cursorImage;
    QPointF m_cursorHotSpot;
    bool m_isPointerInside = false;
    std::optional<QCursor> m_pointer; // the image as it is shown
    std::optional<QCursor> m_former;  // what it was before, if somebody has set it
};

} // namespace tidepool
