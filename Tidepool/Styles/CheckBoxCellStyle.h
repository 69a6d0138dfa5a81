#pragma once

#include "Tidepool/Styles/ButtonCellStyle.h"

namespace tidepool {

/// Check boxes.
class CheckBoxCellStyle : public ButtonCellStyle {
public:
    CheckBoxCellStyle();

    virtual const StateImages& buttonImages() const { return m_buttonImages; }

    void setButtonImages(StateImages value) { m_buttonImages = std::move(value); }

    /// Null if there is none.
    virtual const platform::Image* buttonImage(StyledControlState state) const {
        return buttonImages().image(state);
    }

private:
    StateImages m_buttonImages;
};

/// Check boxes in the form of a star.
class FavouriteCheckBoxCellStyle : public CheckBoxCellStyle {
public:
    FavouriteCheckBoxCellStyle();
};

} // namespace tidepool
