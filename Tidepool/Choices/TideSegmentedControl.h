#pragma once

#include "Tidepool/Choices/TideSegmentItem.h"

#include <QWidget>

#include <memory>

class QHBoxLayout;

namespace tidepool {

class TideSegmentButton;
class TideSegmentedControlModel;

/// A row of buttons like tabs, one for each item of its model. At most one is selected, and a click on that
/// one takes the selection away.
///
///     auto model = std::make_shared<TideSegmentedControlModel>(items);
///     model->setOnSelectionChanged([this](const TideSegmentItemPointer& item) { show(item); });
///     auto* control = new TideSegmentedControl(model, this);
class TideSegmentedControl : public QWidget {
    Q_OBJECT

public:
    explicit TideSegmentedControl(std::shared_ptr<TideSegmentedControlModel> model,
                                  QWidget* parent = nullptr);

    const std::shared_ptr<TideSegmentedControlModel>& model() const { return m_model; }

private:
    void showItems();
    void showSelection();
    TideSegmentButton* makeButton(const TideSegmentItemPointer& item);

    const std::shared_ptr<TideSegmentedControlModel> m_model;
    QHBoxLayout* m_row;
    QList<TideSegmentButton*> m_buttons; // in the order of the items
};

} // namespace tidepool
