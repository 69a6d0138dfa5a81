#include "Platform/Controls/ButtonCell.h"

#include "Platform/Controls/CellLayout.h"
#include "Platform/Graphics/Dimming.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWidget>

#include <array>
#include <utility>

namespace platform {

namespace {

using Masks = ButtonCell::Masks;
using State = StyledControlState;

/// How it highlights and how it shows its state, by the raw value of the type.
const std::array<std::pair<Masks, Masks>, 8> masksOfTypes{{
    {ButtonCell::changeBackground, ButtonCell::none},
    {ButtonCell::pushIn | ButtonCell::changeGray, ButtonCell::changeBackground | ButtonCell::changeGray},
    {ButtonCell::pushIn | ButtonCell::contents, ButtonCell::contents},
    {ButtonCell::contents, ButtonCell::contents},
    {ButtonCell::contents, ButtonCell::contents},
    {ButtonCell::contents, ButtonCell::none},
    {ButtonCell::changeBackground, ButtonCell::changeBackground},
    {ButtonCell::pushIn | ButtonCell::changeGray, ButtonCell::none},
}};

/// What a framed button has around its content, in points.
constexpr qreal sideMargin = 12;
constexpr qreal leastSideMargin = 6;
constexpr qreal framedHeight = 24;
/// What one without a frame has, so that the focus can be drawn around it.
constexpr qreal plainMargin = 4;

/// The size in which an image of `size` is shown where there is `room`.
QSizeF scaled(QSizeF size, QSizeF room, ImageScaling scaling) {
    const bool isLarger = size.width() > room.width() || size.height() > room.height();
    if (scaling == ImageScaling::proportionallyUpOrDown ||
        (scaling == ImageScaling::proportionallyDown && isLarger))
        return size.scaled(room, Qt::KeepAspectRatio);
    return scaling == ImageScaling::axesIndependently ? room : size;
}

} // namespace

ButtonCell::ButtonCell() {
    setButtonType(ButtonType::momentaryPushIn);
}

void ButtonCell::setButtonType(ButtonType type) {
    const auto& [highlightsBy, showsStateBy] = masksOfTypes.at(static_cast<std::size_t>(type));
    setHighlightsBy(highlightsBy);
    setShowsStateBy(showsStateBy);
}

void ButtonCell::setImage(Image image) {
    m_image = std::move(image);
    changed();
}

void ButtonCell::setAlternateImage(Image image) {
    m_alternateImage = std::move(image);
    changed();
}

ControlState ButtonCell::nextState(ControlState state) const {
    if (m_allowsMixedState && state == ControlState::off)
        return ControlState::mixed;
    return state == ControlState::on ? ControlState::off : ControlState::on;
}

const Image& ButtonCell::shownImage(const CellContext& context) const {
    const bool isPressed = m_highlightsBy.testFlag(contents) && context.state.contains(State::highlighted);
    if (context.state.contains(State::on) || isPressed)
        if (const Image& alternate = alternateImage(context.style); !alternate.isNull())
            return alternate;
    return image(context.style);
}

bool ButtonCell::showsMnemonic(const CellContext& context) const {
    return context.title.hasMnemonic() &&
           QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, controlView()) != 0;
}

CellContent ButtonCell::content(const CellContext& context) const {
    const bool isCentered = isFramed() || m_imagePosition == ImagePosition::imageOnly;
    return {imageSize(context), context.title.text().isEmpty() ? QSizeF() : context.title.size(),
            m_imagePosition, context.direction, isCentered ? Qt::AlignHCenter : Qt::AlignLeading};
}

CellFrames ButtonCell::arranged(const QRectF& bounds, const CellContext& context) const {
    CellContent content = this->content(context);
    const bool isAlone = m_imagePosition == ImagePosition::imageOnly;
    const qreal margin = isAlone ? 0 : isFramed() ? leastSideMargin : plainMargin;
    if (!content.image.isEmpty()) // beside a title there is no room to grow into
        content.image =
            scaled(content.image, bounds.size(),
                   isAlone || m_imageScaling == ImageScaling::none ? m_imageScaling
                                                                   : ImageScaling::proportionallyDown);
    return arrange(content, bounds.adjusted(margin, 0, -margin, 0));
}

QRectF ButtonCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    return arranged(bounds, context).title;
}

QRectF ButtonCell::imageRect(const QRectF& bounds, const CellContext& context) const {
    return arranged(bounds, context).image;
}

std::optional<qreal> ButtonCell::baseline(const QRectF& bounds, const CellContext& context) const {
    if (m_imagePosition == ImagePosition::imageOnly || context.title.text().isEmpty())
        return std::nullopt;
    return context.title.baseline(titleRect(drawingRect(bounds, context), context));
}

QSizeF ButtonCell::cellSize(const CellContext& context) const {
    const QSizeF content = naturalSize(this->content(context));
    if (!isFramed())
        return content + QSizeF(2 * plainMargin, 2 * plainMargin);
    const qreal margin = m_imagePosition == ImagePosition::imageOnly ? leastSideMargin : sideMargin;
    return {content.width() + 2 * margin, std::max(content.height() + 4, framedHeight)};
}

void ButtonCell::draw(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    if (isFramed())
        drawBezel(painter, frame, context);
    drawInterior(painter, frame, context);
}

void ButtonCell::drawInterior(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const QRectF interior = drawingRect(frame, context);
    if (m_imagePosition != ImagePosition::noImage && !imageSize(context).isEmpty())
        drawImage(painter, imageRect(interior, context), context);
    if (m_imagePosition != ImagePosition::imageOnly && !context.title.text().isEmpty())
        drawTitle(painter, titleRect(interior, context), context);
}

void ButtonCell::drawBezel(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    QStyleOptionButton option;
    option.rect = frame.toAlignedRect();
    if (controlView() != nullptr)
        option.palette = controlView()->palette();
    option.state.setFlag(QStyle::State_Enabled, !context.state.contains(State::disabled));
    option.state.setFlag(context.state.contains(State::highlighted) && m_highlightsBy ? QStyle::State_Sunken
                                                                                      : QStyle::State_Raised);
    option.state.setFlag(QStyle::State_On, context.state.contains(State::on));
    QApplication::style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, controlView());
}

void ButtonCell::drawTitle(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const QColor color = controlTextColor(context);
    const bool isDimmed = context.state.contains(State::disabled);
    context.title.draw(painter, frame,
                       {(isDimmed ? dimmed(color) : color).rgba(), Qt::AlignHCenter, showsMnemonic(context)});
}

void ButtonCell::drawImage(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const float opacity = context.state.contains(State::disabled) ? dimmedOpacity : 1;
    shownImage(context).tinted(controlTextColor(context)).draw(painter, frame, opacity);
}

} // namespace platform
