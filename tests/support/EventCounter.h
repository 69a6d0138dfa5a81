#pragma once

#include <QEvent>
#include <QObject>

/// Counts the events of one type that an object gets.
class EventCounter : public QObject {
public:
    EventCounter(QObject& watched, QEvent::Type type) : m_type(type) { watched.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    const QEvent::Type m_type;
};
