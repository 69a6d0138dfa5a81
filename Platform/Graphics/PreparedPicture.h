#pragma once

#include <QImage>
#include <QPointF>

#include <vector>

class QPainter;

namespace platform {

/// Where the parts of a picture's row begin and end, in pixels. There is nothing outside.
struct PictureRow {
    int begin, opaqueBegin, opaqueEnd, end;
};

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
