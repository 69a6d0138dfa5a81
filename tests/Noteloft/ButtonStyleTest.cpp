#include "Noteloft/Assets.h"
#include "Noteloft/DefaultVantorButtonStyle.h"
#include "Noteloft/InterFontModifier.h"
#include "Noteloft/QuillfenButtonStyle.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Palette/TPImages.h"
#include "tests/support/Pixels.h"

#include <QFontInfo>
#include <QPainter>

#include <gtest/gtest.h>

using noteloft::Colors;
using noteloft::DefaultVantorButtonStyle;
using noteloft::Images;
using noteloft::QuillfenButtonStyle;
using platform::ButtonConfiguration;
using State = platform::StyledControlState;
using tidepool::TPColorsAK;
using tidepool::TPImages;

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

QRgb rgb(const QColor& color) {
    return color.rgb();
}

} // namespace

TEST(ButtonStyle, LinkButtonSwapsImageAndColorWhilePressed) {
    const QuillfenButtonStyle style;
    EXPECT_EQ(difference(paint(style, {{}, frame}), Images::tpkButton.image().bitmap(frame.size(), 1)), 0);
    EXPECT_EQ(difference(paint(style, {{}, frame, State::highlighted}),
                         Images::tpkButtonDown.image().bitmap(frame.size(), 1)),
              0);
    EXPECT_GT(difference(paint(style, {{}, frame}), paint(style, {{}, frame, State::highlighted})), 8);
    EXPECT_LE(difference(middle(paint(style, {label, frame})), rgb(Colors::buttonText.color())), 1);
    EXPECT_LE(
        difference(middle(paint(style, {label, frame, State::highlighted})), rgb(Colors::labels.color())), 1);
    EXPECT_EQ(style.size({180, 17}), QSizeF(180, 24));
    EXPECT_EQ(style.overhang(), 2);
    EXPECT_EQ(style.font().pixelSize(), 12);
    EXPECT_EQ(style.font().weight(), QFont::Bold);
}

TEST(ButtonStyle, KitButtonSwapsImageAndColorWhilePressed) {
    const DefaultVantorButtonStyle style;
    EXPECT_EQ(difference(paint(style, {{}, frame}), TPImages::button.image().bitmap(frame.size(), 1)), 0);
    EXPECT_EQ(difference(paint(style, {{}, frame, State::highlighted}),
                         TPImages::buttonDown.image().bitmap(frame.size(), 1)),
              0);
    EXPECT_LE(difference(middle(paint(style, {label, frame})), rgb(TPColorsAK::grey85.color())), 1);
    EXPECT_LE(
        difference(middle(paint(style, {label, frame, State::highlighted})), rgb(TPColorsAK::grey50.color())),
        1);
    EXPECT_EQ(style.size({60, 17}), QSizeF(60, 24));
    EXPECT_EQ(style.overhang(), 2);
    EXPECT_EQ(style.font().pixelSize(), 11);
    EXPECT_EQ(style.font().weight(), QFont::Normal);
}

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

TEST(ButtonStyle, BothMarkTheFocus) {
    const QuillfenButtonStyle link;
    const DefaultVantorButtonStyle kit;
    for (const platform::ButtonStyle* style :
         {static_cast<const platform::ButtonStyle*>(&link), static_cast<const platform::ButtonStyle*>(&kit)})
        EXPECT_GT(difference(paint(*style, {label, frame, State::focused}), paint(*style, {label, frame})),
                  60);
}

TEST(InterFontModifier, SetsSizeAndWeight) {
    QWidget widget;
    noteloft::interFont(widget, 17, QFont::DemiBold);
    EXPECT_EQ(widget.font().families().constFirst(), QStringLiteral("Inter"));
    EXPECT_EQ(widget.font().weight(), QFont::DemiBold);
    EXPECT_EQ(QFontInfo(widget.font()).pixelSize(), 17);
}
