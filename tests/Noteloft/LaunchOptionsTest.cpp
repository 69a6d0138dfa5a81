#include "Noteloft/LaunchOptions.h"

#include <gtest/gtest.h>

using noteloft::LaunchOptions;

TEST(LaunchOptions, TellOptionsFromAddresses) {
    const auto options =
        LaunchOptions::parse({QStringLiteral("noteloft://openAndUpdate"), QStringLiteral("--screenshot"),
                              QStringLiteral("-file.png"), QStringLiteral("other")});
    EXPECT_EQ(options.urls,
              (QStringList{QStringLiteral("noteloft://openAndUpdate"), QStringLiteral("other")}));
    EXPECT_EQ(options.screenshot, QStringLiteral("-file.png"));
    EXPECT_EQ(options.error, QString());
    EXPECT_FALSE(options.developerMode);

    const auto none = LaunchOptions::parse({});
    EXPECT_TRUE(none.urls.isEmpty() && none.screenshot.isEmpty() && none.error.isEmpty());
}

TEST(LaunchOptions, UnknownAndIncompleteOnesAreErrors) {
    for (const auto* text : {"--screenshot", "--nonsense", "-x", "--screenshot=a.png"})
        EXPECT_TRUE(
            LaunchOptions::parse({QString::fromLatin1(text)}).error.contains(QString::fromLatin1(text)))
            << text;
}

TEST(LaunchOptions, DeveloperModeBelongsToDeveloperBuilds) {
    const auto options = LaunchOptions::parse({QStringLiteral("--developer")});
#ifdef NOTELOFT_DEVELOPER_MODE
    EXPECT_TRUE(options.developerMode);
    EXPECT_EQ(options.error, QString());
#else
    EXPECT_FALSE(options.developerMode);
    EXPECT_NE(options.error, QString());
#endif
}
