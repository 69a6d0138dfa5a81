#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QLabel;

namespace gallery {

/// The four voices that pages speak in.
enum class TextRole { title, heading, body, caption };

QFont textFont(TextRole role);

/// In the current appearance.
QColor textColor(TextRole role);

/// A label in that voice. Titles and bodies wrap; nothing is read as markup.
QLabel* makeText(const QString& text, TextRole role);

} // namespace gallery
