#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

/// The largest difference of a channel.
inline int difference(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

/// The largest difference of a channel in all pixels; 256 if the sizes differ.
inline int difference(const QImage& a, const QImage& b) {
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            largest = std::max(largest, difference(a.pixel(x, y), b.pixel(x, y)));
    return largest;
}

inline QImage picture(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
