#include "Platform/Controls/ShadowedLabel.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>
#include <utility>

namespace platform {

ShadowedLabel::ShadowedLabel(const QString& text, QColor color, std::vector<DropShadow> shadows, int margin,
                             QWidget* parent)
    : QLabel(text, parent), m_color(color), m_shadows(std::move(shadows)), m_margin(margin) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ShadowedLabel::sizeHint() const {
    const QFontMetricsF metrics(font());
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))) + 2 * m_margin,
            static_cast<int>(std::ceil(metrics.height())) + 2 * m_margin};
}

QImage ShadowedLabel::render(qreal scale) const {
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font());
    painter.setPen(m_color);
    painter.drawText(rect(), Qt::AlignCenter, text());
    painter.end();
    for (const DropShadow& shadow : m_shadows)
        image = withDropShadow(image, shadow);
    return image;
}

void ShadowedLabel::paintEvent(QPaintEvent*) {
    if (auto look = std::tuple(text(), font(), size(), devicePixelRatioF()); look != m_renderedLook) {
        m_renderedLook = std::move(look);
        m_rendered = PreparedPicture(render(devicePixelRatioF()));
    }
    QPainter painter(this);
    m_rendered.draw(painter, {});
}

} // namespace platform
