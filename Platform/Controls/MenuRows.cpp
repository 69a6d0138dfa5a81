#include "Platform/Controls/MenuRows.h"

#include "Platform/Controls/ListPopup.h"
#include "Platform/Controls/Menu.h"

#include <algorithm>

namespace platform {

void MenuRows::fill(const Menu& menu) {
    beginResetModel();
    m_rows.clear();
    bool beginsGroup = false;
    const auto items = menu.items();
    for (MenuItem* const item : items) {
        if (!item->isVisible())
            continue;
        const bool isLine = item->isSeparator() && !item->isSectionHeader();
        if (!isLine)
            m_rows.push_back({item, beginsGroup && !m_rows.empty()});
        beginsGroup = isLine;
    }
    endResetModel();
}

void MenuRows::remove(const QAction* action) {
    const auto found = std::ranges::find_if(m_rows, [=](const Row& row) { return row.item == action; });
    if (found == m_rows.end())
        return;
    const auto row = static_cast<int>(found - m_rows.begin());
    beginRemoveRows({}, row, row);
    m_rows.erase(found);
    endRemoveRows();
}

MenuItem* MenuRows::itemOf(int row) const {
    return row >= 0 && row < rowCount() ? m_rows[static_cast<std::size_t>(row)].item : nullptr;
}

int MenuRows::rowOf(const MenuItem* item) const {
    const auto found = std::ranges::find(m_rows, item, &Row::item);
    return found != m_rows.end() ? static_cast<int>(found - m_rows.begin()) : -1;
}

int MenuRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MenuRows::data(const QModelIndex& index, int role) const {
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.item->title();
    case Qt::DecorationRole:
        return row.item->icon().isNull() ? QVariant() : QVariant(row.item->icon());
    case Qt::CheckStateRole:
        return row.item->state() == MenuItem::State::on      ? Qt::Checked
               : row.item->state() == MenuItem::State::mixed ? Qt::PartiallyChecked
                                                             : Qt::Unchecked;
    case ListPopup::beginsGroup:
        return row.beginsGroup;
    case ListPopup::isHeader:
        return row.item->isSectionHeader();
    default:
        return {};
    }
}

Qt::ItemFlags MenuRows::flags(const QModelIndex& index) const {
    const MenuItem* const item = itemOf(index.row());
    return item != nullptr && item->isEnabled() && !item->isSeparator()
               ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
               : Qt::ItemFlags(Qt::ItemNeverHasChildren);
}

} // namespace platform
