#pragma once

#include <cstdint>

namespace noteloft::plugin {

/// Evenly spread numbers (Marsaglia's xorshift with 32 bits). Each starts with the same, so that a rendering
/// can be repeated.
class Random {
public:
    /// In [0, 1).
    float next() {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        constexpr float step = 1.0F / 16777216.0F;
        return static_cast<float>(m_state >> 8) * step;
    }

private:
    std::uint32_t m_state = 0x9E3779B9;
};

} // namespace noteloft::plugin
