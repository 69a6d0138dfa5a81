#include "Tidepool/Choices/StyledSegmentedControlAccessibility.h"

#include "Platform/Controls/Accessibility.h"
#include "Tidepool/Choices/SegmentInterface.h"
#include "Tidepool/Choices/StyledSegmentedControl.h"

#include <QAccessibleWidget>

#include <vector>

namespace tidepool {

namespace {

class StyledSegmentedControlInterface : public QAccessibleWidget {
public:
    explicit StyledSegmentedControlInterface(StyledSegmentedControl& control)
        : QAccessibleWidget(&control, QAccessible::Grouping), m_control(control) {}

    ~StyledSegmentedControlInterface() override {
        for (const QAccessible::Id id : m_segments)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return m_control.cell().segmentCount(); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (static_cast<int>(m_segments.size()) <= index) {
            const int segment = static_cast<int>(m_segments.size());
            m_segments.push_back(
                QAccessible::registerAccessibleInterface(new SegmentInterface(m_control, segment)));
        }
        return QAccessible::accessibleInterface(m_segments[static_cast<std::size_t>(index)]);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < childCount(); ++i)
            if (this->child(i) == child)
                return i;
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        return child(m_control.segmentAt(m_control.mapFromGlobal(QPointF(x, y))));
    }

    QAccessibleInterface* focusChild() const override {
        return m_control.hasFocus() ? child(m_control.cell().keySegment()) : nullptr;
    }

private:
    StyledSegmentedControl& m_control;
    mutable std::vector<QAccessible::Id> m_segments; // made when they are first asked for
};

} // namespace

void installStyledSegmentedControlAccessibility() {
    platform::installAccessibility<StyledSegmentedControl, StyledSegmentedControlInterface>();
}

} // namespace tidepool
