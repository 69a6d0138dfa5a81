#include "Chorale/TabButton.h"

#include "Chorale/PlainButtonStyles.h"

namespace chorale {

TabButton::TabButton(const QString& title, QWidget* parent)
    : PushButton(title, std::make_unique<TabButtonStyle>(), parent) {
    cell().setButtonType(platform::ButtonCell::ButtonType::onOff);
}

} // namespace chorale
