#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

namespace {

constexpr auto active = StyledControlState::highlighted | StyledControlState::on | StyledControlState::mixed;

} // namespace

const QColor& ControlStyle::focusRingColor(StyledControlState state) const {
    return state.contains(StyledControlState::invalid) ? invalidFocusRingColor() : focusRingColor();
}

const QColor& ControlStyle::textColor(StyledControlState state) const {
    if (state.contains(StyledControlState::disabled))
        return disabledTextColor();
    if (state.contains(StyledControlState::invalid))
        return invalidTextColor();
    if (state.contains(StyledControlState::selected))
        return selectedTextColor();
    return state.intersects(active) ? highlightedTextColor() : textColor();
}

const QColor& ControlStyle::backgroundColor(StyledControlState state) const {
    if (state.contains(StyledControlState::invalid))
        return invalidBackgroundColor();
    if (state.intersects(active))
        return highlightedBackgroundColor();
    if (state.contains(StyledControlState::selected))
        return selectedBackgroundColor();
    return state.contains(StyledControlState::disabled) ? disabledBackgroundColor() : backgroundColor();
}

const platform::Image* ControlStyle::bezelImage(StyledControlState state) const {
    return bezelImages().image(state);
}

void ControlStyle::applyAccent(const QColor& accent) {
    setBezelImages(accented(bezelImages(), accent));
    setSwiftUIBezelImages(accented(swiftUIBezelImages(), accent));
    setSelectedBackgroundColor(accent);
    setFocusRingColor(accent);
}

StateImages ControlStyle::accented(const StateImages& images, const QColor& accent) {
    return images.recolored({Styles::Control::selection.color().rgb(), accent.rgb()});
}

} // namespace tidepool
