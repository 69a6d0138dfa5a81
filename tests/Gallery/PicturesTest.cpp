#include "Gallery/AllPages.h"
#include "Gallery/PagePicture.h"
#include "tests/support/PictureComparison.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>

using gallery::allPages;
using gallery::GalleryPage;

namespace {

const QDir accepted(QStringLiteral(NOTELOFT_TEST_DATA "/Pictures"));
const QDir output(QStringLiteral(NOTELOFT_TEST_OUTPUT));

/// A page and its settings.
using PicturesTest = testing::TestWithParam<std::tuple<std::size_t, std::size_t>>;

std::string nameOf(const testing::TestParamInfo<PicturesTest::ParamType>& info) {
    const auto [page, settings] = info.param;
    std::string name =
        gallery::pictureName(allPages()[page], gallery::pictureSettings()[settings]).chopped(4).toStdString();
    std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
    return name;
}

/// Writes what tells one from the other, and returns where.
std::string writeDifference(const QString& name, const QImage& actual, const QImage& expected,
                            const PictureComparison& comparison) {
    output.mkpath(QStringLiteral("."));
    const QString base = output.filePath(name.chopped(4));
    actual.save(base + u".actual.png");
    expected.save(base + u".expected.png");
    comparison.sideBySide().save(base + u".difference.png");
    return base.toStdString() + ".difference.png";
}

} // namespace

TEST_P(PicturesTest, AreTheAcceptedOnes) {
    const GalleryPage& page = allPages()[std::get<0>(GetParam())];
    const gallery::GallerySettings& settings = gallery::pictureSettings()[std::get<1>(GetParam())];
    const QString name = gallery::pictureName(page, settings);
    const QImage actual = gallery::pagePicture(page, settings);
    const QImage expected(accepted.filePath(name));
    const PictureComparison comparison(actual, expected);
    EXPECT_TRUE(comparison.isSame()) << comparison.differing() << " pixels differ; see "
                                     << writeDifference(name, actual, expected, comparison)
                                     << "\ntests/Gallery/accept takes the page as it is now";
}

INSTANTIATE_TEST_SUITE_P(Gallery, PicturesTest,
                         testing::Combine(testing::Range<std::size_t>(0, allPages().size()),
                                          testing::Range<std::size_t>(0, gallery::pictureSettings().size())),
                         nameOf);

TEST(AcceptedPictures, BelongToAPage) {
    QStringList named;
    for (const GalleryPage& page : allPages())
        for (const gallery::GallerySettings& settings : gallery::pictureSettings())
            named << gallery::pictureName(page, settings);
    const QStringList files = accepted.entryList(QDir::Files);
    for (const QString& file : files)
        EXPECT_TRUE(named.contains(file)) << file.toStdString();
}
