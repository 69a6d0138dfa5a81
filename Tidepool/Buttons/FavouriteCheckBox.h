#pragma once

#include "Tidepool/Buttons/FavouriteCheckBoxCell.h"
#include "Tidepool/Buttons/StyledCheckBox.h"

namespace tidepool {

/// A star to mark a favourite with. It is half as opaque while the pointer holds it.
class FavouriteCheckBox : public StyledCheckBox {
    Q_OBJECT

public:
    explicit FavouriteCheckBox(QWidget* parent = nullptr);

    FavouriteCheckBoxCell& cell() const {
        return static_cast<FavouriteCheckBoxCell&>(StyledCheckBox::cell());
    }

protected:
    /// As opaque as while the pointer holds it, also while the keyboard does.
    void draw(QPainter& painter) override;

    void beginTracking(QMouseEvent& event) override;
    void endTracking() override;
};

} // namespace tidepool
