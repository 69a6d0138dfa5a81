#include "Platform/Controls/TypeAhead.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

#include <algorithm>

namespace platform {

bool TypeAhead::isTyping() const {
    return m_sinceLastKey.isValid() &&
           !m_sinceLastKey.hasExpired(QGuiApplication::styleHints()->keyboardInputInterval());
}

bool TypeAhead::takes(const QKeyEvent& event) const {
    const bool isCommand =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (isCommand || event.text().isEmpty() || !event.text().front().isPrint())
        return false;
    return event.key() != Qt::Key_Space || isTyping();
}

qsizetype TypeAhead::find(const QString& text, const QStringList& titles, qsizetype current) {
    m_typed = isTyping() ? m_typed + text : text;
    m_sinceLastKey.start();
    const bool isOneLetter = m_typed.count(m_typed.front(), Qt::CaseInsensitive) == m_typed.size();
    const QString beginning = isOneLetter ? m_typed.left(1) : m_typed;
    const qsizetype first = isOneLetter ? current + 1 : std::max<qsizetype>(current, 0);
    for (qsizetype i = 0; i < titles.size(); ++i) {
        const qsizetype index = (first + i) % titles.size();
        if (titles[index].startsWith(beginning, Qt::CaseInsensitive))
            return index;
    }
    return -1;
}

} // namespace platform
