#include "Tidepool/Choices/SegmentInterface.h"

#include "Tidepool/Choices/StyledSegmentedControl.h"

namespace tidepool {

SegmentInterface::SegmentInterface(StyledSegmentedControl& control, int segment)
    : m_control(&control), m_segment(segment) {}

bool SegmentInterface::isValid() const {
    return m_control != nullptr && m_segment < m_control->cell().segmentCount();
}

QAccessibleInterface* SegmentInterface::parent() const {
    return QAccessible::queryAccessibleInterface(m_control);
}

QString SegmentInterface::text(QAccessible::Text kind) const {
    if (!isValid())
        return {};
    const Segment& segment = m_control->cell().segment(m_segment);
    if (kind == QAccessible::Name) // an image alone is named by its tip
        return segment.label.isEmpty() ? segment.toolTip : segment.label;
    return kind == QAccessible::Description ? segment.toolTip : QString();
}

QRect SegmentInterface::rect() const {
    if (!isValid())
        return {};
    const QRect frame = m_control->segmentFrame(m_segment).toRect();
    return {m_control->mapToGlobal(frame.topLeft()), frame.size()};
}

QAccessible::Role SegmentInterface::role() const {
    if (!isValid())
        return QAccessible::NoRole;
    switch (m_control->cell().trackingMode()) {
    case SegmentTracking::selectOne:
        return QAccessible::RadioButton;
    case SegmentTracking::selectAny:
        return QAccessible::CheckBox;
    case SegmentTracking::momentary:
        break;
    }
    return m_control->onlyOpensMenu(m_segment) ? QAccessible::ButtonMenu : QAccessible::Button;
}

QAccessible::State SegmentInterface::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    const StyledSegmentedCell& cell = m_control->cell();
    state.disabled = !m_control->canUse(m_segment);
    state.invisible = !m_control->isVisible();
    state.focusable = !state.disabled;
    state.focused = m_control->hasFocus() && cell.keySegment() == m_segment;
    state.pressed = cell.highlightedSegment() == m_segment;
    state.checkable = cell.trackingMode() != SegmentTracking::momentary;
    state.checked = cell.isSelected(m_segment);
    state.hasPopup = cell.segment(m_segment).menu != nullptr;
    return state;
}

void* SegmentInterface::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

const QString& SegmentInterface::clickAction() const {
    return m_control->cell().trackingMode() == SegmentTracking::selectAny ? toggleAction() : pressAction();
}

QStringList SegmentInterface::actionNames() const {
    if (!isValid() || !m_control->canUse(m_segment))
        return {};
    QStringList names{clickAction()};
    if (m_control->cell().segment(m_segment).menu != nullptr)
        names << showMenuAction();
    return names;
}

void SegmentInterface::doAction(const QString& name) {
    if (!actionNames().contains(name))
        return;
    if (name == showMenuAction())
        m_control->openMenu(m_segment);
    else
        m_control->click(m_segment); // last: it may destroy the control, and this with it
}

} // namespace tidepool
