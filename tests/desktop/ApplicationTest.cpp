#include "Noteloft/ContentView.h"
#include "Noteloft/NoteloftApp.h"
#include "Platform/Controls/ShadowedLabel.h"
#include "Platform/Core/Bundle.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"
#include "tests/desktop/Desktop.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QWidget>

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
    int startAgain(const QStringList& arguments = {}, const QString& startupId = {}) const {
        QProcess process;
        auto variables = environment();
        if (!startupId.isEmpty())
            variables.insert(QStringLiteral("DESKTOP_STARTUP_ID"), startupId);
        process.setProcessEnvironment(variables);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(program, arguments);
        return process.waitForFinished(5000) ? process.exitCode() : -1;
    }

    bool windowsBecome(const QStringList& titles) {
        return Desktop::waitUntil([&] { return m_desktop.windowTitles() == titles; });
    }

    /// Presses the key until no dialog is left: a result takes the place of the check meanwhile.
    bool isAnsweredBy(Key key) {
        return Desktop::waitUntil([&] {
            m_desktop.press(key);
            Desktop::wait(300);
            return m_desktop.windowTitles() == QStringList{title};
        });
    }

    bool ends() {
        return Desktop::waitUntil([this] { return m_first.state() == QProcess::NotRunning; });
    }

    bool isActive(const QString& name) {
        return Desktop::waitUntil([&] { return m_desktop.activeTitle() == name; });
    }

    /// What the window shows below the waveform.
    QImage lowerHalf(const QString& command, const QString& folder) const {
        const QImage window = screenshot(command, folder);
        return window.copy(0, 300, window.width(), window.height() - 300);
    }

    /// What the window shows, started by `command` of a shell in `folder`.
    QImage screenshot(const QString& command, const QString& folder) const {
        const QString file = m_runtime.filePath(QStringLiteral("window.png"));
        QProcess shell;
        auto variables = environment();
        variables.insert(QStringLiteral("PATH"), QFileInfo(program).absolutePath() + u":/usr/bin:/bin");
        shell.setProcessEnvironment(variables);
        shell.setProcessChannelMode(QProcess::ForwardedChannels);
        shell.setWorkingDirectory(folder);
        shell.start(QStringLiteral("bash"), {QStringLiteral("-c"), command + u" --screenshot " + file});
        EXPECT_TRUE(shell.waitForFinished(10'000));
        return QImage(file);
    }

    Desktop m_desktop;
    QTemporaryDir m_runtime;
    QProcess m_first;
};

const QString updateAddress = QStringLiteral("noteloft://openAndUpdate");

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

TEST_F(ApplicationTest, ADialogThatWasAskedForTakesTheKeyboard) {
    m_first.setProcessEnvironment(environment());
    m_first.start(program, {updateAddress});
    const QString dialog = QStringLiteral("Software Update — Noteloft");
    ASSERT_TRUE(isActive(dialog)) << m_desktop.activeTitle().toStdString();
    // The result takes the place of the check at any moment.
    EXPECT_TRUE(Desktop::waitUntil([&] { return m_desktop.ownerOf(dialog) == title; }));
    EXPECT_TRUE(Desktop::waitUntil([&] { return m_desktop.hasIcon(dialog); }));
    EXPECT_TRUE(isAnsweredBy(Key::enter));
    EXPECT_EQ(startAgain({updateAddress}), 0);
    ASSERT_TRUE(isActive(dialog));
    EXPECT_TRUE(isAnsweredBy(Key::escape));
}

TEST_F(ApplicationTest, QuitsByKeyWhicheverWindowIsInFront) {
    startFirst();
    ASSERT_TRUE(isActive(title));
    Desktop::wait(200);
    m_desktop.press(Key::f10);
    Desktop::wait(200);
    m_desktop.press(Key::enter);
    const QString panel = QStringLiteral("About Noteloft");
    ASSERT_TRUE(isActive(panel));
    m_desktop.press(Key::control, Key::q);
    EXPECT_TRUE(ends());
    EXPECT_EQ(m_first.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_first.exitCode(), 0);

    startFirst();
    ASSERT_TRUE(isActive(title));
    Desktop::wait(200);
    m_desktop.press(Key::control, Key::q);
    EXPECT_TRUE(ends());
}

TEST_F(ApplicationTest, QuitsFromTheDesktopWithoutAWindow) {
    EXPECT_EQ(startAgain({QStringLiteral("--quit")}), 0) << "nobody runs";
    startFirst();
    ASSERT_TRUE(isActive(title));
    Desktop::wait(200);
    m_desktop.press(Key::control, Key::w);
    ASSERT_TRUE(windowsBecome({}));
    EXPECT_EQ(startAgain({QStringLiteral("--quit")}), 0);
    EXPECT_TRUE(ends());
}

TEST_F(ApplicationTest, EndsCleanlyWhateverItIsStillDoing) {
    for (const auto* const option : {"", "", "", "--developer", "--developer"}) {
        const QString lock = m_runtime.filePath(QStringLiteral("noteloft.socket.lock"));
        QFile::remove(lock);
        m_first.setProcessEnvironment(environment());
        m_first.setProcessChannelMode(QProcess::MergedChannels);
        m_first.start(program, QString::fromLatin1(option).split(u' ', Qt::SkipEmptyParts));
        // A later start waits for one that has its lock.
        ASSERT_TRUE(Desktop::waitUntil([&] { return QFile::exists(lock); }));
        Desktop::wait(*option == '\0' ? 0 : 150);
        EXPECT_EQ(startAgain({QStringLiteral("--quit")}), 0);
        ASSERT_TRUE(ends());
        EXPECT_EQ(m_first.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_first.exitCode(), 0) << m_first.readAll().constData();
    }
}

TEST_F(ApplicationTest, SecondStartBringsTheWindowToTheFront) {
    startFirst();
    ASSERT_TRUE(isActive(title));
    QWidget other;
    other.setWindowTitle(QStringLiteral("Other"));
    other.setGeometry(100, 100, 900, 700);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(isActive(other.windowTitle()));
    m_desktop.press(Key::tab);
    m_desktop.messages();

    const std::uint32_t request[] = {1, m_desktop.time()}; // an application's, at the user's click
    const QString startup = QStringLiteral("launcher-1-host_TIME%1").arg(request[1]);
    EXPECT_EQ(startAgain({}, startup), 0);
    EXPECT_TRUE(isActive(title));
    QByteArray messages;
    const auto hears = [&](const QByteArray& message) {
        return Desktop::waitUntil([&] { return (messages += m_desktop.messages()).contains(message); });
    };
    EXPECT_TRUE(hears("remove:")) << "the launcher's busy cursor ends";
    EXPECT_TRUE(hears(QByteArray(reinterpret_cast<const char*>(request), sizeof request)));
}

TEST_F(ApplicationTest, FindsItsResourcesWhereverItIsStartedByName) {
    QDir(m_runtime.path()).mkdir(QStringLiteral("noteloft"));
    const QImage expected = lowerHalf(program, m_runtime.path());
    ASSERT_FALSE(expected.isNull());
    EXPECT_EQ(lowerHalf(QStringLiteral("noteloft"), m_runtime.path()), expected);
}

TEST_F(ApplicationTest, WindowThatIsTallerThanTheScreenShowsItsLinks) {
    auto variables = environment();
    variables.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    m_first.setProcessEnvironment(variables);
    m_first.start(program, QStringList());
    ASSERT_TRUE(windowsBecome({title}));
    EXPECT_TRUE(Desktop::waitUntil([this] {
        const QRect place = m_desktop.placeOf(title);
        return place.height() == 1144 && place.bottom() < 900;
    })) << m_desktop.placeOf(title).bottom();
}

TEST_F(ApplicationTest, TitleIsInTheFontThatItBrings) {
    QFontDatabase::addApplicationFont(platform::Bundle::main().path(QStringLiteral("Fonts/Rocket.ttf")));
    noteloft::NoteloftApp here{noteloft::LaunchOptions{}};
    const auto labels = here.contentView().findChildren<platform::ShadowedLabel*>();
    ASSERT_EQ(labels.size(), 1);
    QImage expected(400, 300, QImage::Format_RGB32);
    expected.fill(Qt::black);
    here.window().grab(); // lays it out
    static_cast<QWidget*>(labels.constFirst())
        ->render(&expected, labels.constFirst()->mapTo(&here.window(), QPoint()), {}, QWidget::DrawChildren);
    const QImage shown = screenshot(program, m_runtime.path());
    int white = 0;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x)
            if (expected.pixel(x, y) == 0xffffffff) {
                ++white;
                ASSERT_EQ(shown.pixel(x, y), 0xffffffff) << x << ", " << y;
            }
    EXPECT_GT(white, 300);
}

