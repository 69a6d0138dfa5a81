#pragma once

#include "Gallery/Layout/LiveRow.h"
#include "Platform/Core/Action.h"

namespace gallery {

/// Says in a row of controls that one was held.
class HeldTarget : public QObject {
    Q_OBJECT

public:
    static constexpr platform::Selector hold{"sayHeld"};

    explicit HeldTarget(LiveRow& row) : QObject(&row), m_row(row) {}

    Q_INVOKABLE void sayHeld(QObject*) { m_row.say(QStringLiteral("Held")); }

private:
    LiveRow& m_row;
};

} // namespace gallery
