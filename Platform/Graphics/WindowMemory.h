#pragma once

#include <QPointF>
#include <QRgb>
#include <QSize>

#include <optional>
#include <vector>

class QImage;
class QPaintDevice;
class QPainter;
class QRectF;

/// The one door into the memory of a window, which on our platforms is a picture of 32-bit pixels. Where a
/// painter would do no more than put pixels there, they are written without it. Where it would do more, clip,
/// turn, mix or scale, these functions refuse, and their callers use a painter. Both roads give the same
/// pixels, which `WindowMemoryTest` holds. Main thread.
///
/// What it gains (`benchmarks/run memory`): pictures of a button's size are drawn 1.2 to 1.3 times as fast at
/// one pixel a point and 1.4 to 1.5 times at two, and frames of 400 by 300 points 1.03 to 1.06 times, with
/// all that a processor does to draw them.
namespace platform {

/// While one lives the door is closed, and all is drawn by painters: the road to compare with.
class PaintersOnly {
public:
    PaintersOnly();
    ~PaintersOnly();
    PaintersOnly(const PaintersOnly&) = delete;
    PaintersOnly& operator=(const PaintersOnly&) = delete;
};

/// So many pixels are blended at once.
constexpr int blendedTogether = 8;

/// Where the parts of a picture's row begin and end, in pixels. There is nothing outside.
struct PictureRow {
    int begin, opaqueBegin, opaqueEnd, end;
};

/// Draws `image`, premultiplied and with these rows, at `origin`, in points, moved to the nearest pixel.
/// False if that needs a painter; then nothing is drawn.
bool drawIntoWindow(const QPainter& painter, QPointF origin, const QImage& image,
                    const std::vector<PictureRow>& rows);

/// Pixels for writing.
struct PixelRows {
    QRgb* first;
    qsizetype stride; // from row to row, in pixels
    QSize size;
};

/// What `device` has at `place`, in its points: to be made opaque at once. None if only a painter reaches it.
std::optional<PixelRows> windowPixels(const QPaintDevice& device, const QRectF& place);

} // namespace platform
