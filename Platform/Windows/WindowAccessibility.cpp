#include "Platform/Windows/WindowAccessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace platform {

namespace {

/// Its role is asked for whenever it is needed: a widget may be put into a window later.
class PlainWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override {
        const bool isWindow = widget()->isWindow() && widget()->windowType() == Qt::Window;
        return isWindow ? QAccessible::Window : QAccessibleWidget::role();
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    // Classes with an interface of their own, such as dialogs, do not come here by this name.
    auto* const widget = className == QStringLiteral("QWidget") ? qobject_cast<QWidget*>(object) : nullptr;
    return widget != nullptr ? new PlainWidget(widget) : nullptr;
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
