#pragma once

#include <lv2/ui/ui.h>

#include <cstdint>
#include <set>

namespace noteloft::plugin {

/// The editor's line to the host: what the user does to control ports, as the host wants to be told. The
/// thread that the host calls the editor on.
class HostConnection {
public:
    /// `hostTouch` may be null: a host that does not ask to be told of touches.
    HostConnection(LV2UI_Write_Function hostWrite, LV2UI_Controller controller, const LV2UI_Touch* hostTouch);

    /// The user has put a hand on the port. Not nested.
    void touch(std::uint32_t port);

    void write(std::uint32_t port, float value);

    void release(std::uint32_t port);

    /// Whether the hand is on the port; what the host sends meanwhile is its echo, or not wanted yet.
    bool isTouched(std::uint32_t port) const { return m_touched.contains(port); }

private:
    void tellTouch(std::uint32_t port, bool isTouched) const;

    const LV2UI_Write_Function m_write;
    const LV2UI_Controller m_controller;
    const LV2UI_Touch* const m_touch; // the host's
    std::set<std::uint32_t> m_touched;
};

} // namespace noteloft::plugin
