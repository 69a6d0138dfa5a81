#pragma once

#include "Platform/Core/MainThread.h"

#include <QHash>
#include <QWidget>

#include <utility>

namespace platform {

/// Values that hold for a widget and everything in it, by their type. Main thread.
template <typename T>
class Environment {
public:
    /// Replaces the value of `widget`, which is dropped with it.
    static void set(QWidget& widget, T value) {
        requireMainThread();
        const auto known = values().find(&widget);
        if (known != values().end())
            known->value = std::move(value);
        else
            values().insert(&widget, {std::move(value), removedWith(widget)});
    }

    /// Takes the value of `widget` away, so that what holds around it holds for it too.
    static void unset(QWidget& widget) {
        requireMainThread();
        QObject::disconnect(values().take(&widget).removal);
    }

    /// The value of the nearest of `widget` and its ancestors, beyond window borders too; null if none has
    /// one. Valid until the next `set` or `unset`. Costs nothing while nobody has set a value.
    static const T* find(const QWidget* widget) {
        const auto& known = std::as_const(values());
        if (known.isEmpty())
            return nullptr;
        for (; widget != nullptr; widget = widget->parentWidget())
            if (const auto value = known.constFind(widget); value != known.constEnd())
                return &value->value;
        return nullptr;
    }

private:
    struct Entry {
        T value;
        QMetaObject::Connection removal;
    };

    static QMetaObject::Connection removedWith(const QWidget& widget) {
        return QObject::connect(&widget, &QObject::destroyed, [key = &widget] { values().remove(key); });
    }

    static QHash<const QWidget*, Entry>& values() {
        static QHash<const QWidget*, Entry> values;
        return values;
    }
};

} // namespace platform
