#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace platform {

/// Calls a function when a view is clicked with the left button: pressed and released inside. The view also
/// gets its events. Main thread.
class ClickGestureRecognizer : public QObject {
    Q_OBJECT

public:
    /// `view` is not owned.
    ClickGestureRecognizer(QWidget& view, std::function<void()> onClick);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_view;
    std::function<void()> m_onClick;
    bool m_pressed = false;
};

} // namespace platform
