#include "Chorale/ParameterAccessibility.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/ParameterSteps.h"
#include "Chorale/ParameterView.h"
#include "Platform/Controls/Accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace chorale {

namespace {

class ParameterViewInterface : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit ParameterViewInterface(ParameterView& view)
        : QAccessibleWidget(&dynamic_cast<QWidget&>(view), view.role()), m_view(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        // The bus of assistive technology has only numbers for values: with its unit or its name a value is
        // the description.
        const bool isValue = kind == QAccessible::Value || kind == QAccessible::Description;
        return isValue ? m_view.valueText() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override {
        return widget()->isEnabled() ? m_view.actionNames() : QStringList();
    }

    void doAction(const QString& name) override {
        if (actionNames().contains(name))
            m_view.doAction(name);
        else
            QAccessibleWidget::doAction(name);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = m_view.isPressed();
        return state;
    }

    QVariant currentValue() const override { return m_view.parameter()->displayableValue(); }

    void setCurrentValue(const QVariant& value) override {
        m_view.parameter()->setValue(value.toFloat() * m_view.parameter()->saveScaleFactor(),
                                     ParameterEditor::ui, ParameterEditorState::change);
    }

    QVariant minimumValue() const override { return shown(m_view.parameter()->valueRange().lowerBound()); }

    QVariant maximumValue() const override { return shown(m_view.parameter()->valueRange().upperBound()); }

    QVariant minimumStepSize() const override {
        return shown(static_cast<float>(stepSize(*m_view.parameter())));
    }

private:
    float shown(float value) const { return value * m_view.parameter()->displayScaleFactor(); }

    ParameterView& m_view;
};

} // namespace

void installParameterAccessibility() {
    platform::installAccessibility<ParameterView, ParameterViewInterface>();
}

} // namespace chorale
