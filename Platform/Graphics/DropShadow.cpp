#include "Platform/Graphics/DropShadow.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace platform {

namespace {

/// One half of a Gauss curve that sums to 1 over both halves and the middle.
std::vector<float> gaussWeights(double deviation) {
    const int reach = static_cast<int>(std::ceil(3 * deviation));
    std::vector<float> weights(static_cast<std::size_t>(reach) + 1);
    double sum = 0;
    for (int i = 0; i <= reach; ++i) {
        const double weight = deviation > 0 ? std::exp(-0.5 * i * i / (deviation * deviation)) : 1;
        weights[static_cast<std::size_t>(i)] = static_cast<float>(weight);
        sum += i == 0 ? weight : 2 * weight;
    }
    for (float& weight : weights)
        weight = static_cast<float>(weight / sum);
    return weights;
}

/// Blurs the rows and returns them as columns, so that two calls blur both ways. The inner loop runs along a
/// row, so that a compiler can do several pixels at once.
QImage blurredAndTransposed(const QImage& alpha, const std::vector<float>& weights) {
    const auto width = static_cast<std::size_t>(alpha.width());
    const std::size_t reach = weights.size() - 1;
    QImage result(alpha.height(), alpha.width(), QImage::Format_Alpha8);
    const auto stride = static_cast<std::size_t>(result.bytesPerLine());
    std::vector<float> row(width + 2 * reach);
    std::vector<float> sums(width);
    for (int y = 0; y < alpha.height(); ++y) {
        std::copy_n(alpha.constScanLine(y), width, row.begin() + static_cast<std::ptrdiff_t>(reach));
        std::fill(sums.begin(), sums.end(), 0.5F); // what follows rounds down
        for (std::size_t i = 0; i <= 2 * reach; ++i) {
            const float weight = weights[i < reach ? reach - i : i - reach];
            for (std::size_t x = 0; x < width; ++x)
                sums[x] += weight * row[x + i];
        }
        uchar* column = result.bits() + y;
        for (std::size_t x = 0; x < width; ++x, column += stride)
            *column = static_cast<uchar>(sums[x]);
    }
    return result;
}

} // namespace

QImage withDropShadow(const QImage& image, const DropShadow& shadow) {
    const qreal scale = image.devicePixelRatio();
    const auto weights = gaussWeights(shadow.radius * scale / 2);
    const QImage alpha = image.convertToFormat(QImage::Format_Alpha8);
    const QImage blurred = blurredAndTransposed(blurredAndTransposed(alpha, weights), weights);
    QImage colored(image.size(), QImage::Format_ARGB32_Premultiplied);
    colored.fill(Qt::transparent);
    colored.setDevicePixelRatio(scale);
    QPainter painter(&colored);
    QImage mask = blurred;
    mask.setDevicePixelRatio(scale);
    painter.drawImage(shadow.offset, mask);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRect(QPoint(), image.size()), shadow.color);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(QPointF(), image);
    return colored;
}

} // namespace platform
