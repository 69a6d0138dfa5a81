#include "Platform/Core/SingleInstance.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <sys/stat.h>
#include <thread>

using platform::SingleInstance;

namespace {

const QString name = QStringLiteral("test");

class SingleInstanceTest : public testing::Test {
protected:
    SingleInstanceTest() { qputenv("XDG_RUNTIME_DIR", m_runtime.path().toUtf8()); }

    ~SingleInstanceTest() override { qputenv("XDG_RUNTIME_DIR", m_previousDirectory); }

    QString socketPath() const { return m_runtime.filePath(QStringLiteral("test.socket")); }

    bool listen(SingleInstance& instance) {
        return instance.listen([this](const platform::StartRequest& start) {
            m_received << start.arguments;
            m_activation = start.activation;
        });
    }

    /// Hands over from another thread, as another process would, while this one's event loop turns.
    static bool handOver(const QStringList& arguments) {
        std::atomic<bool> isDone = false;
        bool accepted = false;
        std::thread sender([&] {
            accepted =
                SingleInstance(name).handOver({arguments, {QStringLiteral("w"), QStringLiteral("x \"1\"")}});
            isDone = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&isDone] { return isDone.load(); }, 5000));
        sender.join();
        QCoreApplication::processEvents();
        return accepted;
    }

    const QByteArray m_previousDirectory = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir m_runtime;
    QList<QStringList> m_received;
    platform::ActivationToken m_activation;
};

} // namespace

TEST_F(SingleInstanceTest, FirstGetsTheArgumentsOfLaterOnes) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(handOver({})) << "nobody runs";
    EXPECT_LT(timer.elapsed(), 1000) << "and nobody is waited for";
    {
        SingleInstance first(name);
        ASSERT_TRUE(listen(first));
        EXPECT_TRUE(handOver({}));
        QStringList many{QStringLiteral("noteloft://openAndUpdate"), QStringLiteral("Überfluß ♫ 🎹\n\"\\"),
                         QString()};
        for (int i = 0; i < 500; ++i)
            many << QStringLiteral("noteloft://host/%1").arg(i);
        EXPECT_TRUE(handOver(many));
        EXPECT_EQ(m_received, (QList<QStringList>{{}, many}));
        EXPECT_EQ(m_activation.wayland, QStringLiteral("w"));
        EXPECT_EQ(m_activation.x11, QStringLiteral("x \"1\""));
    }
    EXPECT_FALSE(QFile::exists(socketPath())) << "the socket goes with its instance";
    EXPECT_FALSE(handOver({}));
}

TEST_F(SingleInstanceTest, OversizedMessageStillFindsTheFirst) {
    SingleInstance first(name);
    ASSERT_TRUE(listen(first));
    for (const int size : {70'000, 1'000'000}) {
        m_received.clear();
        EXPECT_TRUE(handOver({QString(size, u'x')})) << "a second program must not run because of it";
        EXPECT_EQ(m_received, QList<QStringList>{QStringList()}) << "nothing of it is handed over";
    }
}

TEST_F(SingleInstanceTest, TakesThePlaceOfOneThatCrashed) {
    {
        QFile stale(socketPath());
        ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    }
    EXPECT_FALSE(handOver({}));
    SingleInstance first(name);
    ASSERT_TRUE(listen(first));
    EXPECT_TRUE(handOver({QStringLiteral("a")}));
    EXPECT_EQ(m_received.size(), 1);
}

TEST_F(SingleInstanceTest, OneThatDoesNotAnswerIsGivenUp) {
    SingleInstance frozen(name);
    ASSERT_TRUE(listen(frozen));
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(SingleInstance(name).handOver({{QStringLiteral("a")}, {}})) << "no event loop turns here";
    EXPECT_GE(timer.elapsed(), 1900);
    EXPECT_LT(timer.elapsed(), 4000);
}

TEST_F(SingleInstanceTest, OneThatIsStartingIsWaitedFor) {
    SingleInstance first(name);
    ASSERT_FALSE(first.handOver({})) << "nobody runs, so it is to run";
    std::atomic<int> handed = -1;
    std::thread second([&] { handed = SingleInstance(name).handOver({{QStringLiteral("b")}, {}}) ? 1 : 0; });
    QTest::qWait(100);
    EXPECT_EQ(handed, -1);
    ASSERT_TRUE(listen(first));
    EXPECT_TRUE(QTest::qWaitFor([&] { return handed != -1; }));
    second.join();
    EXPECT_EQ(handed, 1);
    EXPECT_EQ(m_received.size(), 1);
}

TEST_F(SingleInstanceTest, OnlyAPrivateDirectoryIsUsed) {
    const QByteArray directory = m_runtime.path().toUtf8();
    for (const mode_t mode : {0770U, 0701U, 0740U}) {
        ASSERT_EQ(chmod(directory.constData(), mode), 0);
        SingleInstance instance(name);
        EXPECT_FALSE(listen(instance)) << std::oct << mode;
        EXPECT_FALSE(QFile::exists(socketPath()));
    }
    ASSERT_EQ(chmod(directory.constData(), 0700), 0);

    const QString link = m_runtime.filePath(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(m_runtime.path(), link));
    qputenv("XDG_RUNTIME_DIR", link.toUtf8());
    SingleInstance linked(name);
    EXPECT_FALSE(listen(linked)) << "somebody else may turn a link elsewhere";

    const QString missing = m_runtime.filePath(QStringLiteral("made"));
    qputenv("XDG_RUNTIME_DIR", missing.toUtf8());
    SingleInstance made(name);
    EXPECT_TRUE(listen(made));

    struct stat status {};

    ASSERT_EQ(stat(missing.toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);

    struct stat socket {};

    ASSERT_EQ(stat((missing + u"/test.socket").toUtf8().constData(), &socket), 0);
    EXPECT_TRUE(S_ISSOCK(socket.st_mode));
}

TEST_F(SingleInstanceTest, RunsAloneWithoutADirectory) {
    qputenv("XDG_RUNTIME_DIR", "/dev/null/nowhere");
    SingleInstance instance(name);
    EXPECT_FALSE(instance.handOver({}));
    EXPECT_FALSE(listen(instance));
    const QByteArray tooLong = (m_runtime.path() + u'/' + QString(120, u'd')).toUtf8();
    qputenv("XDG_RUNTIME_DIR", tooLong);
    SingleInstance deep(name);
    EXPECT_FALSE(deep.handOver({}));
    EXPECT_FALSE(listen(deep)) << "the system's socket addresses are short";
}
