#include "Platform/Controls/ButtonCell.h"

#include "Platform/Controls/CellLayout.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWidget>

#include <array>

namespace platform {

namespace {

struct Masks {
    int highlightsBy, showsStateBy;
};

/// By the raw value of the type.
constexpr std::array<Masks, 8> masksOfTypes{{
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
constexpr float disabledOpacity = 0.5F;

} // namespace

ButtonCell::ButtonCell() {
    setButtonType(ButtonType::momentaryPushIn);
}

void ButtonCell::setButtonType(ButtonType type) {
    const Masks masks = masksOfTypes.at(static_cast<std::size_t>(type));
    m_highlightsBy = masks.highlightsBy;
    m_showsStateBy = masks.showsStateBy;
}

ControlState ButtonCell::nextState() const {
    if (m_allowsMixedState && state() == ControlState::off)
        return ControlState::mixed;
    return state() == ControlState::on ? ControlState::off : ControlState::on;
}

const Image& ButtonCell::shownImage() const {
    return state() == ControlState::on && m_showsStateBy != none && !alternateImage().isNull()
               ? alternateImage()
               : image();
}

const PreparedText& ButtonCell::preparedTitle(const QFont& font) const {
    m_preparedTitle.set(title(), font);
    return m_preparedTitle;
}

bool ButtonCell::showsMnemonic() const {
    return m_preparedTitle.hasMnemonic() &&
           QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, controlView()) != 0;
}

CellContent ButtonCell::content() const {
    const QSizeF title = this->title().isEmpty() ? QSizeF() : preparedTitle(titleFont()).size();
    const bool isCentered = isFramed() || m_imagePosition == ImagePosition::imageOnly;
    return {imageSize(), title, m_imagePosition, layoutDirection(),
            isCentered ? Qt::AlignHCenter : Qt::AlignLeading};
}

QRectF ButtonCell::contentRect(const QRectF& bounds) const {
    if (m_imagePosition == ImagePosition::imageOnly)
        return bounds;
    const qreal margin = isFramed() ? leastSideMargin : plainMargin;
    return bounds.adjusted(margin, 0, -margin, 0);
}

CellFrames ButtonCell::arranged(const QRectF& bounds) const {
    return arrange(content(), contentRect(bounds));
}

QRectF ButtonCell::titleRect(const QRectF& bounds) const {
    return arranged(bounds).title;
}

QRectF ButtonCell::imageRect(const QRectF& bounds) const {
    return arranged(bounds).image;
}

QSizeF ButtonCell::cellSize() const {
    const QSizeF content = naturalSize(this->content());
    if (!isFramed())
        return content + QSizeF(2 * plainMargin, 2 * plainMargin);
    const qreal margin = m_imagePosition == ImagePosition::imageOnly ? leastSideMargin : sideMargin;
    return {content.width() + 2 * margin, std::max(content.height() + 4, framedHeight)};
}

void ButtonCell::draw(QPainter& painter, const QRectF& frame) const {
    if (isFramed())
        drawBezel(painter, frame);
    drawInterior(painter, frame);
}

void ButtonCell::drawInterior(QPainter& painter, const QRectF& frame) const {
    const QRectF interior = drawingRect(frame);
    if (m_imagePosition != ImagePosition::noImage && !imageSize().isEmpty())
        drawImage(painter, imageRect(interior));
    if (m_imagePosition != ImagePosition::imageOnly && !title().isEmpty())
        drawTitle(painter, titleRect(interior));
}

void ButtonCell::drawBezel(QPainter& painter, const QRectF& frame) const {
    QStyleOptionButton option;
    option.rect = frame.toAlignedRect();
    if (controlView() != nullptr)
        option.palette = controlView()->palette();
    option.state.setFlag(QStyle::State_Enabled, isEnabled());
    option.state.setFlag(isHighlighted() && m_highlightsBy != none ? QStyle::State_Sunken
                                                                   : QStyle::State_Raised);
    option.state.setFlag(QStyle::State_On, m_showsStateBy != none && state() == ControlState::on);
    QApplication::style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, controlView());
}

void ButtonCell::drawTitle(QPainter& painter, const QRectF& frame) const {
    QColor color = controlTextColor();
    color.setAlphaF(color.alphaF() * (isEnabled() ? 1.0F : disabledOpacity));
    preparedTitle(font()).draw(painter, frame, {color.rgba(), Qt::AlignHCenter, showsMnemonic()});
}

void ButtonCell::drawImage(QPainter& painter, const QRectF& frame) const {
    const Image shown = shownImage().tinted(controlTextColor());
    shown.draw(painter, frame, isEnabled() ? 1 : disabledOpacity);
}

} // namespace platform
