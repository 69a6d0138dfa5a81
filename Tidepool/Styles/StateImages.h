#pragma once

#include "Platform/Graphics/AssetResource.h"
#include "Tidepool/Styles/StyledControlState.h"

#include <array>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

namespace tidepool {

/// Images by control state, in the order in which they were added. Main thread.
class StateImages {
public:
    using Entry = std::pair<StyledControlState, platform::Image>;

    StateImages() = default;
    StateImages(std::initializer_list<std::pair<StyledControlState, platform::ImageResource>> images);

    StateImages(const StateImages& other) : m_entries(other.m_entries) {}

    StateImages& operator=(const StateImages& other);
    StateImages(StateImages&&) noexcept = default;
    StateImages& operator=(StateImages&&) noexcept = default;

    /// Adds the image, or replaces that of the same state, which keeps its place in the order.
    void set(StyledControlState state, platform::Image image);

    const std::vector<Entry>& entries() const { return m_entries; }

    /// Copies of all images with other colours.
    StateImages recolored(const platform::Recoloring& recoloring) const;

    /// The image of `state` itself; else of the subset of it with the most flags, where `default` does not
    /// count and the earlier one wins among equals; else of `default`; else null. Valid until the map is
    /// changed. The first call fills a table of all 256 states, so that the others only look into it, and
    /// allocate nothing.
    const platform::Image* image(StyledControlState state) const;

private:
    using Table = std::array<const platform::Image*, 256>;

    const platform::Image* find(StyledControlState state) const;
    const platform::Image* exact(StyledControlState state) const;

    std::vector<Entry> m_entries;
    mutable std::unique_ptr<Table> m_table;
};

} // namespace tidepool
