#include "Tidepool/Choices/TideSegmentButton.h"

#include "Platform/Controls/ButtonStyleCell.h"
#include "Tidepool/Choices/SegmentedButtonStyle.h"

#include <utility>

namespace tidepool {

namespace {

/// A title may have an ampersand, but has no mnemonic.
QString asText(QString title) {
    return title.replace(u'&', QStringLiteral("&&"));
}

} // namespace

TideSegmentButton::TideSegmentButton(TideSegmentItemPointer item, QWidget* parent)
    : PushButton(asText(item->title()), std::make_unique<SegmentedButtonStyle>(false), parent),
      m_item(std::move(item)) {
    cell().setButtonType(platform::ButtonCell::ButtonType::onOff);
    setAutoExclusive(true);
}

void TideSegmentButton::setItem(TideSegmentItemPointer item) {
    m_item = std::move(item);
    setText(asText(m_item->title()));
}

void TideSegmentButton::setSelected(bool selected) {
    const auto wanted = selected ? platform::ControlState::on : platform::ControlState::off;
    if (wanted == state())
        return;
    static_cast<platform::ButtonStyleCell&>(cell()).setStyle(
        std::make_unique<SegmentedButtonStyle>(selected));
    setState(wanted);
}

} // namespace tidepool
