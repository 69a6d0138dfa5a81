#pragma once

#include <QFont>
#include <QRectF>
#include <QStaticText>
#include <QString>

class QPainter;

namespace platform {

/// A line of text that is shaped once and then only drawn, until the text, the font or the width changes.
class PreparedText {
public:
    /// Sets the text, in which `&` marks the next character as its mnemonic and `&&` stands for `&`.
    void set(const QString& text, const QFont& font);

    const QString& text() const { return m_text; }

    /// In points; the height is the font's line height.
    QSizeF size() const { return m_size; }

    /// Draws with the painter's pen, with the capitals in the middle of the height of `rect`, aligned within
    /// its width. What is too long ends with an ellipsis. The mnemonic is underlined if `showsMnemonic`.
    void draw(QPainter& painter, const QRectF& rect, Qt::Alignment alignment,
              bool showsMnemonic = false) const;

private:
    void shape(qreal width) const;
    void underlineMnemonic(QPainter& painter, QPointF origin) const;

    QString m_source;
    QString m_text;
    QFont m_font;
    QSizeF m_size;
    qreal m_ascent = 0;
    qreal m_capHeight = 0;
    qsizetype m_mnemonic = -1;
    mutable QStaticText m_shaped;
    mutable qreal m_shapedWidth = 0;
    mutable qreal m_width = -1; // that the text was shaped for
};

} // namespace platform
