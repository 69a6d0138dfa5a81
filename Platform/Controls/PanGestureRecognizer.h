#pragma once

#include "Platform/Controls/PointerTracking.h"

#include <QPointF>

#include <functional>
#include <memory>

class QMouseEvent;

namespace platform {

/// Tells of drags with the left button that begin on a view; see `PointerTracking` for what ends one. The
/// view does not get these events. Main thread.
class PanGestureRecognizer : public QObject {
    Q_OBJECT

public:
    /// Each may destroy the view, and the recogniser with it. Positions are points in the view's coordinates.
    struct Handlers {
        /// Asked for each press, with which the drag begins; false leaves it to the view.
        std::function<bool(const QMouseEvent& press)> begin;
        /// `from` is where the pointer was seen last.
        std::function<void(const QMouseEvent& move, QPointF from)> move;
        /// `interrupted` also if the recogniser is destroyed meanwhile.
        std::function<void(PointerTracking::End)> end;
    };

    /// `view` is not owned.
    PanGestureRecognizer(QWidget& view, Handlers handlers);
    ~PanGestureRecognizer() override;

    bool isActive() const { return m_tracking && m_tracking->isActive(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool begin(const QMouseEvent& press);
    void move(const QMouseEvent& to);

    QWidget& m_view;
    const Handlers m_handlers;
    QPointF m_last;
    std::unique_ptr<PointerTracking> m_tracking; // while the pointer holds the view
};

} // namespace platform
