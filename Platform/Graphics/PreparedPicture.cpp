#include "Platform/Graphics/PreparedPicture.h"

#include "Platform/Graphics/DevicePixels.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr int group = blendedTogether;

constexpr int wholeGroups(int pixels) {
    return (pixels + group - 1) / group * group;
}

PictureRow partsOf(const QRgb* row, int width) {
    int begin = 0;
    while (begin < width && row[begin] == 0)
        ++begin;
    int end = width;
    while (end > begin && row[end - 1] == 0)
        --end;
    int opaqueBegin = end;
    int opaqueEnd = end;
    for (int x = begin, length = 0; x < end; ++x) {
        length = qAlpha(row[x]) == 255 ? length + 1 : 0;
        if (length > opaqueEnd - opaqueBegin) {
            opaqueBegin = x + 1 - length;
            opaqueEnd = x + 1;
        }
    }
    // Whole groups are faster; to blend an opaque pixel or one that is not there changes nothing.
    opaqueBegin = begin + wholeGroups(opaqueBegin - begin);
    opaqueEnd = end - wholeGroups(end - opaqueEnd);
    if (opaqueBegin < opaqueEnd)
        return {begin, opaqueBegin, opaqueEnd, end};
    const int length = std::min(wholeGroups(end - begin), width);
    begin = std::min(begin, width - length);
    return {begin, begin + length, begin + length, begin + length};
}

} // namespace

PreparedPicture::PreparedPicture(QImage image)
    : m_image(std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied)) {
    for (int y = 0; y < m_image.height(); ++y)
        m_rows.push_back(partsOf(reinterpret_cast<const QRgb*>(m_image.constScanLine(y)), m_image.width()));
}

void PreparedPicture::draw(QPainter& painter, QPointF origin) const {
    if (!drawIntoWindow(painter, origin, m_image, m_rows))
        drawPixels(painter, origin, m_image);
}

} // namespace platform
