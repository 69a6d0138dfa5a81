#include "Noteloft/SparkleHelper.h"

#include <QUrl>

#include <gtest/gtest.h>

using noteloft::SparkleHelper;

TEST(SparkleHelper, FeedIsOnTheUpdateServer) {
    SparkleHelper helper;
    EXPECT_EQ(helper.updaterController, nullptr);
    helper.updaterController =
        std::make_unique<platform::SPUStandardUpdaterController>(false, &helper, nullptr);
    const QUrl url(helper.feedURLStringForUpdater(helper.updaterController->updater()), QUrl::StrictMode);
    EXPECT_EQ(url.scheme(), QStringLiteral("https"));
    EXPECT_EQ(url.host(), QStringLiteral(NOTELOFT_UPDATE_HOST));
    EXPECT_EQ(url.path(), QStringLiteral("/noteloft/noteloft.xml"));
}
