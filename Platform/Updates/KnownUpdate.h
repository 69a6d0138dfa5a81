#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

namespace platform {

/// The newer version that a check of the user's has found last. The application stores it, and other
/// programs, such as a host with an editor, see it at once. Main thread.
class KnownUpdate : public QObject {
    Q_OBJECT

public:
    KnownUpdate();

    /// As people read it; empty for none.
    static void store(const QString& version);

    /// Empty if none is known, or none that is newer than `running`.
    static QString versionAbove(const QString& running);

Q_SIGNALS:
    /// May come without a change.
    void changed();

private:
    QFileSystemWatcher m_watcher;
};

} // namespace platform
