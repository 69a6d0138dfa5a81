#include "Platform/AudioUnits/AudioComponentValidation.h"
#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/AudioUnits/FourCharCode.h"
#include "Platform/AudioUnits/ValidationProcess.h"
#include "Platform/Core/CodeLocation.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using platform::AudioComponentValidationSettings;
using Result = platform::AudioComponentValidationResult;

namespace {

struct Outcome {
    Result result = Result::unknown;
    QVariantMap results;

    bool hasOutput() const { return results.contains(QStringLiteral("Output")); }

    QStringList lines() const { return results.value(QStringLiteral("Output")).toStringList(); }
};

class AudioComponentValidationTest : public testing::Test {
protected:
    AudioComponentValidationTest() { qputenv("LV2_PATH", REFERENCE_PLUGINS ":" FAULTY_PLUGINS); }

    ~AudioComponentValidationTest() override {
        AudioComponentValidationSettings::shared() = m_settings;
        qunsetenv("LV2_PATH");
    }

    static Outcome validate(QStringView subtype) {
        const auto found = platform::AudioComponentManager::shared().components(
            {.componentSubType = platform::fourCharCode(subtype)});
        EXPECT_EQ(found.size(), 1) << subtype.toString().toStdString();
        return found.isEmpty() ? Outcome() : validate(found.first());
    }

    static Outcome validate(const platform::AudioComponent& component) {
        Outcome outcome;
        QEventLoop loop;
        platform::audioComponentValidateWithResults(component,
                                                    {{platform::audioComponentValidationForceKey, true}},
                                                    [&](Result result, const QVariantMap& results) {
                                                        outcome = {result, results};
                                                        loop.quit();
                                                    });
        loop.exec();
        return outcome;
    }

    const AudioComponentValidationSettings m_settings = AudioComponentValidationSettings::shared();
};

struct Fault {
    const char* subtype;
    const char* line;

    friend std::ostream& operator<<(std::ostream& stream, const Fault& fault) {
        return stream << fault.subtype;
    }
};

class FaultTest : public AudioComponentValidationTest, public testing::WithParamInterface<Fault> {};

} // namespace

TEST_F(AudioComponentValidationTest, ReferencePluginPasses) {
    const Outcome outcome = validate(u"mdfx");
    EXPECT_EQ(outcome.result, Result::passed);
    ASSERT_GT(outcome.lines().size(), 9);
    EXPECT_TRUE(outcome.lines().contains(QStringLiteral("PASS instantiate")));
    EXPECT_TRUE(outcome.lines().contains(QStringLiteral("Swept transpose")));
    EXPECT_TRUE(outcome.lines().filter(QStringLiteral("FAIL")).isEmpty());
}

TEST_F(AudioComponentValidationTest, WithoutAWordItFailsWithoutOutput) {
    for (const char16_t* const program : {u"", u"" FAULTY_PLUGINS "/nothing", u"true"}) {
        if (*program != u'\0')
            AudioComponentValidationSettings::shared().program = QString::fromUtf16(program);
        const Outcome outcome = validate(u"cras");
        EXPECT_EQ(outcome.result, Result::failed);
        EXPECT_FALSE(outcome.hasOutput());
    }
}

TEST_F(AudioComponentValidationTest, EarlyExitFailsEvenWithStatusZero) {
    const Outcome outcome = validate(u"exit");
    EXPECT_EQ(outcome.result, Result::failed);
    EXPECT_TRUE(outcome.lines().contains(QStringLiteral("PASS instantiate")));
}

