#include "Tidepool/Choices/SegmentAnnouncements.h"

#include <QAccessible>
#include <QWidget>

namespace tidepool {

namespace {

void announce(QWidget* control, int segment, QAccessible::Event type) {
    if (control == nullptr)
        return;
    QAccessibleEvent event(control, type);
    event.setChild(segment);
    QAccessible::updateAccessibility(&event);
}

void announceState(QWidget* control, int segment, QAccessible::State changed) {
    if (control == nullptr)
        return;
    QAccessibleStateChangeEvent event(control, changed);
    event.setChild(segment);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void announceSegments(QWidget* control) {
    announce(control, -1, QAccessible::ObjectReorder);
}

void announceName(QWidget* control, int segment) {
    announce(control, segment, QAccessible::NameChanged);
}

void announceEnabled(QWidget* control, int segment) {
    QAccessible::State changed;
    changed.disabled = true;
    announceState(control, segment, changed);
}

void announceSelected(QWidget* control, int segment) {
    QAccessible::State changed;
    changed.checked = true;
    announceState(control, segment, changed);
}

void announceFocus(QWidget* control, int segment) {
    if (control != nullptr && control->hasFocus() && segment >= 0)
        announce(control, segment, QAccessible::Focus);
}

} // namespace tidepool
