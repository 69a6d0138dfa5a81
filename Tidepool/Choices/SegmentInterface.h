#pragma once

#include <QAccessible>
#include <QPointer>

namespace tidepool {

class StyledSegmentedControl;

/// One segment as assistive technology sees it. Invalid once the control has fewer segments.
class SegmentInterface : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    SegmentInterface(StyledSegmentedControl& control, int segment);

    bool isValid() const override;

    QObject* object() const override { return nullptr; }

    QAccessibleInterface* parent() const override;

    QAccessibleInterface* child(int) const override { return nullptr; }

    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override;

    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const QString& clickAction() const;

    QPointer<StyledSegmentedControl> m_control;
    int m_segment;
};

} // namespace tidepool
