#include "Tidepool/Palette/ColorDescription.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Palette/TPImages.h"

#include "Platform/Core/Bundle.h"

#include <gtest/gtest.h>

using tidepool::colorDescription;
using tidepool::TPColors;
using tidepool::TPImages;
using tidepool::TPImagesAK;

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
