#include "tests/desktop/Desktop.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString program = QStringLiteral(NOTELOFT_PROGRAM);
const QString title = QStringLiteral("Noteloft");

/// The real program, started as a desktop starts it.
class ApplicationTest : public testing::Test {
protected:
    ~ApplicationTest() override {
        m_first.kill();
        m_first.waitForFinished();
        EXPECT_TRUE(Desktop::waitUntil([this] { return m_desktop.windowTitles().isEmpty(); }));
    }

    QProcessEnvironment environment() const {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime.path());
        return environment;
    }

    void startFirst(const QStringList& arguments = {}) {
        m_first.setProcessEnvironment(environment());
        m_first.setProcessChannelMode(QProcess::ForwardedChannels);
        m_first.start(program, arguments);
        ASSERT_TRUE(windowsBecome({title}));
    }

    /// The exit status of a start that is expected to end by itself.
    int startAgain(const QStringList& arguments = {}) const {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(program, arguments);
        return process.waitForFinished(5000) ? process.exitCode() : -1;
    }

    bool windowsBecome(const QStringList& titles) {
        return Desktop::waitUntil([&] { return m_desktop.windowTitles() == titles; });
    }

    Desktop m_desktop;
    QTemporaryDir m_runtime;
    QProcess m_first;
};

} // namespace

TEST_F(ApplicationTest, SecondStartShowsTheWindowOfTheFirst) {
    startFirst();
    EXPECT_EQ(startAgain(), 0);
    EXPECT_EQ(m_desktop.windowTitles(), QStringList{title});

    Desktop::wait(200);
    m_desktop.press(Key::control, Key::w);
    ASSERT_TRUE(windowsBecome({}));
    EXPECT_EQ(m_first.state(), QProcess::Running) << "closing the window leaves the program running";

    EXPECT_EQ(startAgain(), 0);
    EXPECT_TRUE(windowsBecome({title}));
    EXPECT_EQ(m_first.state(), QProcess::Running);
}

TEST_F(ApplicationTest, OnlyItsOwnAddressChecksForUpdates) {
    startFirst();
    for (const auto* ignored :
         {"noteloft://openandupdate", "NOTELOFT://openAndUpdate", "noteloft://", "https://openAndUpdate"})
        EXPECT_EQ(startAgain({QString::fromLatin1(ignored)}), 0);
    Desktop::wait(300);
    EXPECT_EQ(m_desktop.windowTitles(), QStringList{title});

    EXPECT_EQ(startAgain({QStringLiteral("noteloft://openAndUpdate")}), 0);
    EXPECT_TRUE(Desktop::waitUntil([this] { return m_desktop.windowTitles().size() == 2; }));
}

TEST_F(ApplicationTest, AddressOfTheFirstStartIsOpenedToo) {
    m_first.setProcessEnvironment(environment());
    m_first.start(program, {QStringLiteral("noteloft://openAndUpdate")});
    EXPECT_TRUE(Desktop::waitUntil([this] { return m_desktop.windowTitles().size() == 2; }));
}

TEST_F(ApplicationTest, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(startAgain({QStringLiteral("--no-such-option")}), 2);
    EXPECT_EQ(startAgain({QStringLiteral("--screenshot")}), 2);
}
