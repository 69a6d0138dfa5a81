#include "Platform/Controls/PushButtonAccessibility.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Controls/PushButton.h"

#include <QAccessibleWidget>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>

namespace platform {

namespace {

class PushButtonInterface : public QAccessibleWidget {
public:
    explicit PushButtonInterface(PushButton& button) : QAccessibleWidget(&button), m_button(button) {}

    QAccessible::Role role() const override {
        if (!m_button.showsState())
            return m_button.offeredMenu() != nullptr ? QAccessible::ButtonMenu : QAccessible::Button;
        if (m_button.autoExclusive())
            return QAccessible::RadioButton;
        return m_button.cell().isFramed() ? QAccessible::Button : QAccessible::CheckBox;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Accelerator && !m_button.shortcut().isEmpty())
            return m_button.shortcut().toString(QKeySequence::NativeText);
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? m_button.plainTitle() : own;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = m_button.isDown();
        state.checkable = m_button.showsState();
        state.checked = m_button.showsState() && m_button.state() == ControlState::on;
        state.checkStateMixed = m_button.showsState() && m_button.state() == ControlState::mixed;
        state.hasPopup = m_button.offeredMenu() != nullptr;
        return state;
    }

    QStringList actionNames() const override {
        if (!m_button.isEnabled())
            return {};
        QStringList names{clickAction()};
        if (m_button.answersMenuKey())
            names << showMenuAction();
        return names;
    }

    void doAction(const QString& name) override {
        if (!actionNames().contains(name))
            QAccessibleWidget::doAction(name);
        else if (name == clickAction())
            m_button.click();
        else
            pressMenuKey();
    }

    QStringList keyBindingsForAction(const QString& name) const override {
        const QString keys = text(QAccessible::Accelerator);
        return name == clickAction() && !keys.isEmpty() ? QStringList{keys} : QStringList();
    }

private:
    const QString& clickAction() const { return m_button.showsState() ? toggleAction() : pressAction(); }

    void pressMenuKey() {
        const QPoint center = m_button.rect().center();
        QContextMenuEvent key(QContextMenuEvent::Keyboard, center, m_button.mapToGlobal(center));
        QCoreApplication::sendEvent(&m_button, &key);
    }

    PushButton& m_button;
};

} // namespace

void installPushButtonAccessibility() {
    installAccessibility<PushButton, PushButtonInterface>();
}

} // namespace platform
