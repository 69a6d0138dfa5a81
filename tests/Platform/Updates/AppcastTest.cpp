#include "Platform/Updates/Appcast.h"

#include <gtest/gtest.h>

using platform::Appcast;

namespace {

QByteArray feed(const QByteArray& items) {
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
<channel><title>Noteloft</title>)" +
           items + "</channel></rss>";
}

QByteArray item(const QByteArray& version, const QByteArray& more = {}, const QByteArray& enclosure = {}) {
    return "<item><sparkle:version>" + version + "</sparkle:version>" + more +
           "<enclosure url=\"https://updates.example/noteloft.tar.gz\" " + enclosure + "/></item>";
}

QString newest(const QByteArray& items, const char16_t* running = u"10",
               const char16_t* system = u"6.1.0-13-amd64") {
    const Appcast appcast = Appcast::read(feed(items));
    EXPECT_EQ(appcast.error, QString());
    const auto* found = appcast.newestAbove(QString::fromUtf16(running), QString::fromUtf16(system));
    return found != nullptr ? found->version : QString();
}

} // namespace

TEST(Appcast, ReadsAnItem) {
    const Appcast appcast = Appcast::read(feed(R"(<item>
        <title>Version 1.2 &amp; more</title>
        <link>https://www.example/noteloft/1.2</link>
        <sparkle:version>
            42
        </sparkle:version>
        <sparkle:shortVersionString>1.2</sparkle:shortVersionString>
        <sparkle:releaseNotesLink>https://www.example/notes.html</sparkle:releaseNotesLink>
        <sparkle:minimumSystemVersion>5.10</sparkle:minimumSystemVersion>
        <description><![CDATA[<sparkle:version>99</sparkle:version>]]></description>
        <enclosure url="https://www.example/noteloft-1.2.tar.gz" length="1" type="application/gzip" sparkle:os="linux"/>
        </item>)"));
    EXPECT_EQ(appcast.error, QString());
    ASSERT_EQ(appcast.items.size(), 1);
    const auto& found = appcast.items.first();
    EXPECT_EQ(found.version, QStringLiteral("42"));
    EXPECT_EQ(found.displayVersion, QStringLiteral("1.2"));
    EXPECT_EQ(found.link, QUrl(QStringLiteral("https://www.example/noteloft/1.2")));
    EXPECT_EQ(found.releaseNotesUrl, QUrl(QStringLiteral("https://www.example/notes.html")));
    EXPECT_EQ(found.downloadUrl, QUrl(QStringLiteral("https://www.example/noteloft-1.2.tar.gz")));
    EXPECT_EQ(found.minimumSystemVersion, QStringLiteral("5.10"));
    EXPECT_EQ(found.operatingSystem, QStringLiteral("linux"));
    EXPECT_FALSE(found.isInformational);
}

TEST(Appcast, VersionMayStandInTheEnclosure) {
    const Appcast appcast = Appcast::read(feed(
        R"(<item><enclosure url="https://a.example/b" sparkle:version="42" sparkle:shortVersionString="1.2"/></item>
           <item><enclosure url="https://a.example/b" version="43"/></item>)"));
    ASSERT_EQ(appcast.items.size(), 1) << "an item without a version is no update";
    EXPECT_EQ(appcast.items[0].version, QStringLiteral("42"));
    EXPECT_EQ(appcast.items[0].displayVersion, QStringLiteral("1.2"));
}

TEST(Appcast, InformationalItemsHaveNothingToDownload) {
    const Appcast appcast = Appcast::read(
        feed(item("1", "<sparkle:informationalUpdate><sparkle:version>7</sparkle:version></"
                       "sparkle:informationalUpdate>") +
             "<item><sparkle:version>2</sparkle:version><link>https://a.example/</link></item>" + item("3")));
    ASSERT_EQ(appcast.items.size(), 3);
    EXPECT_TRUE(appcast.items[0].isInformational);
    EXPECT_EQ(appcast.items[0].version, QStringLiteral("1"));
    EXPECT_TRUE(appcast.items[1].isInformational);
    EXPECT_FALSE(appcast.items[2].isInformational);
}

TEST(Appcast, LinksThatAreNotSecureAreNotTaken) {
    for (const char* url : {"http://a.example/b", "file:///etc/passwd", "javascript:alert(1)", "noteloft://x",
                            "relative/path", "https://", "HTTPS://a.example:port/"}) {
        const Appcast appcast = Appcast::read(
            feed("<item><sparkle:version>1</sparkle:version><link>" + QByteArray(url) + "</link></item>"));
        ASSERT_EQ(appcast.items.size(), 1);
        EXPECT_TRUE(appcast.items[0].link.isEmpty()) << url;
    }
}

TEST(Appcast, SelectsTheHighestVersionAboveTheRunningOne) {
    EXPECT_EQ(newest(item("11") + item("13") + item("12")), QStringLiteral("13"));
    EXPECT_EQ(newest(item("10") + item("9")), QString());
    EXPECT_EQ(newest(item("10.0.0")), QString());
    EXPECT_EQ(newest(item("10.1b1")), QStringLiteral("10.1b1"));
    EXPECT_EQ(newest({}), QString());
}

TEST(Appcast, SelectsOnlyWhatThisSystemMayHave) {
    EXPECT_EQ(newest(item("11", {}, "sparkle:os=\"linux\"") + item("12", {}, "sparkle:os=\"macos\"")),
              QStringLiteral("11"));
    const auto needing = [](const QByteArray& system) {
        return item("12", "<sparkle:minimumSystemVersion>" + system + "</sparkle:minimumSystemVersion>");
    };
    EXPECT_EQ(newest(needing("6.1")), QStringLiteral("12"));
    EXPECT_EQ(newest(item("11") + needing("6.2")), QStringLiteral("11"));
    EXPECT_EQ(newest(item("12", "<sparkle:channel>beta</sparkle:channel>")), QString());
}

TEST(Appcast, RefusesWhatIsNoProperFeed) {
    const auto error = [](const QByteArray& data) {
        const Appcast appcast = Appcast::read(data);
        EXPECT_TRUE(appcast.items.isEmpty());
        return appcast.error.toStdString();
    };
    EXPECT_EQ(error("<!DOCTYPE rss [<!ENTITY a \"b\">]><rss>&a;</rss>"), "the feed declares a document type");
    EXPECT_EQ(error("<html/>"), "the document is no feed");
    EXPECT_EQ(error("<rss>\n&a;</rss>"), "line 2 of the feed is damaged");
    EXPECT_EQ(error(feed(item("11")).chopped(3)), "line 3 of the feed is damaged");
    EXPECT_EQ(error(feed(item("11")) + "<more/>"), "line 3 of the feed is damaged");
    EXPECT_EQ(error(feed(item("11") + "<item></itme>")), "line 3 of the feed is damaged");
    EXPECT_NE(error({}), "");
    const QByteArray padding(Appcast::maximumSize - feed(item("11")).size(), ' ');
    EXPECT_EQ(newest(item("11") + padding), QStringLiteral("11"));
    EXPECT_EQ(error(feed(item("11") + padding + ' ')), "the feed is too long");
}