TEST_F(AudioComponentValidationTest, SilenceAndTheWholeAreLimited) {
    auto& settings = AudioComponentValidationSettings::shared();
    for (auto* const limit : {&settings.silenceLimit, &settings.totalLimit}) {
        const auto usual = std::exchange(*limit, 300ms);
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(validate(u"hang").result, Result::timedOut);
        EXPECT_GE(timer.elapsed(), 250) << "timers are allowed to be a little early";
        EXPECT_LT(timer.elapsed(), 10'000);
        *limit = usual;
    }
}

TEST_F(AudioComponentValidationTest, EachLineBreaksTheSilence) {
    QTemporaryDir folder;
    QFile program(folder.filePath(QStringLiteral("talkative")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\nfor i in 1 2 3 4 5 6 7; do printf 'L\\001\\0\\0\\0x'; sleep 0.5; done\n"
                  "printf 'V\\001\\0\\0\\0\\001E\\0\\0\\0\\0'\n");
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    program.close();
    AudioComponentValidationSettings::shared().program = program.fileName();
    AudioComponentValidationSettings::shared().silenceLimit = 3s; // a busy machine may halt for long, too
    const Outcome outcome = validate(u"mdfx");
    EXPECT_EQ(outcome.result, Result::passed);
    EXPECT_EQ(outcome.lines().size(), 7);
}

TEST_F(AudioComponentValidationTest, ItsEndBelongsToWhoeverStillWaits) {
    int completions = 0;
    {
        QObject owner;
        const auto found = platform::AudioComponentManager::shared().components(
            {.componentSubType = platform::fourCharCode(u"hang")});
        auto* const process = new platform::ValidationProcess(
            found.first(), m_settings, [&](auto...) { ++completions; }, &owner);
        process->start();
        QTest::qWait(300);
    }
    QTest::qWait(50);
    EXPECT_EQ(completions, 0);
}

TEST_F(AudioComponentValidationTest, NoiseOfThePluginIsNoOutput) {
    const Outcome outcome = validate(u"nois");
    EXPECT_EQ(outcome.result, Result::passed);
    EXPECT_TRUE(outcome.lines().filter(QStringLiteral("looks like")).isEmpty());
}

TEST_F(AudioComponentValidationTest, UnknownPluginFails) {
    platform::AudioComponent component;
    component.uri = QStringLiteral("http://quillfen.example/tests/none");
    component.bundlePath = QStringLiteral(REFERENCE_PLUGINS "/noteloft.lv2/");
    const Outcome outcome = validate(component);
    EXPECT_EQ(outcome.result, Result::failed);
    EXPECT_TRUE(outcome.lines().contains(QStringLiteral("FAIL load: the bundle does not have this plug-in")));
}

TEST_P(FaultTest, IsNamed) {
    const Outcome outcome = validate(QString::fromUtf8(GetParam().subtype));
    EXPECT_EQ(outcome.result, Result::failed);
    const QString faults = outcome.lines().filter(QStringLiteral("FAIL")).join(u'\n');
    EXPECT_EQ(faults.toStdString(), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Plugin, FaultTest,
    testing::Values(
        Fault{"orde", "FAIL MIDI output: an event at frame 3 after one at frame 60"},
        Fault{"late", "FAIL MIDI output: an event at frame 64 of a block of 64"},
        Fault{"stat", "FAIL MIDI output: a MIDI message without a status"},
        Fault{"nan_", "FAIL numeric output: a value of port \"level\" that is not a finite number"},
        Fault{"over", "FAIL memory: port \"level\" was written beyond its end"},
        Fault{"para", "FAIL parameters: the plug-in changed \"amount\""},
        Fault{"refu", "FAIL instantiate: the plug-in refused a sample rate of 22050 Hz"},
        Fault{"rese", "FAIL activate again: the state is not what it was before"},
        Fault{"feat", "FAIL required features: http://quillfen.example/tests/faulty#wish is not offered"},
        Fault{"defa", "FAIL ports: the default of \"amount\" lies outside its range"}));

TEST_F(AudioComponentValidationTest, CommandLineToolTellsTheOutcome) {
    const QString tool = QFileInfo(platform::programPath()).absolutePath() + u"/noteloft-validate";
    const auto run = [&](const QStringList& arguments) {
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return std::pair(process.exitCode(), process.readAllStandardOutput());
    };
    const auto [passed, output] =
        run({QStringLiteral("aumi"), QStringLiteral("mdfx"), QStringLiteral("Quil")});
    EXPECT_EQ(passed, 0);
    EXPECT_TRUE(output.contains("PASS instantiate\n"));
    EXPECT_EQ(run({QStringLiteral("tst1"), QStringLiteral("cras"), QStringLiteral("Test")}).first, 1);
    EXPECT_EQ(run({QStringLiteral("tst1"), QStringLiteral("none"), QStringLiteral("Test")}).first, 1);
    EXPECT_EQ(run({QStringLiteral("tst1"), QStringLiteral("five5"), QStringLiteral("Test")}).first, 2);
    EXPECT_EQ(run({}).first, 2);
}
