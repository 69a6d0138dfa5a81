#include "Tidepool/Styles/ControlStyle.h"

#include "Tidepool/Styles/Styles.h"

namespace tidepool {

namespace {

constexpr auto active = StyledControlState::highlighted | StyledControlState::on | StyledControlState::mixed;

} // namespace

ControlStyle::ControlStyle()
    : m_font(Styles::Control::font()),
      m_textColor(Styles::Control::text),
      m_textBackgroundColor(QColor(Styles::BaseStyles::clear)),
      m_selectedFont(m_font),
      m_selectedTextColor(Styles::Control::selectedText),
      m_selectedBackgroundColor(Styles::Control::selection),
      m_disabledTextColor(Styles::Control::disabledText),
      m_disabledBackgroundColor(QColor(Styles::BaseStyles::clear)),
      m_highlightedTextColor(Styles::Control::highlightedText),
      m_highlightedBackgroundColor(QColor(Styles::BaseStyles::clear)),
      m_invalidTextColor(Styles::Control::selectedText),
      m_invalidBackgroundColor(Styles::Control::error),
      m_focusRingColor(Styles::Control::selection),
      m_invalidFocusRingColor(Styles::Control::error) {}

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

} // namespace tidepool
