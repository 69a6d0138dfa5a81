#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QWidget;

namespace platform {

class PointerTracking;

/// Calls a function when a view is clicked with the left button: pressed and released inside, see
/// `PointerTracking` for what else ends a press. The view also gets its events. Main thread.
class ClickGestureRecognizer : public QObject {
    Q_OBJECT

public:
    /// `view` is not owned. `onClick` may destroy it, and this with it. `onPress` hears of the begin of each
    /// press with true, and of its end, whatever ended it, with false.
    ClickGestureRecognizer(QWidget& view, std::function<void()> onClick,
                           std::function<void(bool)> onPress = {});
    ~ClickGestureRecognizer() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin();
    bool release(bool isInside);

    QWidget& m_view;
    const std::function<void()> m_onClick;
    const std::function<void(bool)> m_onPress;
    std::unique_ptr<PointerTracking> m_press; // while the pointer holds the view
};

} // namespace platform
