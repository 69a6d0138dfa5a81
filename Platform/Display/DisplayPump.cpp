#include "Platform/Display/DisplayPump.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Display/DisplayQueue.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto frameInterval = 16ms;
// A coarse timer may be late by a twentieth, and the loop by what it is busy with; the promise is 250 ms.
constexpr auto idleInterval = 200ms;

} // namespace

DisplayPump& DisplayPump::shared() {
    requireMainThread();
    static QPointer<DisplayPump> pump;
    if (!pump)
        pump = new DisplayPump(DisplayQueue::shared(), QCoreApplication::instance());
    return *pump;
}

DisplayPump::DisplayPump(DisplayQueue& queue, QObject* parent)
    : QObject(parent), m_queue(queue), m_notifier(queue.wakeUp().descriptor(), QSocketNotifier::Read) {
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] { m_queue.answer(); });
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] { look(); });
    connect(&m_timer, &QTimer::timeout, this, [this] { chooseRate(), look(); });
    chooseRate();
}

DisplayPump::~DisplayPump() {
    m_queue.letGo();
}

void DisplayPump::start() {
    if (!m_timer.isActive())
        chooseRate();
}

void DisplayPump::beginShowing() {
    ++m_showing;
    chooseRate();
}

void DisplayPump::endShowing() {
    --m_showing;
    chooseRate();
}

void DisplayPump::look() {
    if (!m_queue.isEmpty())
        m_queue.drain();
    m_queue.letGo();
}

void DisplayPump::chooseRate() {
    const auto interval = m_showing > 0 ? frameInterval : idleInterval;
    if (m_queue.targets() == 0) {
        m_timer.stop();
    } else if (!m_timer.isActive() || m_timer.intervalAsDuration() != interval) {
        m_timer.setTimerType(m_showing > 0 ? Qt::PreciseTimer : Qt::CoarseTimer);
        m_timer.start(interval);
    }
}

ParameterVisibility::ParameterVisibility(QWidget& view) : QObject(&view) {
    view.installEventFilter(this);
    setShown(view.isVisible());
}

ParameterVisibility::~ParameterVisibility() {
    setShown(false);
}

bool ParameterVisibility::eventFilter(QObject*, QEvent* event) {
    // The window system's own events too: a minimised window shows nothing.
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        setShown(event->type() == QEvent::Show);
    return false;
}

void ParameterVisibility::setShown(bool isShown) {
    if (isShown == m_isShown)
        return;
    m_isShown = isShown;
    if (isShown)
        m_pump = &DisplayPump::shared();
    if (m_pump)
        isShown ? m_pump->beginShowing() : m_pump->endShowing();
}

} // namespace platform
