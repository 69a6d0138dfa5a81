#pragma once

#include "Platform/Controls/Control.h"
#include "Platform/Graphics/Image.h"

#include <QLabel>

namespace platform {

/// Shows an image at its own size, sharp at every scale.
class ImageView : public QLabel, public Control {
    Q_OBJECT

public:
    /// `description` is what a screen reader says.
    ImageView(Image image, const QString& description, QWidget* parent = nullptr);

    QSizeF intrinsicContentSize() const override { return m_image.size(); }

    QWidget& view() override { return *this; }

    QSize sizeHint() const override { return naturalSize(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Image m_image;
};

} // namespace platform
