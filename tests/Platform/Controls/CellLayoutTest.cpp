#include "Platform/Controls/CellLayout.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

CellContent content(ImagePosition position, Qt::LayoutDirection direction = Qt::LeftToRight) {
    return {{16, 16}, {40, 14}, position, direction, Qt::AlignHCenter};
}

const QRectF bounds(10, 20, 100, 30);

} // namespace

TEST(CellLayout, ImageAndTitleStandSideBySideInTheMiddle) {
    const CellFrames frames = arrange(content(ImagePosition::imageLeft), bounds);
    EXPECT_EQ(frames.image, QRectF(30, 27, 16, 16));
    EXPECT_EQ(frames.title, QRectF(50, 28, 40, 14));
    EXPECT_EQ(naturalSize(content(ImagePosition::imageLeft)), QSizeF(60, 16));
    EXPECT_EQ(arrange(content(ImagePosition::imageRight), bounds).image.left(), 74);
}

TEST(CellLayout, LeadingAndTrailingFollowTheDirection) {
    const auto left = [](ImagePosition position, Qt::LayoutDirection direction) {
        const CellFrames frames = arrange(content(position, direction), bounds);
        return frames.image.left() < frames.title.left();
    };
    EXPECT_TRUE(left(ImagePosition::imageLeading, Qt::LeftToRight));
    EXPECT_FALSE(left(ImagePosition::imageLeading, Qt::RightToLeft));
    EXPECT_FALSE(left(ImagePosition::imageTrailing, Qt::LeftToRight));
    EXPECT_TRUE(left(ImagePosition::imageTrailing, Qt::RightToLeft));
    EXPECT_TRUE(left(ImagePosition::imageLeft, Qt::RightToLeft)) << "left is left";
}

TEST(CellLayout, LeadingAlignmentBeginsAtTheEdgeOfTheDirection) {
    CellContent leading = content(ImagePosition::imageLeading);
    leading.alignment = Qt::AlignLeading;
    EXPECT_EQ(arrange(leading, bounds).image.left(), 10);
    leading.direction = Qt::RightToLeft;
    EXPECT_EQ(arrange(leading, bounds).image.right(), 110);
}

TEST(CellLayout, TheTitleGivesWayToTheImage) {
    const CellFrames frames = arrange(content(ImagePosition::imageLeft), {0, 0, 36, 30});
    EXPECT_EQ(frames.image.width(), 16);
    EXPECT_EQ(frames.title.width(), 16);
    EXPECT_EQ(arrange(content(ImagePosition::imageLeft), {0, 0, 10, 30}).title.width(), 0);
}
