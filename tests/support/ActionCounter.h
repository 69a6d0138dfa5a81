#pragma once

#include "Platform/Core/Action.h"

#include <QObject>

/// A target that counts what it is sent.
class ActionCounter : public QObject {
    Q_OBJECT

public:
    static constexpr platform::Selector first{"receiveFirst"};
    static constexpr platform::Selector second{"receiveSecond"};

    Q_INVOKABLE void receiveFirst(QObject* sender) {
        ++count;
        lastSender = sender;
    }

    Q_INVOKABLE void receiveSecond(QObject*) { ++secondCount; }

    int count = 0;
    int secondCount = 0;
    QObject* lastSender = nullptr;
};
