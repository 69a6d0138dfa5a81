#pragma once

#include <QRectF>

class QPainter;

namespace platform {
class Image;
}

namespace chorale {

/// How many of the desktop's points a point of a view is, for a host that asks for a size of its own. It
/// holds for the views of this module that are made while it lives. Main thread.
class ViewScale {
public:
    explicit ViewScale(qreal factor);
    ~ViewScale();
    ViewScale(const ViewScale&) = delete;
    ViewScale& operator=(const ViewScale&) = delete;

    /// 1 if none lives, else that of the one that was made last.
    static qreal current();

private:
    const qreal m_outer;
};

/// Draws an image into a view of this scale, as sharp as its files allow.
void drawScaled(QPainter& painter, const platform::Image& image, const QRectF& frame, qreal scale);

} // namespace chorale
