#include "Platform/Graphics/PreparedText.h"

#include "Platform/Graphics/DevicePixels.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace platform {

namespace {

/// The picture has room around the line for what letters reach beyond their advance, in points.
constexpr qreal overhang = 2;

/// The least rectangle around all that is not transparent; one pixel if there is nothing.
QRect inkBounds(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const auto isInk = [](QRgb pixel) { return qAlpha(pixel) != 0; };
        const auto* const first = std::find_if(row, row + image.width(), isInk);
        if (first == row + image.width())
            continue;
        const auto last =
            std::find_if(std::reverse_iterator(row + image.width()), std::reverse_iterator(row), isInk);
        bounds |= QRect(QPoint(static_cast<int>(first - row), y),
                        QPoint(static_cast<int>(last.base() - row) - 1, y));
    }
    return bounds.isEmpty() ? QRect(0, 0, 1, 1) : bounds;
}

} // namespace

PlainText withoutMnemonic(const QString& source) {
    PlainText result;
    for (qsizetype i = 0; i < source.size(); ++i) {
        if (source[i] == u'&' && i + 1 < source.size()) {
            ++i;
            if (source[i] != u'&' && result.mnemonic < 0)
                result.mnemonic = result.text.size();
        }
        result.text += source[i];
    }
    return result;
}

void PreparedText::set(const QString& text, const QFont& font, Ampersands ampersands) {
    if (text == m_source && font == m_font && m_size.height() > 0)
        return;
    m_source = text;
    m_font = font;
    const PlainText plain = ampersands == Ampersands::areText ? PlainText{text} : withoutMnemonic(text);
    m_text = plain.text;
    m_mnemonic = plain.mnemonic;
    const QFontMetricsF metrics(font);
    // An even height has its middle on a whole point.
    m_advance = metrics.horizontalAdvance(m_text);
    m_size = {std::ceil(m_advance), 2 * std::ceil(metrics.height() / 2)};
    m_lineHeight = QFontMetrics(font).height();
    m_ascent = metrics.ascent();
    m_capHeight = metrics.capHeight();
    m_made.reset();
}

void PreparedText::make(const Made& made) const {
    const QFontMetricsF metrics(m_font);
    const QString shown =
        m_size.width() <= made.width ? m_text : metrics.elidedText(m_text, Qt::ElideRight, made.width);
    m_shownWidth = shown == m_text ? m_size.width() : std::ceil(metrics.horizontalAdvance(shown));
    const QSizeF room(m_shownWidth + 2 * overhang, m_size.height() + 2 * overhang);
    QImage line((room * made.scale).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    line.setDevicePixelRatio(made.scale);
    line.fill(Qt::transparent);
    QPainter painter(&line);
    painter.setFont(m_font);
    painter.setPen(QColor::fromRgba(made.color));
    const QPointF baseline = onPixel(QPointF(overhang, overhang + m_ascent), made.scale);
    painter.drawText(baseline, shown);
    if (made.showsMnemonic && hasMnemonic())
        underlineMnemonic(painter, baseline);
    painter.end();
    const QRect ink = inkBounds(line);
    m_inkOrigin = ink.topLeft();
    m_picture = PreparedPicture(line.copy(ink));
    m_made = made;
}

void PreparedText::draw(QPainter& painter, const QRectF& rect, const Look& look) const {
    const qreal scale = pixelsPerPoint(painter);
    // Every width that the whole text fits into is one and the same.
    const Made wanted{std::min(rect.width(), m_size.width()), scale, look.color, look.showsMnemonic};
    if (m_made != wanted)
        make(wanted);
    qreal x = rect.left();
    if (look.alignment & Qt::AlignHCenter)
        x += (rect.width() - m_shownWidth) / 2;
    else if (look.alignment & Qt::AlignRight)
        x = rect.right() - m_shownWidth;
    const QPointF origin =
        look.isOnLine ? onDevicePixel(painter, {x, rect.top()}) + QPointF(0, onPixel(m_ascent, scale))
                      : QPointF(onPixel(x, scale), onPixel(baseline(rect), scale));
    const QPointF start = onPixel(QPointF(overhang, overhang + m_ascent), scale);
    m_picture.draw(painter, origin - start + QPointF(m_inkOrigin) / scale);
}

void PreparedText::underlineMnemonic(QPainter& painter, QPointF baseline) const {
    const QFontMetricsF metrics(m_font);
    const qreal x = metrics.horizontalAdvance(m_text.left(m_mnemonic));
    const qreal width = metrics.horizontalAdvance(m_text.mid(m_mnemonic, 1));
    const qreal y = std::round(metrics.underlinePos());
    painter.fillRect(QRectF(baseline.x() + x, baseline.y() + y, width, 1), painter.pen().color());
}

} // namespace platform
