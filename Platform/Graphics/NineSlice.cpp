#include "Platform/Graphics/NineSlice.h"

#include <QPainter>

#include <array>

namespace platform {

namespace {

/// Start and length of the three parts of one axis.
struct Part {
    int start, length;
};

using Parts = std::array<Part, 3>;

Parts split(int length, int first, int last) {
    if (const int both = first + last; both > 0 && both > length) {
        first = length * first / both;
        last = length - first;
    }
    return {{{0, first}, {first, length - first - last}, {length - last, last}}};
}

void drawPart(QPainter& painter, const QRect& target, const QImage& source, const QRect& part, bool tile) {
    if (target.isEmpty() || part.isEmpty())
        return;
    if (tile && target.size() != part.size())
        painter.drawTiledPixmap(target, QPixmap::fromImage(source.copy(part)));
    else
        painter.drawImage(target, source, part);
}

} // namespace

QImage drawNineSlice(const QImage& source, const QMargins& caps, const QSize& size, bool tile) {
    if (source.size() == size)
        return source;
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, caps.isNull());
    const Parts sourceColumns = split(source.width(), caps.left(), caps.right());
    const Parts sourceRows = split(source.height(), caps.top(), caps.bottom());
    const Parts columns = split(size.width(), caps.left(), caps.right());
    const Parts rows = split(size.height(), caps.top(), caps.bottom());
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            drawPart(painter,
                     QRect(columns[column].start, rows[row].start, columns[column].length, rows[row].length),
                     source,
                     QRect(sourceColumns[column].start, sourceRows[row].start, sourceColumns[column].length,
                           sourceRows[row].length),
                     tile);
    return result;
}

} // namespace platform
