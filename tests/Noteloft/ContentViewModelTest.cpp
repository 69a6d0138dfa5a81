#include "Noteloft/ContentViewModel.h"

#include "Platform/AudioUnits/AudioComponentValidation.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <QCoroTask>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using noteloft::ContentViewModel;
using platform::AudioComponentValidationSettings;

namespace {

const QString initialText = QStringLiteral("Validating...");

class ContentViewModelTest : public testing::Test {
protected:
    ~ContentViewModelTest() override {
        AudioComponentValidationSettings::shared() = m_settings;
        qunsetenv("LV2_PATH");
    }

    // Installs one of the faulty plug-ins of the audio unit tests in the place of the real one.
    void installFaultyPlugin(const std::string& subtype) const {
        const QDir source(QStringLiteral(FAULTY_PLUGINS "/faulty.lv2"));
        const QDir bundle(m_root.filePath(QStringLiteral("noteloft.lv2")));
        ASSERT_TRUE(QDir().mkpath(bundle.path()));
        ASSERT_TRUE(QFile::copy(source.filePath(QStringLiteral("faulty.so")),
                                bundle.filePath(QStringLiteral("faulty.so"))));
        QFile original(source.filePath(QStringLiteral("manifest.ttl")));
        QFile manifest(bundle.filePath(QStringLiteral("manifest.ttl")));
        ASSERT_TRUE(original.open(QIODevice::ReadOnly) && manifest.open(QIODevice::WriteOnly));
        manifest.write(original.readAll()
                           .replace("\"tst1\"", "\"aumi\"")
                           .replace(QByteArray::fromStdString("\"" + subtype + "\""), "\"mdfx\"")
                           .replace("\"Test\"", "\"Quil\""));
        qputenv("LV2_PATH", m_root.path().toUtf8());
    }

    // Returns what was written to standard output.
    std::string validate() {
        testing::internal::CaptureStdout();
        QCoro::waitFor(m_model.validatePlugin());
        return testing::internal::GetCapturedStdout();
    }

    const AudioComponentValidationSettings m_settings = AudioComponentValidationSettings::shared();
    QTemporaryDir m_root;
    ContentViewModel m_model;
};

} // namespace

TEST_F(ContentViewModelTest, RealPluginPassesAndItsOutputIsPrintedTwice) {
    qputenv("LV2_PATH", REFERENCE_PLUGINS);
    QSignalSpy changes(&m_model, &ContentViewModel::statusTextChanged);
    EXPECT_EQ(m_model.statusText(), initialText);
    const std::string output = validate();
    EXPECT_EQ(m_model.statusText(), QStringLiteral("Validation Passed"));
    EXPECT_EQ(changes.count(), 1);
    ASSERT_GT(output.size(), 100U);
    ASSERT_EQ(output.size() % 2, 0U);
    EXPECT_EQ(output.substr(0, output.size() / 2), output.substr(output.size() / 2));
    EXPECT_THAT(output,
                testing::StartsWith("Validating http://quillfen.example/plugins/noteloft\nPASS load\n"));
}

TEST_F(ContentViewModelTest, MissingPluginIsNamedWithItsOddParenthesis) {
    qputenv("LV2_PATH", "");
    AudioComponentValidationSettings::shared().program = QStringLiteral("/nothing/may/be/started");
    EXPECT_EQ(validate(), "");
    EXPECT_EQ(m_model.statusText().toStdString(),
              "Failed to find component with type: aumi, subtype: mdfx, manufacturer: Quil)");
}

TEST_F(ContentViewModelTest, CrashingPluginFails) {
    installFaultyPlugin("cras");
    EXPECT_EQ(validate(), "Validation probably crashed\nValidation probably crashed\n");
    EXPECT_EQ(m_model.statusText(), QStringLiteral("Validation Failed"));
}

TEST_F(ContentViewModelTest, CallReturnsBeforeTheValidationEnds) {
    qputenv("LV2_PATH", REFERENCE_PLUGINS);
    testing::internal::CaptureStdout();
    const auto task = m_model.validatePlugin();
    EXPECT_FALSE(task.isReady());
    EXPECT_EQ(m_model.statusText(), initialText);
    EXPECT_TRUE(QTest::qWaitFor([&] { return task.isReady(); }, 10'000));
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(m_model.statusText(), QStringLiteral("Validation Passed"));
}

TEST_F(ContentViewModelTest, ModelMayGoAwayWhileItWaits) {
    qputenv("LV2_PATH", REFERENCE_PLUGINS);
    auto model = std::make_unique<ContentViewModel>();
    testing::internal::CaptureStdout();
    const auto task = model->validatePlugin();
    model.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return task.isReady(); }, 10'000));
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_EQ(output.find("Validating"), output.rfind("Validating")) << "only the callback has printed";
}
