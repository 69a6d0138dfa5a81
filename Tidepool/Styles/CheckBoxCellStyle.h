#pragma once

#include "Tidepool/Styles/ButtonCellStyle.h"

namespace tidepool {

/// Check boxes.
class CheckBoxCellStyle : public ButtonCellStyle {
public:
    CheckBoxCellStyle();

    TP_STYLE_FIELD(StateImages, buttonImages, setButtonImages)

    /// Null if there is none.
    virtual const platform::Image* buttonImage(StyledControlState state) const {
        return buttonImages().image(state);
    }

    void applyAccent(const QColor& accent) override;
};

/// Check boxes in the form of a star.
class FavouriteCheckBoxCellStyle : public CheckBoxCellStyle {
public:
    FavouriteCheckBoxCellStyle();
};

} // namespace tidepool
