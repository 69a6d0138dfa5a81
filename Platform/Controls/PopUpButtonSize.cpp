#include "Platform/Controls/PopUpButton.h"

#include <algorithm>
#include <functional>

namespace platform {

/// Of very many items those with most letters.
QList<MenuItem*> PopUpButton::itemsToMeasure() const {
    constexpr qsizetype enough = 64;
    constexpr qsizetype veryMany = 1000;
    auto items = itemArray();
    if (items.size() <= veryMany)
        return items;
    const auto length = [](const MenuItem* item) { return item->title().size(); };
    std::ranges::partial_sort(items, items.begin() + enough, std::greater(), length);
    return items.first(enough);
}

QSizeF PopUpButton::intrinsicContentSize() const {
    QSizeF size = PushButton::intrinsicContentSize();
    if (m_pullsDown)
        return size;
    const CellContext own = context();
    for (const MenuItem* item : itemsToMeasure()) {
        PreparedText title;
        title.set(item->text(), cell().titleFont(font(), own.style));
        size = size.expandedTo(cell().cellSize({own.state, title, own.direction, own.style}));
    }
    return size;
}

} // namespace platform
