#pragma once

#include "Platform/Controls/PushButton.h"
#include "Tidepool/Choices/TideSegmentItem.h"

namespace tidepool {

/// The button of one segment; the arrow keys go from one to the next.
class TideSegmentButton : public platform::PushButton {
    Q_OBJECT

public:
    explicit TideSegmentButton(TideSegmentItemPointer item, QWidget* parent = nullptr);

    const TideSegmentItemPointer& item() const { return m_item; }

    /// Shows the title of another item in place of this one's.
    void setItem(TideSegmentItemPointer item);

    /// Only the model selects.
    void setSelected(bool selected);

protected:
    void nextCheckState() override {}

private:
    TideSegmentItemPointer m_item;
};

} // namespace tidepool
