#include "Platform/Controls/ImageView.h"

#include <QPainter>
#include <QPixmap>

#include <utility>

namespace platform {

ImageView::ImageView(Image image, const QString& description, QWidget* parent)
    : QLabel(parent), m_image(std::move(image)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(description);
    // A label with a pixmap, though it is not drawn, is a picture to assistive technology.
    setPixmap(QPixmap(1, 1));
}

void ImageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(alphaValue());
    m_image.draw(painter, QRectF(rect()));
}

} // namespace platform
