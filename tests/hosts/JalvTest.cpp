#include "tests/hosts/ChildProcess.h"
#include "tests/hosts/MidiLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QLockFile>
#include <QTest>

#include <memory>
#include <vector>

using testing::ElementsAreArray;

namespace {

using Controls = std::vector<const char*>; // "<symbol>=<value>"
using Messages = std::vector<RecordedMessage>;

RecordedMessage on(std::uint32_t frame, std::uint8_t key, std::uint8_t velocity = 100) {
    return {frame, {0x90, key, velocity}};
}

RecordedMessage off(std::uint32_t frame, std::uint8_t key) {
    return {frame, {0x80, key, 64}};
}

/// What the plug-in makes of what it gets. Frames count from the first message that is sent.
struct Case {
    const char* name;
    Controls controls;
    Messages input;
    Messages output;

    friend void PrintTo(const Case& made, std::ostream* stream) { *stream << made.name; }
};

// Frames around the edges of blocks, and several messages in one.
const Messages phrase = {on(0, 60),    on(1, 64),     off(255, 60),   on(256, 67),    off(257, 64),
                         on(511, 127), off(1000, 67), on(5000, 0, 1), off(5000, 127), off(5003, 0)};
const Messages others = {{0, {0xB0, 1, 77}}, {3, {0xE0, 0, 96}}, {300, {0xC2, 5}}};

// clang-format off
const Case cases[] = {
    {"PassesEverythingOn", {}, phrase, phrase},
    {"PassesOtherMessagesOn", {"transpose=5", "velocity=50", "chance=0"}, others, others},
    {"Transposes", {"transpose=7"},
     {on(0, 60), on(0, 64), off(300, 60), off(301, 64)},
     {on(0, 67), on(0, 71), off(300, 67), off(301, 71)}},
    {"KeepsTheNameBeyondTheRange", {"transpose=-24"},
     {on(10, 60), off(20, 60), on(30, 5), off(40, 5)},
     {on(10, 36), off(20, 36), on(30, 5), off(40, 5)}},
    {"HalvesTheVelocity", {"velocity=50"},
     {on(0, 60, 100), off(900, 60), on(901, 60, 1), off(902, 60)},
     {on(0, 60, 50), off(900, 60), on(901, 60, 1), off(902, 60)}},
    {"LimitsTheVelocity", {"velocity=200"},
     {on(0, 60, 40), off(900, 60), on(901, 60, 100), off(902, 60)},
     {on(0, 60, 80), off(900, 60), on(901, 60, 127), off(902, 60)}},
    {"LetsNothingThrough", {"chance=0"}, phrase, {}},
    {"BringsKeysIntoTheScale", {"root=2", "scale=1"},
     {on(0, 60), on(1, 62), off(2, 60), off(3, 62), on(4, 65), off(5, 65)},
     {on(0, 59), on(1, 62), off(2, 59), off(3, 62), on(4, 64), off(5, 64)}},
    {"PutsChordsOnTheScale", {"scale=1", "chord=3", "inversion=1"},
     {on(0, 62), off(600, 62)},
     {on(0, 65), on(0, 69), on(0, 74), off(600, 65), off(600, 69), off(600, 74)}},
    // 10 ms are 480 frames: in other blocks than the key.
    {"StrumsAcrossBlocks", {"chord=2", "strum=10", "direction=1"},
     {on(100, 60), off(300, 60)},
     {on(100, 67), off(300, 67), on(580, 60), off(780, 60)}},
};
// clang-format on

constexpr int usualBlock = 256;

/// JACK without a device, and in it the host and our own client.
class Studio {
public:
    /// Asserts that the host works. `block` is in frames.
    explicit Studio(const Controls& controls, int block = usualBlock) {
        m_lock.setStaleLockTime(0);
        m_lock.tryLock(60000);
        // Always the same: JACK knows eight names, and frees one of a killed server when it is used again.
        const auto name = QStringLiteral("noteloft-test");
        startServer(name, block);
        if (loop().isOpen())
            startHost(name, controls);
        EXPECT_EQ(loop().way() % block, 0) << "the plug-in delays";
    }

