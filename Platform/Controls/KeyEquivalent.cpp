#include "Platform/Controls/KeyEquivalent.h"

#include <QKeyCombination>

namespace platform {

namespace {

Qt::Key keyTyping(QChar character) {
    switch (character.unicode()) {
    case '\r':
        return Qt::Key_Return;
    case '\t':
        return Qt::Key_Tab;
    case 0x1b:
        return Qt::Key_Escape;
    case '\b':
    case 0x7f:
        return Qt::Key_Backspace;
    default:
        // The codes of keys that type a character are that character, as a capital.
        return static_cast<Qt::Key>(character.toUpper().unicode());
    }
}

Qt::Key keyNamed(const QString& name) {
    const QKeySequence keys = QKeySequence::fromString(name, QKeySequence::PortableText);
    return keys.count() == 1 ? keys[0].key() : Qt::Key_unknown;
}

} // namespace

QKeySequence keyEquivalent(const QString& key, Qt::KeyboardModifiers modifiers) {
    if (key.isEmpty())
        return {};
    const bool isCharacter = key.size() == 1;
    const Qt::Key code = isCharacter ? keyTyping(key.front()) : keyNamed(key);
    if (code == Qt::Key_unknown)
        return {};
    modifiers.setFlag(Qt::ShiftModifier,
                      modifiers.testFlag(Qt::ShiftModifier) || (isCharacter && key.front().isUpper()));
    return QKeyCombination(modifiers, code);
}

} // namespace platform
