#include "Gallery/Pages/Specimens.h"

#include "Gallery/Pages/StyleClasses.h"
#include "Tidepool/Palette/TPColors.h"

#include <QPainter>

namespace gallery {

using tidepool::ControlStyle;
using tidepool::StyledControlState;
using tidepool::TPColorsAK;

Swatch::Swatch(const QColor& color, QWidget* parent) : QWidget(parent), m_color(color) {
    setFixedSize(32, 20);
}

void Swatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(TPColorsAK::grey30.color());
    painter.setBrush(m_color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

ImageSwatch::ImageSwatch(const platform::Image& image, QWidget* parent)
    : QWidget(parent), m_image(image.tinted(TPColorsAK::grey85)) {
    setFixedSize(m_image.size().toSize());
}

void ImageSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_image.draw(painter, QRectF(rect()));
}

ControlSketch::ControlSketch(const ControlStyle& style, StyledControlState state, QWidget* parent)
    : QWidget(parent),
      m_font(style.font()),
      m_text(style.textColor(state)),
      m_background(style.backgroundColor(state)),
      m_focusRing(style.focusRingColor(state)),
      m_isFocused(state.contains(StyledControlState::focused)) {
    setFixedSize(280, 120);
    m_font.setPixelSize(13);
    if (const auto* const bezel = style.bezelImage(state))
        m_bezel = *bezel;
    for (const auto& [name, images] : imageMaps(style))
        if (images != &style.bezelImages())
            if (const auto* const image = images->image(state))
                m_parts.push_back(*image);
    if (!m_parts.empty())
        m_bezel = {};
    m_hasTitle = m_parts.size() < 2;
}

void ControlSketch::paintParts(QPainter& painter, const QRectF& frame) const {
    for (const platform::Image& part : m_parts) {
        const bool isBar = !part.capInsets().isNull();
        QRectF place(0, 0, isBar ? frame.width() : part.size().width(), part.size().height());
        place.moveCenter(frame.center());
        if (m_hasTitle)
            place.moveLeft(frame.left() + 62);
        part.draw(painter, place);
    }
}

void ControlSketch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(TPColorsAK::Background::darker.color());
    painter.drawRoundedRect(rect(), 8, 8);

    QRectF frame(0, 0, 184, m_bezel.isNull() ? 24 : m_bezel.size().height());
    frame.moveCenter(QRectF(rect()).center());
    painter.setBrush(m_background);
    painter.drawRoundedRect(frame.adjusted(2, 2, -2, -2), 3, 3);
    m_bezel.draw(painter, frame);
    paintParts(painter, frame);
    painter.setFont(m_font);
    painter.setPen(m_text);
    if (m_hasTitle)
        painter.drawText(frame.adjusted(m_parts.empty() ? 0 : 22, 0, 0, 0), Qt::AlignCenter, tr("Title"));
    if (m_isFocused) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(m_focusRing, 2));
        painter.drawRoundedRect(frame.adjusted(-3, -3, 3, 3), 6, 6);
    }
}

} // namespace gallery