TEST_F(ApplicationTest, AnswersInTheUsualForm) {
    for (const auto* const name :
         {"noteloft", "gallery", "noteloft-validate", "../libexec/noteloft/audio-unit-validator"}) {
        const QString path = QFileInfo(program).absolutePath() + u'/' + QString::fromLatin1(name);
        const auto answer = [&](const QString& option) {
            QProcess process;
            auto variables = environment();
            variables.remove(QStringLiteral("DISPLAY"));
            process.setProcessEnvironment(variables);
            process.start(path, {option});
            EXPECT_TRUE(process.waitForFinished(5000)) << name;
            EXPECT_EQ(process.exitCode(), 0) << name;
            return process.readAllStandardOutput();
        };
        EXPECT_TRUE(answer(QStringLiteral("--help")).startsWith("Usage: ")) << name;
        EXPECT_EQ(answer(QStringLiteral("--version")).toStdString(),
                  QFileInfo(path).fileName().toStdString() + " 1.0.0\n");
    }
}

TEST_F(ApplicationTest, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(startAgain({QStringLiteral("--no-such-option")}), 2);
    EXPECT_EQ(startAgain({QStringLiteral("--screenshot")}), 2);
}

TEST_F(ApplicationTest, ShowsTheAddressOfALinkThatNothingCanOpen) {
    auto variables = environment();
    variables.remove(QStringLiteral("BROWSER"));
    variables.insert(QStringLiteral("XDG_DATA_DIRS"), m_runtime.path());
    m_first.setProcessEnvironment(variables);
    m_first.start(program, QStringList());
    ASSERT_TRUE(isActive(title));
    Desktop::wait(200);
    m_desktop.press(Key::f1);
    EXPECT_TRUE(Desktop::waitUntil([this] { return m_desktop.windowTitles().size() == 2; }));
    m_desktop.press(Key::escape);
    EXPECT_TRUE(windowsBecome({title}));
}
