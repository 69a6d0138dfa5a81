#include "Platform/Controls/CellLayout.h"

#include <algorithm>

namespace platform {

namespace {

/// Between an image and a title, in points.
constexpr qreal spacing = 4;

bool isBeside(ImagePosition position) {
    return position == ImagePosition::imageLeft || position == ImagePosition::imageRight ||
           position == ImagePosition::imageLeading || position == ImagePosition::imageTrailing;
}

bool isLeft(const CellContent& content) {
    const bool isRightToLeft = content.direction == Qt::RightToLeft;
    return content.position == ImagePosition::imageLeft ||
           content.position == (isRightToLeft ? ImagePosition::imageTrailing : ImagePosition::imageLeading);
}

/// What is left of the content when the position has dropped its image or its title.
CellContent shown(CellContent content) {
    if (content.position == ImagePosition::noImage)
        content.image = {};
    if (content.position == ImagePosition::imageOnly)
        content.title = {};
    return content;
}

qreal gap(const CellContent& content) {
    return content.image.isEmpty() || content.title.isEmpty() ? 0 : spacing;
}

QRectF aligned(QSizeF size, const QRectF& bounds, const CellContent& content) {
    QRectF rect(QPointF(), size);
    rect.moveCenter(bounds.center());
    if (content.alignment & Qt::AlignLeading)
        content.direction == Qt::RightToLeft ? rect.moveRight(bounds.right()) : rect.moveLeft(bounds.left());
    return rect;
}

CellFrames arrangeBeside(const CellContent& content, const QRectF& bounds) {
    const qreal titleWidth =
        std::max(0.0, std::min(content.title.width(), bounds.width() - content.image.width() - gap(content)));
    const qreal width = content.image.width() + gap(content) + titleWidth;
    const QRectF group = aligned({width, bounds.height()}, bounds, content);
    const bool left = isLeft(content);
    QRectF image = aligned(content.image, group, content);
    QRectF title = aligned({titleWidth, content.title.height()}, group, content);
    left ? image.moveLeft(group.left()) : image.moveRight(group.right());
    left ? title.moveRight(group.right()) : title.moveLeft(group.left());
    return {image, title};
}

CellFrames arrangeStacked(const CellContent& content, const QRectF& bounds) {
    const qreal titleWidth = std::min(content.title.width(), bounds.width());
    const qreal height = content.image.height() + gap(content) + content.title.height();
    const QRectF group = aligned({bounds.width(), height}, bounds, content);
    QRectF image = aligned(content.image, group, content);
    QRectF title = aligned({titleWidth, content.title.height()}, group, content);
    const bool above = content.position == ImagePosition::imageAbove;
    above ? image.moveTop(group.top()) : image.moveBottom(group.bottom());
    above ? title.moveBottom(group.bottom()) : title.moveTop(group.top());
    return {image, title};
}

CellFrames arrangeOver(const CellContent& content, const QRectF& bounds) {
    const QSizeF title(std::min(content.title.width(), bounds.width()), content.title.height());
    return {aligned(content.image, bounds, content), aligned(title, bounds, content)};
}

} // namespace

QSizeF naturalSize(const CellContent& whole) {
    const CellContent content = shown(whole);
    const QSizeF larger = content.image.expandedTo(content.title);
    if (isBeside(content.position))
        return {content.image.width() + gap(content) + content.title.width(), larger.height()};
    if (content.position == ImagePosition::imageAbove || content.position == ImagePosition::imageBelow)
        return {larger.width(), content.image.height() + gap(content) + content.title.height()};
    return larger;
}

CellFrames arrange(const CellContent& whole, const QRectF& bounds) {
    const CellContent content = shown(whole);
    if (isBeside(content.position))
        return arrangeBeside(content, bounds);
    if (content.position == ImagePosition::imageAbove || content.position == ImagePosition::imageBelow)
        return arrangeStacked(content, bounds);
    return arrangeOver(content, bounds);
}

} // namespace platform
