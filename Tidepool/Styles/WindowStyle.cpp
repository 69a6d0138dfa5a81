#include "Tidepool/Styles/WindowStyle.h"

#include "Tidepool/Styles/Styles.h"

namespace tidepool {

WindowStyle::WindowStyle()
    : m_padding(Styles::Window::padding), m_font(Styles::Window::font()), m_textColor(Styles::Window::text) {}

} // namespace tidepool
