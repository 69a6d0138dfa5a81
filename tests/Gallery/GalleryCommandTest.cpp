#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

int run(const QStringList& arguments) {
    return QProcess::execute(QStringLiteral(NOTELOFT_GALLERY), arguments);
}

} // namespace

TEST(GalleryCommand, WritesThePicturesOfAPageNamedAfterIt) {
    const QTemporaryDir folder;
    const QDir pictures(folder.filePath(QStringLiteral("new")));
    ASSERT_EQ(run({QStringLiteral("--pictures"), pictures.path()}), 0);
    EXPECT_EQ(pictures.entryList(QDir::Files),
              QDir(QStringLiteral(NOTELOFT_TEST_DATA "/Pictures")).entryList(QDir::Files));
}
