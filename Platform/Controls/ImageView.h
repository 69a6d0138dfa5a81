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

    QSize sizeHint() const override { return m_image.size().toSize(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Image m_image;
};

} // namespace platform
