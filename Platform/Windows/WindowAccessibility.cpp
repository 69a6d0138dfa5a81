#include "Platform/Windows/WindowAccessibility.h"

#include <QAccessibleWidget>

namespace platform {

namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    // Classes with an interface of their own, such as dialogs, do not come here by this name.
    auto* const widget = className == QStringLiteral("QWidget") ? qobject_cast<QWidget*>(object) : nullptr;
    const bool isWindow = widget != nullptr && widget->isWindow() && widget->windowType() == Qt::Window;
    return isWindow ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

} // namespace

void installWindowAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace platform
