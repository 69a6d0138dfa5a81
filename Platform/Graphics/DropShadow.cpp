#include "Platform/Graphics/DropShadow.h"

#include <QPainter>

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

/// Blurs the rows and returns them as columns, so that two calls blur both ways.
QImage blurredAndTransposed(const QImage& alpha, const std::vector<float>& weights) {
    QImage result(alpha.height(), alpha.width(), QImage::Format_Alpha8);
    const int reach = static_cast<int>(weights.size()) - 1;
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar* const row = alpha.constScanLine(y);
        for (int x = 0; x < alpha.width(); ++x) {
            float sum = 0;
            for (int i = std::max(-reach, -x); i <= std::min(reach, alpha.width() - 1 - x); ++i)
                sum += weights[static_cast<std::size_t>(std::abs(i))] * static_cast<float>(row[x + i]);
            result.scanLine(x)[y] = static_cast<uchar>(std::lround(sum));
        }
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
