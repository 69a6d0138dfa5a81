#pragma once

#include "Platform/Controls/PushButton.h"
#include "Tidepool/Buttons/ImageButtonCell.h"

namespace tidepool {

using DarkHighlightButtonCell = ImageButtonCell;

/// An image to press, with a pointer of its own.
class DarkHighlightButton : public platform::PushButton {
    Q_OBJECT

public:
    explicit DarkHighlightButton(QWidget* parent = nullptr)
        : PushButton({}, std::make_unique<DarkHighlightButtonCell>(), parent) {}

    QCursor customCursor() const { return cursor(); }

    /// Shown while the pointer is over the button.
    void setCustomCursor(const QCursor& cursor) { setCursor(cursor); }
};

} // namespace tidepool
