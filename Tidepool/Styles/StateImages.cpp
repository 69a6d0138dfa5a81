#include "Tidepool/Styles/StateImages.h"

#include <algorithm>
#include <bit>

namespace tidepool {

namespace {

/// The flags that tell a look from another, without `default`.
constexpr std::int64_t scoredFlags = 0xfe;

int score(StyledControlState state) {
    return std::popcount(static_cast<std::uint64_t>(state.rawValue & scoredFlags));
}

} // namespace

StateImages::StateImages(
    std::initializer_list<std::pair<StyledControlState, platform::ImageResource>> images) {
    for (const auto& [state, resource] : images)
        set(state, resource.image());
}

StateImages& StateImages::operator=(const StateImages& other) {
    m_entries = other.m_entries;
    m_table.reset();
    return *this;
}

void StateImages::set(StyledControlState state, platform::Image image) {
    m_table.reset();
    const auto known = std::ranges::find(m_entries, state, &Entry::first);
    if (known == m_entries.end())
        m_entries.emplace_back(state, std::move(image));
    else
        known->second = std::move(image);
}

StateImages StateImages::recolored(const platform::Recoloring& recoloring) const {
    StateImages result;
    for (const auto& [state, image] : m_entries)
        result.set(state, image.recolored(recoloring));
    return result;
}

const platform::Image* StateImages::exact(StyledControlState state) const {
    const auto found = std::ranges::find(m_entries, state, &Entry::first);
    return found == m_entries.end() ? nullptr : &found->second;
}

const platform::Image* StateImages::find(StyledControlState state) const {
    if (const auto* image = exact(state))
        return image;
    const Entry* best = nullptr;
    for (const Entry& entry : m_entries)
        if (!state.isEmpty() && entry.first.isSubset(state) &&
            (best == nullptr || score(entry.first) > score(best->first)))
            best = &entry;
    return best != nullptr ? &best->second : exact(StyledControlState::defaultState);
}

const platform::Image* StateImages::image(StyledControlState state) const {
    if (state.rawValue < 0 || state.rawValue > 255)
        return find(state);
    if (!m_table) {
        m_table = std::make_unique<Table>();
        for (std::size_t i = 0; i < m_table->size(); ++i)
            (*m_table)[i] = find({static_cast<std::int64_t>(i)});
    }
    return (*m_table)[static_cast<std::size_t>(state.rawValue)];
}

} // namespace tidepool
