#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Sliders.
class SliderCellStyle : public ControlStyle {
public:
    SliderCellStyle();

    virtual const StateImages& barImages() const { return m_barImages; }

    void setBarImages(StateImages value) { m_barImages = std::move(value); }

    virtual const StateImages& knobImages() const { return m_knobImages; }

    void setKnobImages(StateImages value) { m_knobImages = std::move(value); }

    /// Null if there is none.
    virtual const platform::Image* barImage(StyledControlState state) const {
        return barImages().image(state);
    }

    virtual const platform::Image* knobImage(StyledControlState state) const {
        return knobImages().image(state);
    }

private:
    StateImages m_barImages;
    StateImages m_knobImages;
};

} // namespace tidepool
