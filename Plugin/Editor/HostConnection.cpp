#include "Plugin/Editor/HostConnection.h"

namespace noteloft::plugin {

HostConnection::HostConnection(LV2UI_Write_Function hostWrite, LV2UI_Controller controller,
                               const LV2UI_Touch* hostTouch)
    : m_write(hostWrite), m_controller(controller), m_touch(hostTouch) {}

void HostConnection::tellTouch(std::uint32_t port, bool isTouched) const {
    if (m_touch != nullptr)
        m_touch->touch(m_touch->handle, port, isTouched);
}

void HostConnection::touch(std::uint32_t port) {
    m_touched.insert(port);
    tellTouch(port, true);
}

void HostConnection::write(std::uint32_t port, float value) {
    constexpr std::uint32_t plainFloat = 0;
    m_write(m_controller, port, sizeof value, plainFloat, &value);
}

void HostConnection::release(std::uint32_t port) {
    m_touched.erase(port);
    tellTouch(port, false);
}

} // namespace noteloft::plugin
