#include "Chorale/TabButton.h"

#include "Chorale/PlainButtonStyles.h"

namespace chorale {

TabButton::TabButton(const QString& title, QWidget* parent)
    : Button(title, std::make_unique<TabButtonStyle>(m_isSelected), parent) {
    // For assistive technology, which is told which one is chosen.
    setCheckable(true);
}

void TabButton::setSelected(bool isSelected) {
    m_isSelected = isSelected;
    setChecked(isSelected);
    update();
}

} // namespace chorale
