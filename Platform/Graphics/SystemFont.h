#pragma once

#include <QFont>

namespace platform {

enum class FontDesign { standard, rounded };

/// Begins reading the machine's font configuration on another thread, so that the application can start
/// meanwhile. May be called before the application is made.
void prepareFonts();

/// The interface font at `size` points, which are device-independent pixels. Where the machine lacks our
/// first choice the next one stands in, last the desktop's own font.
QFont systemFont(qreal size, QFont::Weight weight = QFont::Normal, FontDesign design = FontDesign::standard);

/// The same in a face whose digits are all equally wide: of ours and the desktop's the first one that has
/// such, else the desktop's fixed font.
QFont monospacedDigitSystemFont(qreal size, QFont::Weight weight = QFont::Normal);

/// The font family `family` at `size` points; the desktop's font if there is none of that name.
QFont customFont(const QString& family, qreal size, QFont::Weight weight = QFont::Normal);

} // namespace platform
