#pragma once

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>

class QWidget;

namespace platform {

class DisplayQueue;

/// Empties a queue from the main thread's loop: when an ordinary thread has woken it, whenever the loop is
/// about to sleep, and by looking every 16 ms while something on screen shows a parameter, else within
/// 250 ms. Runs no timer while there is no target. Main thread.
class DisplayPump : public QObject {
public:
    /// The pump of the shared queue; made with the first target, gone with the application.
    static DisplayPump& shared();

    explicit DisplayPump(DisplayQueue& queue, QObject* parent = nullptr);
    ~DisplayPump() override;

    /// A target has come.
    void start();

    /// Whether it looks by time, and how often.
    bool isRunning() const { return m_timer.isActive(); }

    std::chrono::milliseconds interval() const { return m_timer.intervalAsDuration(); }

    /// Each call of the first is followed by one of the second.
    void beginShowing();
    void endShowing();

private:
    void look();
    void chooseRate();

    DisplayQueue& m_queue;
    QSocketNotifier m_notifier;
    QTimer m_timer;
    int m_showing = 0;
};

/// Keeps the display at the rate of the screen while `view` is shown. A view that shows parameters has one;
/// it goes with the view.
class ParameterVisibility : public QObject {
public:
    explicit ParameterVisibility(QWidget& view);
    ~ParameterVisibility() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setShown(bool isShown);

    bool m_isShown = false;
    QPointer<DisplayPump> m_pump;
};

} // namespace platform
