#pragma once

#include <cstdint>

namespace chorale {

/// The element at `index`, null outside of the collection. Valid until the collection changes.
template <typename Collection>
const typename Collection::value_type* safeElement(const Collection& collection, std::int64_t index) {
    const bool isInside = index >= 0 && index < static_cast<std::int64_t>(collection.size());
    return isInside ? &collection[static_cast<typename Collection::size_type>(index)] : nullptr;
}

} // namespace chorale
