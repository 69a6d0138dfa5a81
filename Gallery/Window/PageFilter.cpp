#include "Gallery/Window/PageFilter.h"

#include <algorithm>

namespace gallery {

void PageFilter::setSearch(const QString& text) {
    m_words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool PageFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const QString searched = sourceModel()->index(row, 0, parent).data(searchedRole).toString();
    return std::all_of(m_words.begin(), m_words.end(),
                       [&](const QString& word) { return searched.contains(word, Qt::CaseInsensitive); });
}

} // namespace gallery
