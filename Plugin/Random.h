#pragma once

#include <cstdint>

namespace noteloft::plugin {

/// Evenly spread numbers (Marsaglia's xorshift with 32 bits). They are the same for the same seed, so that a
/// rendering can be repeated.
class Random {
public:
    static constexpr std::uint32_t defaultSeed = 0x9E3779B9;

    explicit Random(std::uint32_t seed = defaultSeed) : m_state(seed == 0 ? defaultSeed : seed) {
        // Seeds that lie close together begin alike.
        for (int i = 0; i < 8; ++i)
            next();
    }

    /// In [0, 1).
    float next() {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        constexpr float step = 1.0F / 16777216.0F;
        return static_cast<float>(m_state >> 8) * step;
    }

private:
    std::uint32_t m_state;
};

} // namespace noteloft::plugin
