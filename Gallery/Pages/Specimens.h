#pragma once

#include "Platform/Graphics/Image.h"
#include "Tidepool/Styles/ControlStyle.h"

#include <QWidget>

namespace gallery {

/// A patch of a colour; an empty frame for a transparent one.
class Swatch : public QWidget {
    Q_OBJECT

public:
    explicit Swatch(const QColor& color, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

/// An image at its natural size, a template in the colour of text.
class ImageSwatch : public QWidget {
    Q_OBJECT

public:
    explicit ImageSwatch(const platform::Image& image, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    platform::Image m_image;
};

/// What the parts that a style gives look like together. No control: it has no metrics of its own.
class ControlSketch : public QWidget {
    Q_OBJECT

public:
    /// The style need not outlive the sketch's making.
    ControlSketch(const tidepool::ControlStyle& style, tidepool::StyledControlState state,
                  QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintParts(QPainter& painter, const QRectF& frame) const;

    QFont m_font;
    QColor m_text;
    QColor m_background;
    QColor m_focusRing;
    bool m_isFocused;
    bool m_hasTitle = true;
    platform::Image m_bezel;
    /// What stands in place of the bezel: a box, or a bar and its knob.
    std::vector<platform::Image> m_parts;
};

} // namespace gallery
