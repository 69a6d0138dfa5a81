#include "Tidepool/Choices/TideSegmentedControlModel.h"

#include <algorithm>
#include <utility>

namespace tidepool {

namespace {

bool isSame(const TideSegmentItemPointer& a, const TideSegmentItemPointer& b) {
    return a == b || (a && b && *a == *b);
}

} // namespace

TideSegmentedControlModel::TideSegmentedControlModel(const TideSegmentItems& items, QObject* parent)
    : QObject(parent) {
    m_items.setValueBypassingBindings(items);
}

void TideSegmentedControlModel::setItems(const TideSegmentItems& items) {
    const TideSegmentItems& old = this->items();
    if (std::equal(old.begin(), old.end(), items.begin(), items.end(), isSame))
        m_items.setValueBypassingBindings(items);
    else
        m_items = items;
}

void TideSegmentedControlModel::setSelectedItem(const TideSegmentItemPointer& item) {
    if (isSame(selectedItem(), item))
        m_selectedItem.setValueBypassingBindings(item);
    else
        m_selectedItem = item;
}

void TideSegmentedControlModel::setOnSelectionChanged(SelectionChanged callback) {
    if (!callback && !m_onSelectionChanged)
        return;
    m_onSelectionChanged = std::move(callback);
    Q_EMIT onSelectionChangedChanged(); // functions cannot be compared
}

void TideSegmentedControlModel::select(int itemWithId) {
    for (const TideSegmentItemPointer& item : items())
        if (item->id() == itemWithId) {
            setSelectedItem(item);
            return;
        }
}

void TideSegmentedControlModel::itemClicked(const TideSegmentItemPointer& item) {
    const bool wasHidden = hideSelection();
    setHideSelection(false);
    if (!isSame(selectedItem(), item))
        setSelectedItem(item);
    else if (!wasHidden)
        setSelectedItem(nullptr);
    const SelectionChanged callback = onSelectionChanged();
    const TideSegmentItemPointer selected = selectedItem();
    if (callback)
        callback(selected);
}

} // namespace tidepool
