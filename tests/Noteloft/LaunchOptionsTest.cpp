#include "Noteloft/LaunchOptions.h"

#include <QCommandLineParser>

#include <gtest/gtest.h>

using noteloft::LaunchOptions;

TEST(LaunchOptions, TellOptionsFromAddresses) {
    QCommandLineParser parser;
    LaunchOptions::describe(parser);
    ASSERT_TRUE(
        parser.parse({QStringLiteral("noteloft"), QStringLiteral("noteloft://openAndUpdate"),
                      QStringLiteral("--screenshot"), QStringLiteral("-file.png"), QStringLiteral("other")}));
    const auto options = LaunchOptions::from(parser);
    EXPECT_EQ(options.urls,
              (QStringList{QStringLiteral("noteloft://openAndUpdate"), QStringLiteral("other")}));
    EXPECT_EQ(options.screenshot, QStringLiteral("-file.png"));
    EXPECT_FALSE(options.developerMode || options.quits);
}
