#pragma once

#include "Tidepool/Choices/TideSegmentItem.h"

#include <QBindable>
#include <QObject>
#include <QProperty>

#include <functional>

namespace tidepool {

/// The items of a segmented control and which of them is selected. A value that is set and equals the one
/// before is stored but nobody is told. Its bindables can be observed, not set. Main thread.
class TideSegmentedControlModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(
        tidepool::TideSegmentItems items READ items WRITE setItems NOTIFY itemsChanged BINDABLE bindableItems)
    Q_PROPERTY(bool hideSelection READ hideSelection WRITE setHideSelection NOTIFY hideSelectionChanged
                   BINDABLE bindableHideSelection)
    Q_PROPERTY(tidepool::TideSegmentItemPointer selectedItem READ selectedItem WRITE setSelectedItem NOTIFY
                   selectedItemChanged BINDABLE bindableSelectedItem)
    Q_PROPERTY(SelectionChanged onSelectionChanged READ onSelectionChanged WRITE setOnSelectionChanged NOTIFY
                   onSelectionChangedChanged)

public:
    using SelectionChanged = std::function<void(const TideSegmentItemPointer& selectedItem)>;

    explicit TideSegmentedControlModel(const TideSegmentItems& items, QObject* parent = nullptr);

    /// Lists of the same ids in the same order are equal.
    const TideSegmentItems& items() const { return m_items.value(); }

    void setItems(const TideSegmentItems& items);

    QBindable<TideSegmentItems> bindableItems() const { return {&m_items}; }

    /// While this is set no segment is shown as selected; `selectedItem` stays.
    bool hideSelection() const { return m_hideSelection; }

    void setHideSelection(bool hides) { m_hideSelection = hides; }

    QBindable<bool> bindableHideSelection() const { return {&m_hideSelection}; }

    /// Null for none.
    const TideSegmentItemPointer& selectedItem() const { return m_selectedItem.value(); }

    void setSelectedItem(const TideSegmentItemPointer& item);

    QBindable<TideSegmentItemPointer> bindableSelectedItem() const { return {&m_selectedItem}; }

    /// Called after each click of the user, also one that changes nothing; it may destroy the model.
    const SelectionChanged& onSelectionChanged() const { return m_onSelectionChanged; }

    void setOnSelectionChanged(SelectionChanged callback);

    /// Selects the first item with this id, if there is one, and tells `onSelectionChanged` nothing.
    void select(int itemWithId);

    /// What a click on a segment does: it selects the item, shows a selection that was hidden, or takes the
    /// selection away.
    void itemClicked(const TideSegmentItemPointer& item);

Q_SIGNALS:
    void itemsChanged();
    void hideSelectionChanged();
    void selectedItemChanged();
    void onSelectionChangedChanged();

private:
    using Model = TideSegmentedControlModel;

    Q_OBJECT_BINDABLE_PROPERTY(Model, TideSegmentItems, m_items, &Model::itemsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Model, bool, m_hideSelection, false, &Model::hideSelectionChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Model, TideSegmentItemPointer, m_selectedItem, &Model::selectedItemChanged)
    SelectionChanged m_onSelectionChanged;
};

} // namespace tidepool
