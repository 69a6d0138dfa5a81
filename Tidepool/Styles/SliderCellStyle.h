#pragma once

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Sliders.
class SliderCellStyle : public ControlStyle {
public:
    TP_STYLE_FIELD(StateImages, barImages, setBarImages,
                   {{StyledControlState::defaultState, SliderImages::alley},
                    {StyledControlState::highlighted, SliderImages::normal}})
    TP_STYLE_FIELD(StateImages, knobImages, setKnobImages,
                   {{StyledControlState::defaultState, SliderImages::handle},
                    {StyledControlState::highlighted, SliderImages::handleDown},
                    {StyledControlState::mixed, SliderImages::handleMulti}})

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
