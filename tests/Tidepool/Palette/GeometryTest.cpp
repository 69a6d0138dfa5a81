#include "Tidepool/Palette/PixelAlignment.h"
#include "Tidepool/Palette/RoundedPath.h"
#include "Tidepool/Views/ShakeEffect.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using tidepool::centered;
using tidepool::keptInside;
using tidepool::roundedPath;
using tidepool::ShakeEffect;

namespace {

bool isOnWholePixels(const QRectF& rect, double scale) {
    const auto isWhole = [scale](double x) { return std::abs(x * scale - std::round(x * scale)) < 1e-6; };
    return isWhole(rect.left()) && isWhole(rect.top()) && isWhole(rect.width()) && isWhole(rect.height());
}

} // namespace

TEST(RoundedPath, EachCornerHasItsOwnArc) {
    const QRectF rect(0, 0, 100, 80);
    const auto path = roundedPath(rect, {10, 20, 30, 5});
    EXPECT_EQ(path.boundingRect(), rect);

    struct Corner {
        QPointF center;
        QPointF outward;
        double radius;
    };

    for (const auto& [center, outward, radius] :
         {Corner{{10, 10}, {-1, -1}, 10}, Corner{{80, 20}, {1, -1}, 20}, Corner{{70, 50}, {1, 1}, 30},
          Corner{{5, 75}, {-1, 1}, 5}}) {
        const QPointF diagonal = outward / std::numbers::sqrt2;
        EXPECT_TRUE(path.contains(center + diagonal * (radius - 0.1))) << radius;
        EXPECT_FALSE(path.contains(center + diagonal * (radius + 0.1))) << radius;
    }
    const auto one = roundedPath(rect, {0, 20, 0, 0});
    int curves = 0;
    for (int i = 0; i < one.elementCount(); ++i)
        curves += one.elementAt(i).type == QPainterPath::CurveToElement ? 1 : 0;
    EXPECT_EQ(curves, 1) << "a square corner has no arc";
    EXPECT_TRUE(one.contains(QPointF(0.1, 0.1)));
    EXPECT_TRUE(one.contains(QPointF(99.9, 79.9)));
}

TEST(ShakeEffect, SwingsAndComesToRest) {
    const auto offset = [](double shakes, double progress) {
        return ShakeEffect{12, shakes, progress}.effectValue({100, 50}).dx();
    };
    EXPECT_DOUBLE_EQ(offset(3, 0.5), -12);
    EXPECT_DOUBLE_EQ(offset(1, 0.5), 12);
    EXPECT_NEAR(offset(8, 1), 0, 1e-9);
}

TEST(PixelAlignment, CentersOnWholePixels) {
    EXPECT_EQ(centered({10, 10}, {0, 0, 15, 15}, 2), QRectF(2.5, 2.5, 10, 10));
    EXPECT_EQ(centered({10, 10}, {0, 0, 15, 15}, 1), QRectF(2, 2, 10, 10));
    EXPECT_EQ(centered({10, 10}, {100, 200, 15, 16}, 1), QRectF(2, 3, 10, 10)) << "relative to the rectangle";
    EXPECT_EQ(centered({20, 20}, {0, 0, 15, 15}, 1), QRectF(-2, -2, 20, 20))
        << "the fraction is dropped, not rounded";
    EXPECT_EQ(centered({9.5, 9.2}, {0, 0, 20, 20}, 1), QRectF(5, 5, 10, 10)) << "a broken size grows";
}

TEST(PixelAlignment, AWholeSizeNeverGrows) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0})
        for (int pixels = 1; pixels < 200; ++pixels)
            for (const double room : {15.0, 31.4, 64.8, 127.0, 400.0}) {
                const QSizeF size(pixels / scale, 3 * pixels / scale);
                const QRectF rect = centered(size, {0, 0, room, room}, scale);
                ASSERT_TRUE(isOnWholePixels(rect, scale)) << pixels << " at " << scale;
                ASSERT_NEAR(rect.width(), size.width(), 1e-9) << pixels << " in " << room << " at " << scale;
                ASSERT_NEAR(rect.height(), size.height(), 1e-9)
                    << pixels << " in " << room << " at " << scale;
                ASSERT_LT(std::abs(rect.center().x() - room / 2), 1 / scale + 1e-9);
            }
}

TEST(PixelAlignment, KeepsOneRectangleInsideAnother) {
    const QRectF outer(10, 0, 100, 5);
    EXPECT_EQ(keptInside({30, 0, 20, 5}, outer), 30);
    EXPECT_EQ(keptInside({105, 0, 20, 5}, outer), 90);
    EXPECT_EQ(keptInside({-5, 0, 20, 5}, outer), 10);
    EXPECT_EQ(keptInside({50, 0, 200, 5}, outer), 10) << "too wide: the beginning counts";
}
