#pragma once

#include <QAccessible>

namespace platform {

/// Lets assistive technology see each `Control` through an `Interface`, made from a reference to it. A
/// subclass may have an interface of its own. Once is enough; later calls do nothing.
template <typename Control, typename Interface>
void installAccessibility() {
    constexpr auto make = [](const QString& className, QObject* object) -> QAccessibleInterface* {
        // Asked for the class of the object and for each that it derives from, the nearest first.
        if constexpr (requires { Control::staticMetaObject; })
            if (className != QLatin1String(Control::staticMetaObject.className()))
                return nullptr;
        auto* const control = dynamic_cast<Control*>(object);
        return control != nullptr ? new Interface(*control) : nullptr;
    };
    static const bool installed = [=] {
        QAccessible::installFactory(make);
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace platform
