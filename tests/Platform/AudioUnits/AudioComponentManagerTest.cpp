#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/AudioUnits/FourCharCode.h"

#include <QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using platform::AudioComponentDescription;
using platform::AudioComponentManager;
using platform::fourCharCode;

namespace {

const AudioComponentDescription reference = {.componentType = fourCharCode(u"aumi"),
                                             .componentSubType = fourCharCode(u"mdfx"),
                                             .componentManufacturer = fourCharCode(u"Quil")};

class AudioComponentManagerTest : public testing::Test {
protected:
    ~AudioComponentManagerTest() override { qunsetenv("LV2_PATH"); }

    QStringList names(const AudioComponentDescription& matching) const {
        QStringList names;
        for (const auto& component : m_manager.components(matching))
            names.append(component.name);
        return names;
    }

    AudioComponentManager m_manager;
};

} // namespace

TEST(FourCharCode, FirstByteIsTheMostSignificant) {
    EXPECT_EQ(fourCharCode(u"aumi"), 0x61756D69U);
    EXPECT_EQ(fourCharCode(u"\x7f   "), 0x7F202020U);
    for (const char16_t* const wrong : {u"", u"aum", u"aumi ", u"aum\u00E9", u"\u00E9\u00E9"})
        EXPECT_EQ(fourCharCode(wrong), 0U);
}

TEST_F(AudioComponentManagerTest, FindsByAllCodes) {
    qputenv("LV2_PATH", REFERENCE_PLUGINS ":" FAULTY_PLUGINS);
    const auto found = m_manager.components(reference);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].uri, QStringLiteral("http://quillfen.example/plugins/noteloft"));
    EXPECT_EQ(found[0].name, QStringLiteral("Noteloft"));
    EXPECT_EQ(found[0].description, reference);
    EXPECT_EQ(QDir(found[0].bundlePath).canonicalPath(),
              QDir(QStringLiteral(REFERENCE_PLUGINS "/noteloft.lv2")).canonicalPath());
}

TEST_F(AudioComponentManagerTest, ZeroIsAWildcardAndMalformedCodesAreSkipped) {
    qputenv("LV2_PATH", FAULTY_PLUGINS ":" REFERENCE_PLUGINS);
    const QStringList all = names({});
    EXPECT_TRUE(all.contains(QStringLiteral("Noteloft")));
    EXPECT_TRUE(all.contains(QStringLiteral("crash")));
    EXPECT_FALSE(all.contains(QStringLiteral("malformed")));
    const QStringList tests = names({.componentManufacturer = fourCharCode(u"Test")});
    EXPECT_EQ(tests.size(), all.size() - 1);
    EXPECT_EQ(names({.componentManufacturer = fourCharCode(u"test")}), QStringList());
    EXPECT_EQ(names({.componentSubType = fourCharCode(u"hang")}), QStringList(QStringLiteral("hang")));
}

TEST_F(AudioComponentManagerTest, CarriedPluginIsFoundOnRequest) {
    qputenv("LV2_PATH", "");
    EXPECT_EQ(m_manager.components({}).size(), 0);
    m_manager.addCarriedComponents();
    EXPECT_EQ(names({}), QStringList(QStringLiteral("Noteloft")));
    qputenv("LV2_PATH", REFERENCE_PLUGINS);
    m_manager.addCarriedComponents();
    EXPECT_EQ(names({}), QStringList(QStringLiteral("Noteloft"))) << "found in both places, listed once";
}
