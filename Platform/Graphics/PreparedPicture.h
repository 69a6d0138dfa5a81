#pragma once

#include "Platform/Graphics/WindowMemory.h"

#include <QImage>
#include <QPointF>

#include <vector>

class QPainter;

namespace platform {

/// A picture that is drawn often, pixel for pixel. Where its rows are opaque it is only copied. Main thread.
class PreparedPicture {
public:
    PreparedPicture() = default;

    /// `image` has the pixels in a point of the painters that will draw it.
    explicit PreparedPicture(QImage image);

    const QImage& image() const { return m_image; }

    /// Draws the picture at `origin`, in points, moved to the nearest pixel.
    void draw(QPainter& painter, QPointF origin) const;

private:
    QImage m_image;
    std::vector<PictureRow> m_rows;
};

} // namespace platform
