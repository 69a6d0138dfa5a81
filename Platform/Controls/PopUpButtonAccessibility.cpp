#include "Platform/Controls/PopUpButtonAccessibility.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Controls/PopUpButton.h"

#include <QAccessibleWidget>

namespace platform {

namespace {

class PopUpButtonInterface : public QAccessibleWidget {
public:
    explicit PopUpButtonInterface(PopUpButton& button)
        : QAccessibleWidget(&button, button.pullsDown() ? QAccessible::ButtonMenu : QAccessible::ComboBox),
          m_button(button) {}

    QString text(QAccessible::Text text) const override {
        if (text == QAccessible::Value)
            return m_button.title();
        const QString given = QAccessibleWidget::text(text);
        return text == QAccessible::Name && given.isEmpty() ? m_button.nameBesideTitle() : given;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const bool isOpen = m_button.isMenuOpen();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isOpen;
        state.collapsed = !isOpen;
        return state;
    }

    QStringList actionNames() const override {
        return m_button.isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList();
    }

    void doAction(const QString& name) override {
        if (!actionNames().contains(name))
            QAccessibleWidget::doAction(name);
        else if (name == pressAction())
            m_button.click();
        else
            m_button.openMenu();
    }

private:
    PopUpButton& m_button;
};

} // namespace

void installPopUpButtonAccessibility() {
    installAccessibility<PopUpButton, PopUpButtonInterface>();
}

} // namespace platform
