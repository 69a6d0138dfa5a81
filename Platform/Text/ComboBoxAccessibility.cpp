#include "Platform/Text/ComboBoxAccessibility.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Text/ComboBox.h"

#include <QAccessibleWidget>

namespace platform {

namespace {

/// The editor, while there is one, is a child that tells of the insertion point and the selection.
class ComboBoxInterface : public QAccessibleWidget {
public:
    explicit ComboBoxInterface(ComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), m_box(box) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? m_box.stringValue() : QAccessibleWidget::text(kind);
    }

    void setText(QAccessible::Text kind, const QString& text) override {
        if (kind == QAccessible::Value)
            m_box.replaceText(text);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = m_box.isEditable();
        state.readOnly = !m_box.isEditable();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = m_box.isListOpen();
        state.collapsed = !m_box.isListOpen();
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_box.isEnabled())
            names << showMenuAction();
        return names;
    }

    void doAction(const QString& name) override {
        if (name != showMenuAction())
            QAccessibleWidget::doAction(name);
        else if (m_box.isListOpen())
            m_box.closeList();
        else
            m_box.openList();
    }

private:
    ComboBox& m_box;
};

} // namespace

void installComboBoxAccessibility() {
    installAccessibility<ComboBox, ComboBoxInterface>();
}

} // namespace platform
