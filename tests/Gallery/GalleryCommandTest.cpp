#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

int run(const QStringList& arguments) {
    return QProcess::execute(QStringLiteral(NOTELOFT_GALLERY), arguments);
}

} // namespace

TEST(GalleryCommand, WritesOnePictureAPageNamedAfterIt) {
    const QTemporaryDir folder;
    const QDir pictures(folder.filePath(QStringLiteral("new")));
    ASSERT_EQ(run({QStringLiteral("--pictures"), pictures.path()}), 0);
    EXPECT_EQ(pictures.entryList(QDir::Files), QDir(QStringLiteral(NOTELOFT_TEST_DATA "/Pictures"))
                                                   .entryList(QDir::Files)
                                                   .filter(QRegularExpression(QStringLiteral("^[^@]*$"))));
    ASSERT_EQ(run({QStringLiteral("--pictures"), pictures.path(), QStringLiteral("--page"),
                   QStringLiteral("States"), QStringLiteral("--scale"), QStringLiteral("2")}),
              0);
    EXPECT_EQ(QImage(pictures.filePath(QStringLiteral("States@2x.png"))).width(),
              2 * QImage(pictures.filePath(QStringLiteral("States.png"))).width());
    EXPECT_FALSE(pictures.exists(QStringLiteral("Images@2x.png")));
}