    ~Studio() {
        m_host.closeWriteChannel();
        m_host.waitUntil([] { return false; });
        // Our client would wait for a server that waits for a host which has not left.
        if (m_host.state() == QProcess::NotRunning)
            m_loop.reset();
        m_server.end();
        if (testing::Test::HasFailure())
            ADD_FAILURE() << "jackd: " << m_server.readAll().toStdString()
                          << "\njalv: " << m_host.readAll().toStdString();
    }

    MidiLoop& loop() { return *m_loop; }

    bool waitUntil(const std::function<bool()>& condition) const { return m_host.waitUntil(condition); }

    /// What comes back of it.
    Messages play(const Messages& messages) {
        loop().play(messages);
        EXPECT_TRUE(waitUntil([this] { return loop().hasPlayed(); }));
        EXPECT_TRUE(loop().isSteady()) << "the server lost a block";
        return loop().record();
    }

private:
    void startServer(const QString& name, int block) {
        // Every client is waited for, however slow the machine is. Few ports, since they lie in shared
        // memory, of which containers have little.
        const auto arguments =
            QStringLiteral("--name %1 --no-realtime --sync --timeout 30000 --port-max 16 --silent "
                           "-d dummy --rate 48000 --capture 0 --playback 0 --period %2");
        constexpr int limit = 40000; // milliseconds
        const auto hasStarted = [&] {
            // A server that was killed a moment ago still has the name.
            if (m_server.state() == QProcess::NotRunning)
                m_server.start(QStringLiteral(NOTELOFT_JACKD), arguments.arg(name).arg(block).split(u' '));
            m_loop = std::make_unique<MidiLoop>(name.toStdString());
            return m_loop->isOpen();
        };
        EXPECT_TRUE(QTest::qWaitFor(hasStarted, limit));
    }

    void startHost(const QString& server, const Controls& controls) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("JACK_DEFAULT_SERVER"), server);
        environment.insert(QStringLiteral("JACK_NO_START_SERVER"), QStringLiteral("1"));
        environment.insert(QStringLiteral("LV2_PATH"), QStringLiteral(NOTELOFT_LV2_PATH));
        m_host.setProcessEnvironment(environment);
        QStringList arguments = {QStringLiteral("-x"), QStringLiteral("-n"), QStringLiteral("host")};
        for (const char* const control : controls)
            arguments << QStringLiteral("-c") << QString::fromLatin1(control);
        m_host.start(QStringLiteral(NOTELOFT_JALV),
                     arguments << QStringLiteral("http://quillfen.example/plugins/noteloft"));
        EXPECT_TRUE(waitUntil([this] { return loop().connect("host"); }));
        EXPECT_TRUE(waitUntil([this] { return loop().hasBegun(); }));
        EXPECT_FALSE(m_host.peek(m_host.bytesAvailable()).contains("unknown control"));
    }

    // One server at a time has the name.
    QLockFile m_lock{QDir::temp().filePath(QStringLiteral("noteloft-jack.lock"))};
    ChildProcess m_server;
    std::unique_ptr<MidiLoop> m_loop;
    ChildProcess m_host;
};

class JalvTest : public testing::TestWithParam<Case> {};

class JalvBlockTest : public testing::TestWithParam<int> {};

} // namespace

TEST_P(JalvTest, MakesOfTheInput) {
    Studio studio(GetParam().controls);
    ASSERT_FALSE(HasFailure());
    EXPECT_THAT(studio.play(GetParam().input), ElementsAreArray(GetParam().output));
}

INSTANTIATE_TEST_SUITE_P(Plugin, JalvTest, testing::ValuesIn(cases),
                         [](const auto& made) { return made.param.name; });

TEST_P(JalvBlockTest, DistancesAreKept) {
    Studio studio({}, GetParam());
    ASSERT_FALSE(HasFailure());
    EXPECT_THAT(studio.play(phrase), ElementsAreArray(phrase));
}

INSTANTIATE_TEST_SUITE_P(Plugin, JalvBlockTest, testing::Values(32, 1000, 4096));
