#pragma once

#include "Platform/Graphics/Image.h"

#include <QLabel>

namespace platform {

/// Shows an image at its own size, sharp at every scale.
class ImageView : public QLabel {
    Q_OBJECT

public:
    /// `description` is what a screen reader says.
    ImageView(Image image, const QString& description, QWidget* parent = nullptr);

    /// How opaque the image is drawn, from 0 to 1.
    qreal alphaValue() const { return m_alphaValue; }

    void setAlphaValue(qreal alpha);

    QSize sizeHint() const override { return m_image.size().toSize(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Image m_image;
    qreal m_alphaValue = 1;
};

} // namespace platform
