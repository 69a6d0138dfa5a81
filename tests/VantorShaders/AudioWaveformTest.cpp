#include "VantorShaders/PipelineBuilder.h"
#include "tests/support/GpuPicture.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

namespace {

constexpr QSize headerSize(400, 300);

/// What the welcome window's header shows.
class AudioWaveformTest : public testing::Test {
protected:
    void SetUp() override {
        NOTELOFT_REQUIRE_GPU();
        m_pipeline = vantor::makePipelineState(*platform::GpuDevice::systemDefault(),
                                               QStringLiteral("audioWaveformVertexShader"),
                                               QStringLiteral("audioWaveformFragmentShader"));
    }

    QImage draw(std::uint32_t seed, float time, QSize size = headerSize) {
        return GpuPicture(m_pipeline, size).draw(seed, time);
    }

    std::shared_ptr<platform::RenderPipelineState> m_pipeline;
};

double meanDifference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += difference(a.pixel(x, y), b.pixel(x, y));
    return sum / (a.width() * a.height());
}

} // namespace

TEST_F(AudioWaveformTest, RunsIntoTheWindowBelowIt) {
    const QRgb windowBackground = qRgb(0x0f, 0x0d, 0x20);
    for (const std::uint32_t seed : {0U, 12345U, 0xffffffffU})
        for (const float time : {0.0F, 3.7F, 100.0F}) {
            const QImage image = draw(seed, time);
            for (int x = 0; x < image.width(); ++x) {
                ASSERT_LE(difference(image.pixel(x, 299), windowBackground), 2) << "below, at " << x;
                ASSERT_LE(difference(image.pixel(x, 0), windowBackground), 2) << "above, at " << x;
            }
        }
}

TEST_F(AudioWaveformTest, IsSmoothAtItsEdges) {
    const QImage image = draw(99, 5, headerSize * 2);
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    // Strands reach the sides, level with them: fine from row to row, but without a step from column to
    // column.
    for (int y = 0; y <= bottom; ++y)
        for (const int x : {0, 1, right - 2, right - 1})
            ASSERT_LE(difference(image.pixel(x, y), image.pixel(x + 1, y)), 6) << x << ", " << y;
    for (int x = 1; x <= right; ++x)
        for (const int y : {1, bottom})
            ASSERT_LE(difference(image.pixel(x, y), image.pixel(x, y - 1)), 4) << x << ", " << y;
}

TEST_F(AudioWaveformTest, MovesSteadily) {
    const float frame = 1.0F / 60;
    for (const float time : {0.0F, 8.3F, 61.0F}) {
        const QImage now = draw(3, time);
        const double step = meanDifference(now, draw(3, time + frame));
        EXPECT_GT(step, 0.02) << time;
        EXPECT_LT(step, 3) << "no jump between two frames at " << time;
        EXPECT_GT(meanDifference(now, draw(3, time + 1)), 3) << time;
    }
}

TEST_F(AudioWaveformTest, HasNoBands) {
    const QImage image = draw(21, 4);
    // Where a gradient is dark, a step of the screen is seen as a band unless neighbours are mixed.
    int longest = 0;
    for (const int x : {3, 60, 200, 340, 396}) {
        int run = 1;
        for (int y = 1; y < image.height(); ++y) {
            run = image.pixel(x, y) == image.pixel(x, y - 1) ? run + 1 : 1;
            longest = std::max(longest, run);
        }
    }
    EXPECT_LE(longest, 12) << "rows of one colour";
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    EXPECT_GT(colors.size(), 3000);
}
