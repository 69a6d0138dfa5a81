#pragma once

class QWidget;

namespace tidepool {

// Tell assistive technology what has changed in the control that shows a cell; none of it without one.

void announceSegments(QWidget* control);
void announceName(QWidget* control, int segment);
void announceEnabled(QWidget* control, int segment);
void announceSelected(QWidget* control, int segment);

/// The key segment has changed; told only while the control has the keyboard.
void announceFocus(QWidget* control, int segment);

} // namespace tidepool
