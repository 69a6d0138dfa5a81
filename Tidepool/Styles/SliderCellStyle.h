#pragma once

#include "Tidepool/Assets.h"
#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Sliders.
class SliderCellStyle : public ControlStyle {
public:
    TP_STYLE_FIELD(StateImages, barImages, setBarImages,
                   {{StyledControlState::defaultState, Images::tpkSliderAlley},
                    {StyledControlState::highlighted, Images::tpkSlider}})
    TP_STYLE_FIELD(StateImages, knobImages, setKnobImages,
                   {{StyledControlState::defaultState, Images::tpkSliderHandle},
                    {StyledControlState::highlighted, Images::tpkSliderHandleDown},
                    {StyledControlState::mixed, Images::tpkSliderHandleMulti}})

    /// Null if there is none.
    virtual const platform::Image* barImage(StyledControlState state) const {
        return barImages().image(state);
    }

    virtual const platform::Image* knobImage(StyledControlState state) const {
        return knobImages().image(state);
    }

    void applyAccent(const QColor& accent) override {
        ControlStyle::applyAccent(accent);
        setBarImages(accented(barImages(), accent));
        setKnobImages(accented(knobImages(), accent));
    }
};

} // namespace tidepool
