#include "Platform/Graphics/PreparedText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

struct Mnemonic {
    QString text;
    qsizetype position = -1;
};

Mnemonic withoutAmpersands(const QString& source) {
    Mnemonic result;
    for (qsizetype i = 0; i < source.size(); ++i) {
        if (source[i] == u'&' && i + 1 < source.size()) {
            ++i;
            if (source[i] != u'&' && result.position < 0)
                result.position = result.text.size();
        }
        result.text += source[i];
    }
    return result;
}

} // namespace

void PreparedText::set(const QString& text, const QFont& font) {
    if (text == m_source && font == m_font && m_size.height() > 0)
        return;
    m_source = text;
    m_font = font;
    const Mnemonic mnemonic = withoutAmpersands(text);
    m_text = mnemonic.text;
    m_mnemonic = mnemonic.position;
    const QFontMetricsF metrics(font);
    // An even height has its middle on a whole point.
    m_size = {std::ceil(metrics.horizontalAdvance(m_text)), 2 * std::ceil(metrics.height() / 2)};
    m_ascent = metrics.ascent();
    m_capHeight = metrics.capHeight();
    m_width = -1;
}

void PreparedText::shape(qreal width) const {
    const QFontMetricsF metrics(m_font);
    const bool fits = m_size.width() <= width;
    m_shaped.setTextFormat(Qt::PlainText);
    m_shaped.setText(fits ? m_text : metrics.elidedText(m_text, Qt::ElideRight, width));
    m_shaped.prepare(QTransform(), m_font);
    m_shapedWidth = m_shaped.size().width();
    m_width = width;
}

void PreparedText::draw(QPainter& painter, const QRectF& rect, Qt::Alignment alignment,
                        bool showsMnemonic) const {
    // Every width that the whole text fits into is one and the same.
    const qreal width = std::min(rect.width(), m_size.width());
    if (width != m_width)
        shape(width);
    qreal x = rect.left();
    if (alignment & Qt::AlignHCenter)
        x += (rect.width() - m_shapedWidth) / 2;
    else if (alignment & Qt::AlignRight)
        x = rect.right() - m_shapedWidth;
    const qreal scale = painter.device()->devicePixelRatioF();
    const qreal baseline = std::round((rect.center().y() + m_capHeight / 2) * scale) / scale;
    const QPointF origin(std::round(x * scale) / scale, baseline - m_ascent);
    if (painter.font() != m_font)
        painter.setFont(m_font);
    painter.drawStaticText(origin, m_shaped);
    if (showsMnemonic && m_mnemonic >= 0)
        underlineMnemonic(painter, origin);
}

void PreparedText::underlineMnemonic(QPainter& painter, QPointF origin) const {
    const QFontMetricsF metrics(m_font);
    const qreal x = metrics.horizontalAdvance(m_text.left(m_mnemonic));
    const qreal width = metrics.horizontalAdvance(m_text.mid(m_mnemonic, 1));
    const qreal y = std::round(metrics.ascent() + metrics.underlinePos());
    painter.fillRect(QRectF(origin.x() + x, origin.y() + y, width, 1), painter.pen().color());
}

} // namespace platform
