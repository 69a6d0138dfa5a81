#include "Tidepool/Text/StyledSearchFieldCell.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QStyle>

namespace tidepool {

using platform::CellContext;

namespace {

// Of the parts, in points, as they lie from left to right.
constexpr qreal glassLeft = 7;
constexpr qreal menuMarkLeft = 18;
constexpr qreal menuMarkWidth = 7;
constexpr qreal crossRight = 19;        // its left edge, from the right
constexpr qreal searchButtonWidth = 30; // the text begins 10 before, and a line edit's margin further
constexpr qreal cancelButtonWidth = 20;
constexpr qreal textLeftWithoutGlass = 4;

QRectF mirrored(const QRectF& rect, const QRectF& bounds, const CellContext& context) {
    const bool isRightToLeft = context.direction == Qt::RightToLeft;
    return isRightToLeft ? rect.translated(bounds.left() + bounds.right() - rect.left() - rect.right(), 0)
                         : rect;
}

} // namespace

void StyledSearchFieldCell::setPlaceholderString(const std::optional<QString>& text) {
    m_internalPlaceholder = text;
    if (text)
        StyledTextFieldCell::setPlaceholderString(*text);
}

qreal StyledSearchFieldCell::searchButtonRight() const {
    return searchButtonWidth + (m_showsMenuMark ? menuMarkWidth : 0);
}

QRectF StyledSearchFieldCell::searchButtonRect(const QRectF& bounds, const CellContext& context) const {
    if (!m_showsSearchIcon)
        return {};
    return mirrored({bounds.left(), bounds.top(), searchButtonRight(), bounds.height()}, bounds, context);
}

QRectF StyledSearchFieldCell::cancelButtonRect(const QRectF& bounds, const CellContext& context) const {
    if (context.title.text().isEmpty())
        return {};
    const qreal left = bounds.right() - cancelButtonWidth - 2;
    return mirrored({left, bounds.top(), cancelButtonWidth, bounds.height()}, bounds, context);
}

QRectF StyledSearchFieldCell::searchTextRect(const QRectF& bounds, const CellContext& context) const {
    const qreal left = bounds.left() + (m_showsSearchIcon ? searchButtonRight() - 10 : textLeftWithoutGlass);
    qreal right = bounds.right() - textLeftWithoutGlass;
    if (!context.title.text().isEmpty())
        right = bounds.right() - cancelButtonWidth;
    const QRectF inHeight = StyledTextFieldCell::titleRect(bounds, context);
    return mirrored({left, inHeight.top(), right - left, inHeight.height()}, bounds, context);
}

StyledSearchFieldCell::Part StyledSearchFieldCell::partAt(QPointF point, const QRectF& bounds,
                                                          const CellContext& context) const {
    if (cancelButtonRect(bounds, context).contains(point))
        return Part::cancelButton;
    const QRectF button = searchButtonRect(bounds, context);
    return button.contains(point) && !searchTextRect(bounds, context).contains(point) ? Part::searchButton
                                                                                      : Part::text;
}

QRectF StyledSearchFieldCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    return searchTextRect(bounds, context);
}

void StyledSearchFieldCell::drawFrame(QPainter& painter, const QRectF& frame,
                                      const CellContext& context) const {
    drawBezel(painter, frame, context); // whose image shows the focus
    const float opacity = opacityOfBezel(context.state);
    const bool isLit = context.state.contains(StyledControlState::focused) || m_pressed == Part::searchButton;
    const QColor color = isLit ? controlTextColor(context) : placeholderColor(context);
    const auto draw = [&](const platform::Image& image, qreal left, qreal top) {
        const QRectF column(frame.left() + left, frame.top() + top, image.size().width(), frame.height());
        drawTinted(
            painter,
            verticallyCentered(QRectF(mirrored(column, frame, context).topLeft(), image.size()), column),
            image, color, opacity);
    };
    if (m_showsSearchIcon)
        draw(Images::tpkSearchGlass, glassLeft, 0);
    if (m_showsSearchIcon && m_showsMenuMark)
        draw(Images::tpkSearchMenu, menuMarkLeft, 2);
    if (!cancelButtonRect(frame, context).isEmpty())
        draw(m_pressed == Part::cancelButton ? Images::tpkSearchCancelDown : Images::tpkSearchCancel,
             frame.width() - crossRight, 0);
}

} // namespace tidepool
