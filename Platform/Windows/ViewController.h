#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace platform {

/// Manages one view and learns when it comes and goes. A view that is minimised with its window has not gone.
/// The view belongs to its parent widget; a controller whose view is destroyed stays, without a view. Main
/// thread.
class ViewController : public QObject {
    Q_OBJECT

public:
    explicit ViewController(QWidget* view);

    /// Null once it is destroyed.
    QWidget* view() const { return m_view; }

    /// The view is about to appear in its window.
    virtual void viewWillAppear() {}

    virtual void viewDidAppear() {}

    virtual void viewDidDisappear() {}

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> m_view;
};

} // namespace platform
