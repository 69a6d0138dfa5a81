#pragma once

#include "Chorale/AudioParameter.h"
#include "Platform/Display/DisplayQueue.h"
#include "benchmarks/Parameters/Changes.h"

#include <QCoreApplication>
#include <QObject>

#include <atomic>

namespace benchmark {

/// Ours, for changes of either source.
class OwnRoad {
public:
    OwnRoad(chorale::AudioParameter& parameter, chorale::ParameterEditor source)
        : m_parameter(parameter), m_source(source) {}

    // Of two values in turn, so that none is the one before.
    void change(int index) {
        m_parameter.setValue(index % 2 == 0 ? 0.25F : 0.75F, m_source, chorale::ParameterEditorState::change);
    }

    // The loop lets go before it sleeps. One turn of it takes longer than so many of these.
    void drain() {
        constexpr int drainsInTurn = 256;
        auto& queue = platform::DisplayQueue::shared();
        queue.drain();
        if (++m_drains % drainsInTurn == 0)
            queue.letGo();
    }

    static bool isEmpty() { return platform::DisplayQueue::shared().isEmpty(); }

private:
    chorale::AudioParameter& m_parameter;
    const chorale::ParameterEditor m_source;
    int m_drains = 0;
};

/// A queued call of Qt that stores a number in an object of the main thread.
class QueuedRoad {
public:
    void change(int index) {
        QMetaObject::invokeMethod(
            &m_receiver, [this, value = float(index)] { m_value.store(value, std::memory_order_relaxed); },
            Qt::QueuedConnection);
    }

    static void drain() { QCoreApplication::processEvents(); }

    /// Whether the last of a block has come; once.
    bool isEmpty() { return m_value == changesInBlock - 1 && m_value.exchange(0) != 0; }

private:
    QObject m_receiver;
    std::atomic<float> m_value = 0;
};

} // namespace benchmark
