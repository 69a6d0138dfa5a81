#include "Tidepool/Palette/ColorDescription.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Palette/TPImages.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/Appearance.h"

#include <gtest/gtest.h>

using tidepool::colorDescription;
using tidepool::TPColors;
using tidepool::TPColorsAK;
using tidepool::TPImages;
using tidepool::TPImagesAK;

TEST(Palette, ColorsAreThoseOfTheirAssets) {
    struct Member {
        const platform::ColorResource& color;
        QRgb dark;
    };

    for (const auto& [color, dark] :
         {Member{TPColors::Background::normal, 0xff1d1d2c}, Member{TPColors::Background::darkest, 0xff0f0f18},
          Member{TPColors::grey20, 0xff30323b}, Member{TPColorsAK::grey50, 0xff7d808c},
          Member{TPColorsAK::grey85, 0xffd7d9e1}, Member{TPColors::grey100, 0xffffffff},
          Member{TPColors::Vantor::lightBlue, 0xff86b6ff}, Member{TPColors::Vantor::darkPurple, 0xff4f35b5},
          Member{TPColors::error, 0xffff5a4d}}) {
        EXPECT_EQ(color.color().rgba(), dark) << color.name;
        EXPECT_EQ(&color.color(), &color.color()) << "reads give one object";
    }
}

TEST(Palette, EveryColorFollowsTheAppearance) {
    for (const auto& color : {TPColors::Background::normal,
                              TPColors::Background::darker,
                              TPColors::Background::darkest,
                              TPColors::grey20,
                              TPColors::grey30,
                              TPColors::grey40,
                              TPColors::grey50,
                              TPColors::grey60,
                              TPColors::grey70,
                              TPColors::grey85,
                              TPColors::grey100,
                              TPColors::Vantor::aqua,
                              TPColors::Vantor::blue,
                              TPColors::Vantor::darkPurple,
                              TPColors::Vantor::lightBlue,
                              TPColors::Vantor::orange,
                              TPColors::Vantor::purple,
                              TPColors::Vantor::red,
                              TPColors::Vantor::yellow,
                              TPColors::error,
                              TPColors::Highlight::system}) {
        const QColor dark = color.color();
        platform::setAppearance(platform::Appearance::light);
        const QColor light = color.color();
        platform::setAppearance(platform::Appearance::dark);
        EXPECT_TRUE(dark.isValid() && light.isValid()) << color.name;
        EXPECT_NE(dark, light) << color.name;
    }
}

TEST(Palette, ImagesAreThoseOfTheirAssets) {
    struct Member {
        const platform::ImageResource& image;
        QSizeF size;
    };

    for (const auto& [image, size] :
         {Member{TPImages::button, {24, 24}}, Member{TPImages::buttonDown, {24, 24}},
          Member{TPImages::checkerboard, {16, 16}}, Member{TPImages::checkerboardSmall, {8, 8}},
          Member{TPImages::textField, {24, 22}}, Member{TPImages::textFieldError, {24, 22}},
          Member{TPImages::textFieldFocus, {24, 22}}, Member{TPImages::checkbox, {16, 16}},
          Member{TPImages::checkboxOn, {16, 16}}, Member{TPImages::checkboxDown, {16, 16}},
          Member{TPImagesAK::checkboxOnDown, {16, 16}}, Member{TPImagesAK::cursorTrackingSlider, {24, 24}}}) {
        EXPECT_EQ(image.image().size(), size) << image.name;
        EXPECT_EQ(&image.image(), &image.image()) << "reads give one object";
        EXPECT_FALSE(image.image().bitmap(size, 2).isNull()) << image.name;
    }
    EXPECT_EQ(&TPImages::button.image(), &TPImagesAK::button.image());
}

TEST(Palette, NeedsTheKitsBundle) {
    EXPECT_DEATH(
        {
            platform::Bundle::setMainDirectory(QStringLiteral("/nowhere"));
            TPColors::grey50.color();
        },
        "^unable to find bundle named Tidepool_Tidepool\n$");
}

TEST(ColorDescription, NamesTheSpaceAndTheComponents) {
    EXPECT_EQ(colorDescription(QColor::fromRgbF(1, 0.5F, 0, 0.25F)), QStringLiteral("sRGB 1 0.5 0 0.25"));
    EXPECT_EQ(colorDescription(QColor::fromHsvF(0, 1, 1)), QStringLiteral("sRGB 1 0 0 1"));
    EXPECT_EQ(colorDescription(QColor()), QStringLiteral("invalid"));
}
