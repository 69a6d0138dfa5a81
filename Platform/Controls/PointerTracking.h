#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace platform {

/// The pointer's hold on a control, from the press to its end. It ends exactly once: with the release, by
/// Escape, or interrupted when the control is disabled or hidden, another window blocks its window, or this
/// object goes. While it lasts Escape reaches nobody else. Main thread.
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

    QWidget& m_control;
    std::function<void(End)> m_onEnd; // empty after the end
};

} // namespace platform
