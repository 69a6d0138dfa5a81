#include "Noteloft/DefaultVantorButtonStyle.h"

#include <QPainter>

#include <gtest/gtest.h>

using noteloft::DefaultVantorButtonStyle;
using platform::ButtonConfiguration;
using State = platform::StyledControlState;

namespace {

const QRectF frame(0, 0, 184, 24);
// Large enough that its middle is covered whole.
const QString label = QStringLiteral("█████");

QImage paint(const platform::ButtonStyle& style, const ButtonConfiguration& configuration) {
    QImage image(frame.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(style.font());
    style.paint(painter, configuration);
    return image;
}

QRgb middle(const QImage& image) {
    return image.pixel(image.width() / 2, image.height() / 2);
}

} // namespace

TEST(ButtonStyle, DisabledKitButtonHasALabelOfHalfOpacity) {
    const DefaultVantorButtonStyle style;
    for (const State pressed : {State(), State::highlighted}) {
        const QRgb bezel = middle(paint(style, {{}, frame, pressed | State::disabled}));
        const QRgb text = middle(paint(style, {label, frame, pressed}));
        const QRgb dimmed = middle(paint(style, {label, frame, pressed | State::disabled}));
        for (const int shift : {0, 8, 16})
            EXPECT_NEAR((dimmed >> shift) & 0xff,
                        (((bezel >> shift) & 0xff) + ((text >> shift) & 0xff)) / 2.0, 2);
    }
}
