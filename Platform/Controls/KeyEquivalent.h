#pragma once

#include <QKeySequence>
#include <QString>

namespace platform {

/// The keys that `key` stands for: one character as the key types it, of which a capital letter means Shift
/// as well, or a key's name in English such as "F5", "Left" or "Del". Command is `Qt::ControlModifier` here.
/// Empty for an empty or unknown key.
QKeySequence keyEquivalent(const QString& key, Qt::KeyboardModifiers modifiers);

} // namespace platform
