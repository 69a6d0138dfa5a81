#include "Gallery/Pages/ColorCard.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Pages/Contrast.h"
#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Palette/TPColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <utility>

namespace gallery {

namespace {

constexpr int swatchHeight = 76;
constexpr qreal radius = 8;

QColor readableOn(const QColor& ground) {
    return contrastRatio(ground, Qt::white) > contrastRatio(ground, Qt::black) ? Qt::white : Qt::black;
}

} // namespace

ColorCard::ColorCard(KitAsset color, QWidget* parent) : QWidget(parent), m_color(std::move(color)) {
    setFixedSize(204, swatchHeight + 58);
    setAccessibleName(m_color.name);
    setAccessibleDescription(
        tr("%1; dark %2, light %3")
            .arg(m_color.comment, darkColor(m_color.name).name(), lightColor(m_color.name).name()));
}

void ColorCard::paintSwatch(QPainter& painter, const QRectF& part, const QString& appearance,
                            const QColor& color) const {
    painter.fillRect(part, color);
    const QRectF text = part.adjusted(10, 8, -10, -8);
    painter.setPen(readableOn(color));
    painter.setFont(textFont(TextRole::caption));
    painter.setOpacity(0.75);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignTop, appearance);
    painter.setOpacity(1);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom, color.name());
}

void ColorCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF swatch(0, 0, width(), swatchHeight);
    QPainterPath outline;
    outline.addRoundedRect(swatch.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.save();
    painter.setClipPath(outline);
    const qreal half = swatch.width() / 2;
    paintSwatch(painter, swatch.adjusted(0, 0, -half, 0), tr("Dark"), darkColor(m_color.name));
    paintSwatch(painter, swatch.adjusted(half, 0, 0, 0), tr("Light"), lightColor(m_color.name));
    painter.restore();
    painter.setPen(tidepool::TPColorsAK::grey30.color());
    painter.drawPath(outline);

    const auto leading = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
    painter.setPen(textColor(TextRole::heading));
    painter.setFont(platform::systemFont(13, QFont::Medium));
    painter.drawText(QRectF(0, swatchHeight + 8, width(), 18), leading | Qt::AlignVCenter, m_color.name);
    painter.setPen(textColor(TextRole::caption));
    painter.setFont(textFont(TextRole::caption));
    painter.drawText(QRectF(0, swatchHeight + 28, width(), 30), leading | Qt::AlignTop | Qt::TextWordWrap,
                     m_color.comment);
}

} // namespace gallery
