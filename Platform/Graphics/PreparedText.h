#pragma once

#include "Platform/Graphics/PreparedPicture.h"

#include <QFont>
#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

namespace platform {

/// A text without the ampersands that mark its mnemonic.
struct PlainText {
    QString text;
    qsizetype mnemonic = -1; ///< Where it stands; -1 for none.
};

/// `&` marks the next character as the mnemonic, `&&` stands for `&`.
PlainText withoutMnemonic(const QString& source);

/// A line of text that is drawn once and then only copied, until its text, font, colour, room or scale
/// changes. Main thread.
class PreparedText {
public:
    struct Look {
        QRgb color = 0;
        Qt::Alignment alignment = Qt::AlignHCenter;
        /// Underlines the mnemonic.
        bool showsMnemonic = false;
        /// Places the line, in place of its capitals: at the top of the room, where a line edit draws it.
        bool isOnLine = false;
    };

    enum class Ampersands { markMnemonic, areText };

    void set(const QString& text, const QFont& font, Ampersands ampersands = Ampersands::markMnemonic);

    const QString& text() const { return m_text; }

    bool hasMnemonic() const { return m_mnemonic >= 0; }

    /// In points; the height is the font's line height, made even.
    QSizeF size() const { return m_size; }

    const QFont& font() const { return m_font; }

    /// How far the text reaches, in points, and how high its line is where a line edit draws it.
    qreal advance() const { return m_advance; }

    int lineHeight() const { return m_lineHeight; }

    /// The y on which the text stands when it is drawn into `rect`.
    qreal baseline(const QRectF& rect) const { return rect.center().y() + m_capHeight / 2; }

    /// Draws with the capitals in the middle of the height of `rect`, aligned within its width. What is too
    /// long ends with an ellipsis.
    void draw(QPainter& painter, const QRectF& rect, const Look& look) const;

private:
    /// What the picture was made for.
    struct Made {
        qreal width;
        qreal scale;
        QRgb color;
        bool showsMnemonic;

        bool operator==(const Made&) const = default;
    };

    void make(const Made& made) const;
    void underlineMnemonic(QPainter& painter, QPointF baseline) const;

    QString m_source;
    QString m_text;
    QFont m_font;
    QSizeF m_size;
    qreal m_advance = 0;
    int m_lineHeight = 0;
    qreal m_ascent = 0;
    qreal m_capHeight = 0;
    qsizetype m_mnemonic = -1;
    mutable PreparedPicture m_picture; // of the ink only
    mutable QPoint m_inkOrigin;        // in the line's room, in pixels
    mutable std::optional<Made> m_made;
    mutable qreal m_shownWidth = 0; // of the text or of what the ellipsis leaves of it
};

} // namespace platform
