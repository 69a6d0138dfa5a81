#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace platform {

/// How many values a subscriber still wants. Sums saturate at unlimited.
class Demand {
public:
    static constexpr Demand none() { return Demand(0); }

    static constexpr Demand max(std::uint64_t count) { return Demand(std::min(count, endless - 1)); }

    static constexpr Demand unlimited() { return Demand(endless); }

    constexpr bool isNone() const { return m_count == 0; }

    constexpr bool isUnlimited() const { return m_count == endless; }

    friend constexpr Demand operator+(Demand a, Demand b) {
        return Demand(a.m_count > endless - b.m_count ? endless : a.m_count + b.m_count);
    }

    /// One value less; unlimited stays unlimited. Not of none.
    constexpr Demand next() const { return isUnlimited() ? *this : Demand(m_count - 1); }

    friend constexpr bool operator==(Demand, Demand) = default;

private:
    static constexpr std::uint64_t endless = std::numeric_limits<std::uint64_t>::max();

    explicit constexpr Demand(std::uint64_t count) : m_count(count) {}

    std::uint64_t m_count;
};

} // namespace platform
