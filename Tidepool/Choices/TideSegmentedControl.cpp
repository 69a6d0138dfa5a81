#include "Tidepool/Choices/TideSegmentedControl.h"

#include "Platform/Core/MainThread.h"
#include "Tidepool/Choices/TideSegmentButton.h"
#include "Tidepool/Choices/TideSegmentedControlModel.h"

#include <QHBoxLayout>

#include <algorithm>
#include <utility>

namespace tidepool {

namespace {

/// Takes the first button of the item out of `buttons`; null if there is none.
TideSegmentButton* takeButton(QList<TideSegmentButton*>& buttons, const TideSegmentItem& item) {
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](const TideSegmentButton* button) { return *button->item() == item; });
    if (found == buttons.end())
        return nullptr;
    TideSegmentButton* const button = *found;
    buttons.erase(found);
    return button;
}

} // namespace

TideSegmentedControl::TideSegmentedControl(std::shared_ptr<TideSegmentedControlModel> model, QWidget* parent)
    : QWidget(parent), m_model(std::move(model)), m_row(new QHBoxLayout(this)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    using Model = TideSegmentedControlModel;
    connect(m_model.get(), &Model::itemsChanged, this, &TideSegmentedControl::showItems);
    connect(m_model.get(), &Model::hideSelectionChanged, this, &TideSegmentedControl::showSelection);
    connect(m_model.get(), &Model::selectedItemChanged, this, &TideSegmentedControl::showSelection);
    showItems();
}

void TideSegmentedControl::showItems() {
    QList<TideSegmentButton*> old = std::exchange(m_buttons, {});
    QWidget* before = nullptr;
    for (const TideSegmentItemPointer& item : m_model->items()) {
        TideSegmentButton* button = takeButton(old, *item);
        if (button == nullptr)
            button = makeButton(item);
        m_row->insertWidget(static_cast<int>(m_buttons.size()), button, 0, Qt::AlignVCenter);
        if (before != nullptr)
            setTabOrder(before, button);
        before = button;
        m_buttons << button;
    }
    for (TideSegmentButton* const gone : old) {
        m_row->removeWidget(gone);
        gone->hide();        // the keyboard goes on to a neighbour
        gone->deleteLater(); // its click may be what took the item away
    }
    showSelection();
}

TideSegmentButton* TideSegmentedControl::makeButton(const TideSegmentItemPointer& item) {
    auto* const button = new TideSegmentButton(item, this);
    connect(button, &TideSegmentButton::clicked, this, [model = m_model, button] {
        platform::requireMainThread();
        model->itemClicked(button->item());
    });
    return button;
}

void TideSegmentedControl::showSelection() {
    const auto& items = m_model->items();
    const auto& selected = m_model->selectedItem();
    for (qsizetype i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setItem(items[i]);
        m_buttons[i]->setSelected(!m_model->hideSelection() && selected && *selected == *items[i]);
    }
}

} // namespace tidepool
