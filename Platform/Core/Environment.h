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
        if (!values().contains(&widget))
            QObject::connect(&widget, &QObject::destroyed, [key = &widget] { values().remove(key); });
        values().insert(&widget, std::move(value));
    }

    /// Takes the value of `widget` away, so that what holds around it holds for it too.
    static void unset(QWidget& widget) {
        requireMainThread();
        values().remove(&widget);
    }

    /// The value of the nearest of `widget` and its ancestors, beyond window borders too; null if none has
    /// one. Valid until the next `set` or `unset`. Costs nothing while nobody has set a value.
    static const T* find(const QWidget* widget) {
        const QHash<const QWidget*, T>& known = values();
        if (known.isEmpty())
            return nullptr;
        for (; widget != nullptr; widget = widget->parentWidget())
            if (const auto value = known.constFind(widget); value != known.constEnd())
                return &*value;
        return nullptr;
    }

private:
    static QHash<const QWidget*, T>& values() {
        static QHash<const QWidget*, T> values;
        return values;
    }
};

} // namespace platform
