#pragma once

#include "Platform/Controls/PushButton.h"
#include "Tidepool/CursorButtonCell.h"

#include <QCursor>

#include <optional>

namespace tidepool {

/// An image to press that changes the pointer while it is over it. It takes the first click of an inactive
/// window.
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

    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    const QCursor& pointer();

    platform::Image m_cursorImage;
    QPointF m_cursorHotSpot;
    std::optional<QCursor> m_pointer; // made when it is first used
};

} // namespace tidepool
