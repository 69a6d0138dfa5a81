#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

class QKeyEvent;

namespace platform {

/// Finds the title that a user begins to type; keys that follow each other quickly count together.
class TypeAhead {
public:
    /// True for a key that types something. A space does only within a beginning.
    bool takes(const QKeyEvent& event) const;

    /// The index of the next title that begins as typed, upper and lower case alike, around the end if need
    /// be; -1 if there is none. The same letter again goes on to the next after `current`, which may be -1.
    /// Empty titles are never found.
    qsizetype find(const QString& text, const QStringList& titles, qsizetype current);

private:
    bool isTyping() const;

    QString m_typed;
    QElapsedTimer m_sinceLastKey;
};

} // namespace platform
