#include "Chorale/MakerLinks.h"

#include "Platform/Core/ConstantUrl.h"

#include <gtest/gtest.h>

using chorale::MakerLinks;

TEST(MakerLinks, AreSecureWebAddresses) {
    EXPECT_EQ(MakerLinks::website(), QUrl(QStringLiteral(NOTELOFT_WEBSITE_URL)));
    for (const QUrl& url : {MakerLinks::website(), MakerLinks::socialProfile(), MakerLinks::contactPage()}) {
        EXPECT_EQ(url.scheme(), QStringLiteral("https")) << url.toString().toStdString();
        EXPECT_TRUE(url.isValid() && !url.host().isEmpty());
    }
    EXPECT_EQ(&MakerLinks::website(), &MakerLinks::website());
}

TEST(ConstantUrl, MalformedStopsTheProgram) {
    for (const auto* text : {"", "quillfen.example", "https://", "https://a b/", "https:///path", "/path"})
        EXPECT_DEATH(platform::constantUrl(QString::fromLatin1(text)), "^Malformed address: ") << text;
    EXPECT_EQ(platform::constantUrl(QStringLiteral("https://a.example/b")).path(), QStringLiteral("/b"));
}
