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

TEST(GalleryCommand, WritesThePicturesOfAPageNamedAfterIt) {
    const QTemporaryDir folder;
    const QDir pictures(folder.filePath(QStringLiteral("new")));
    ASSERT_EQ(run({QStringLiteral("--pictures"), pictures.path()}), 0);
    EXPECT_EQ(pictures.entryList(QDir::Files),
              QDir(QStringLiteral(NOTELOFT_TEST_DATA "/Pictures")).entryList(QDir::Files));
    const QDir one(folder.filePath(QStringLiteral("one")));
    ASSERT_EQ(
        run({QStringLiteral("--pictures"), one.path(), QStringLiteral("--page"), QStringLiteral("States")}),
        0);
    EXPECT_EQ(QImage(one.filePath(QStringLiteral("States@2x.png"))).width(),
              2 * QImage(one.filePath(QStringLiteral("States.png"))).width());
    EXPECT_FALSE(one.exists(QStringLiteral("Images@2x.png")));
}

TEST(GalleryCommand, RefusesWhatItDoesNotKnow) {
    const QTemporaryDir folder;
    const QStringList pictures{QStringLiteral("--pictures"), folder.path()};
    EXPECT_EQ(run(pictures + QStringList{QStringLiteral("--page"), QStringLiteral("Nothing")}), 2);
    EXPECT_EQ(run({QStringLiteral("--no-such-option")}), 2);
    EXPECT_EQ(run(pictures + QStringList{QStringLiteral("argument")}), 2);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_EQ(run({QStringLiteral("--pictures"), QStringLiteral("/proc/nowhere")}), 1);
}
