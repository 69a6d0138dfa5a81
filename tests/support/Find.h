#pragma once

#include <QApplication>
#include <QWidget>

/// A visible window of this kind, or null.
template <typename Window>
Window* shownWindow() {
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets)
        if (auto* window = qobject_cast<Window*>(widget); window != nullptr && window->isVisible())
            return window;
    return nullptr;
}

/// The first with this text, or null.
template <typename Widget>
Widget* withText(const QList<Widget*>& widgets, const QString& text) {
    for (Widget* widget : widgets)
        if (widget->text() == text)
            return widget;
    return nullptr;
}
