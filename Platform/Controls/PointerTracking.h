#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace platform {

/// The pointer's hold on a control, from the press to its end. It ends exactly once: with the release, by
/// Escape, or interrupted: when the control is disabled or hidden, another window blocks its window, a menu,
/// a drag or the window manager takes the pointer and with it the release, or this object goes. While it
/// lasts Escape reaches nobody else. A key that holds the control is tracked the same way. Main thread.
class PointerTracking : public QObject {
    Q_OBJECT

public:
    enum class End { released, escaped, interrupted };

    /// `onEnd` may destroy the control, but not this object unless it is the control's.
    PointerTracking(QWidget& control, std::function<void(End)> onEnd);
    ~PointerTracking() override;

    bool isActive() const { return static_cast<bool>(m_onEnd); }

    void release() { end(End::released); }

    void interrupt() { end(End::interrupted); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void end(End end);
    bool isTakenBy(const QObject& watched, const QEvent& event) const;

    QWidget& m_control;
    const bool m_isPointer;           // rather than a key
    std::function<void(End)> m_onEnd; // empty after the end
};

} // namespace platform
