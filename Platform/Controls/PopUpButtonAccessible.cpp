#include "Platform/Controls/PopUpButtonAccessible.h"

#include "Platform/Controls/PopUpButton.h"

#include <QAccessibleWidget>

namespace platform {

namespace {

class PopUpButtonAccessible : public QAccessibleWidget {
public:
    explicit PopUpButtonAccessible(PopUpButton& button)
        : QAccessibleWidget(&button, button.pullsDown() ? QAccessible::ButtonMenu : QAccessible::ComboBox),
          m_button(button) {}

    QString text(QAccessible::Text text) const override {
        return text == QAccessible::Value ? m_button.title() : QAccessibleWidget::text(text);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const bool isOpen = m_button.menu() != nullptr && m_button.menu()->isVisible();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isOpen;
        state.collapsed = !isOpen;
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_button.isEnabled())
            names.prepend(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == showMenuAction())
            m_button.openMenu();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    PopUpButton& m_button;
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    const bool isOurs = className == QLatin1StringView(PopUpButton::staticMetaObject.className());
    auto* const button = isOurs ? qobject_cast<PopUpButton*>(object) : nullptr;
    return button != nullptr ? new PopUpButtonAccessible(*button) : nullptr;
}

} // namespace

void makePopUpButtonsAccessible() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(isInstalled);
}

} // namespace platform
