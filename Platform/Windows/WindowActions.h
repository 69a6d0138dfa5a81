#pragma once

#include <QList>
#include <QObject>

class QAction;

namespace platform {

/// Gives the actions of an application's menu, with their keys, to every window that it shows, so that they
/// work whichever is in front. Main thread.
class WindowActions : public QObject {
    Q_OBJECT

public:
    /// The actions stay the caller's and live as long as this.
    explicit WindowActions(QList<QAction*> actions);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QAction*> m_actions;
};

} // namespace platform
