#include "FeedServer.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Core/CodeLocation.h"
#include "Platform/Updates/Appcast.h"
#include "Platform/Updates/KnownUpdate.h"
#include "Platform/Updates/SPUStandardUpdaterController.h"
#include "Platform/Updates/SPUStandardUserDriverDelegate.h"
#include "Platform/Updates/SPUUpdaterDelegate.h"
#include "tests/support/Browser.h"
#include "tests/support/Find.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using platform::Bundle;
using platform::KnownUpdate;
using platform::SPUStandardUpdaterController;

namespace {

class Delegate : public platform::SPUUpdaterDelegate, public platform::SPUStandardUserDriverDelegate {
public:
    QString feedURLStringForUpdater(const platform::SPUUpdater&) override { return url; }

    void standardUserDriverWillShowUpdate(const platform::AppcastItem& update) override {
        announced = update.version;
    }

    QString url;
    QString announced;
};

QByteArray feed(const QByteArray& version, const QByteArray& more = {}) {
    return R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>)"
           "<sparkle:version>" +
           version + "</sparkle:version><sparkle:shortVersionString>1." + version +
           "</sparkle:shortVersionString>" + more + "</item></channel></rss>";
}

const QByteArray enclosure = "<enclosure url=\"https://www.example/noteloft.tar.gz\"/>";

QMessageBox* shownDialog() {
    return shownWindow<QMessageBox>();
}

bool isChecking() {
    const auto* dialog = shownDialog();
    return dialog != nullptr && dialog->text().startsWith(QStringLiteral("Checking"));
}

QAbstractButton* button(const char16_t* title) {
    return withText(shownDialog()->buttons(), QString::fromUtf16(title));
}

class UpdaterTest : public testing::Test {
protected:
    UpdaterTest() {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QFile information(m_root.filePath(QStringLiteral("Info.json")));
        EXPECT_TRUE(information.open(QIODevice::WriteOnly));
        information.write(R"({"name": "Noteloft", "version": "1.10", "build": "10"})");
        Bundle::setMainDirectory(m_root.path());
    }

    ~UpdaterTest() override {
        QSslConfiguration::setDefaultConfiguration(m_sslConfiguration);
        Bundle::setMainDirectory(QFileInfo(platform::programPath()).absolutePath());
    }

    void SetUp() override {
        ASSERT_TRUE(m_server.isReady());
        QSslConfiguration trusting = m_sslConfiguration;
        trusting.setCaCertificates({m_server.certificate()});
        QSslConfiguration::setDefaultConfiguration(trusting);
        m_delegate.url = m_server.url(QStringLiteral("/feed"));
        m_controller.startUpdater();
    }

    // The text of the dialog that the check ends with.
    std::string check() {
        m_controller.checkForUpdates(nullptr);
        EXPECT_TRUE(isChecking());
        EXPECT_TRUE(QTest::qWaitFor([] { return shownDialog() != nullptr && !isChecking(); }, 10'000));
        return shownDialog() != nullptr ? shownDialog()->text().toStdString() : std::string();
    }

    std::string check(const QByteArray& answer) {
        m_server.serve("/feed", answer);
        return check();
    }

    QTemporaryDir m_root;
    const QSslConfiguration m_sslConfiguration = QSslConfiguration::defaultConfiguration();
    FeedServer m_server;
    Browser m_browser;
    Delegate m_delegate;
    SPUStandardUpdaterController m_controller{false, &m_delegate, &m_delegate};
};

constexpr const char* upToDate = "You're up to date!";
constexpr const char* available = "A new version of Noteloft is available!";
constexpr const char* insecure = "The update information is not offered over a secure connection.";

} // namespace

TEST_F(UpdaterTest, NewerVersionIsOfferedWithItsLinks) {
    EXPECT_EQ(check(feed("11", enclosure + "<link>https://www.example/1.11</link>")), available);
    EXPECT_EQ(shownDialog()->informativeText(),
              QStringLiteral("Noteloft 1.11 is now available; you have 1.10. Would you like to get it now?"));
    EXPECT_EQ(m_delegate.announced, QStringLiteral("11"));
    EXPECT_EQ(KnownUpdate::versionAbove(QStringLiteral("1.10")), QStringLiteral("1.11"))
        << "for other programs";
    EXPECT_EQ(KnownUpdate::versionAbove(QStringLiteral("1.11")), QString());
    ASSERT_NE(button(u"Download…"), nullptr);
    ASSERT_NE(button(u"Learn More…"), nullptr);
    button(u"Download…")->click();
    EXPECT_THAT(m_browser.opened,
                testing::ElementsAre(QUrl(QStringLiteral("https://www.example/noteloft.tar.gz"))));
    EXPECT_EQ(shownDialog(), nullptr);
}

TEST_F(UpdaterTest, FeedCannotFormatTheDialog) {
    check(feed("11&lt;h1&gt;!&lt;/h1&gt;", enclosure));
    EXPECT_TRUE(shownDialog()->informativeText().contains(QStringLiteral("<h1>")));
    const auto labels = shownDialog()->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
}

TEST_F(UpdaterTest, InformationalUpdateHasNoDownload) {
    EXPECT_EQ(check(feed("11", enclosure + "<sparkle:informationalUpdate/>"
                                           "<sparkle:releaseNotesLink>https://www.example/notes"
                                           "</sparkle:releaseNotesLink>")),
              available);
    EXPECT_EQ(button(u"Download…"), nullptr);
    button(u"Remind Me Later")->click();
    EXPECT_TRUE(m_browser.opened.isEmpty());
    check();
    button(u"Learn More…")->click();
    EXPECT_THAT(m_browser.opened, testing::ElementsAre(QUrl(QStringLiteral("https://www.example/notes"))));
}

TEST_F(UpdaterTest, EqualAndOlderVersionsAreUpToDate) {
    EXPECT_EQ(check(feed("10.0", enclosure)), upToDate);
    EXPECT_EQ(shownDialog()->informativeText(),
              QStringLiteral("Noteloft 1.10 is currently the newest version available."));
    EXPECT_EQ(KnownUpdate::versionAbove(QStringLiteral("0")), QString());
    shownDialog()->close();
    EXPECT_EQ(check(feed("9", enclosure)), upToDate);
}

TEST_F(UpdaterTest, ResultsTakeTheKeyboardOnlyFromTheApplicationItself) {
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    check(feed("10"));
    EXPECT_FALSE(shownDialog()->isModal());
    EXPECT_EQ(shownDialog()->parentWidget(), &window);
    EXPECT_FALSE(shownDialog()->testAttribute(Qt::WA_ShowWithoutActivating));

    EXPECT_EQ(check(feed("11", enclosure)), available) << "an old result does not stand for a new check";
    shownDialog()->close();

    platform::SPUStandardUserDriver driver(nullptr);
    QApplication::setActiveWindow(nullptr);
    driver.showUserInitiatedUpdateCheck([] {});
    driver.showUpdateNotFound();
    EXPECT_FALSE(shownDialog()->testAttribute(Qt::WA_ShowWithoutActivating)) << "sooner than the keyboard";
    ASSERT_TRUE(QTest::qWaitForWindowActive(shownDialog()));
    QApplication::setActiveWindow(nullptr);
    driver.showUpdateNotFound();
    EXPECT_TRUE(shownDialog()->testAttribute(Qt::WA_ShowWithoutActivating)) << "the user is elsewhere now";
}

TEST_F(UpdaterTest, SecondCheckShowsTheDialogOfTheFirst) {
    m_server.ignore("/feed");
    m_controller.checkForUpdates(nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_server.requestCount() == 1; }, 10'000));
    const auto* dialog = shownDialog();
    m_controller.checkForUpdates(nullptr);
    QTest::qWait(100);
    EXPECT_EQ(m_server.requestCount(), 1);
    EXPECT_EQ(shownDialog(), dialog);
}

TEST_F(UpdaterTest, CancelledCheckShowsNothingMore) {
    m_server.ignore("/feed");
    m_controller.checkForUpdates(nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_server.requestCount() == 1; }, 10'000));
    shownDialog()->escapeButton()->click();
    QTest::qWait(100);
    EXPECT_EQ(shownDialog(), nullptr);
    EXPECT_EQ(check(feed("11", enclosure)), available) << "the next check works";
}

TEST_F(UpdaterTest, CheckBeforeTheStartDoesNothing) {
    SPUStandardUpdaterController controller(false, &m_delegate, nullptr);
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(shownDialog(), nullptr);
    QTest::qWait(50);
    EXPECT_EQ(m_server.requestCount(), 0);
}

TEST_F(UpdaterTest, MissingFeedIsAnError) {
    EXPECT_EQ(check(), "The update information was not found on the server.");
}

TEST_F(UpdaterTest, ServerThatIsAwayIsAnError) {
    m_server.close();
    EXPECT_EQ(check(), "The update server could not be reached.");
}

TEST_F(UpdaterTest, UntrustedCertificateIsAnError) {
    const FeedServer other;
    QSslConfiguration trusting = m_sslConfiguration;
    trusting.setCaCertificates({other.certificate()});
    QSslConfiguration::setDefaultConfiguration(trusting);
    EXPECT_EQ(check(feed("11", enclosure)), "The update server could not prove its identity.");
    EXPECT_EQ(m_server.requestCount(), 0);
}

TEST_F(UpdaterTest, OnlyHttpsIsUsed) {
    for (const char16_t* url : {u"http://127.0.0.1/feed", u"", u"ftp://127.0.0.1/feed"}) {
        m_delegate.url = QString::fromUtf16(url);
        EXPECT_EQ(check(), insecure) << m_delegate.url.toStdString();
        shownDialog()->close();
    }
    QFile file(m_root.filePath(QStringLiteral("feed.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(feed("11", enclosure));
    file.close();
    m_delegate.url = QUrl::fromLocalFile(file.fileName()).toString();
    EXPECT_EQ(check(), insecure);
}

TEST_F(UpdaterTest, RedirectsStaySecure) {
    m_server.serve("/target", feed("11", enclosure));
    m_server.redirect("/feed", m_server.url(QStringLiteral("/target")));
    EXPECT_EQ(check(), available);
    shownDialog()->close();
    m_server.redirect("/feed", QStringLiteral("http://127.0.0.1/target"));
    EXPECT_EQ(check(), insecure);
    shownDialog()->close();
    m_server.serve("/0", feed("11", enclosure));
    for (int i = 1; i <= 6; ++i)
        m_server.redirect("/" + QByteArray::number(i), m_server.url(u'/' + QString::number(i - 1)));
    m_delegate.url = m_server.url(QStringLiteral("/5"));
    EXPECT_EQ(check(), available) << "five redirections";
    shownDialog()->close();
    m_delegate.url = m_server.url(QStringLiteral("/6"));
    EXPECT_EQ(check(), "The update server could not be reached.") << "one more";
}

TEST_F(UpdaterTest, FeedHasALimit) {
    const QByteArray good = feed("11", enclosure);
    const QByteArray padding(platform::Appcast::maximumSize - good.size(), '\n');
    EXPECT_EQ(check(good + padding), available);
    shownDialog()->close();
    EXPECT_EQ(check(good + padding + '\n'), "The update information is too long.");
    shownDialog()->close();
    m_server.flood("/feed");
    EXPECT_EQ(check(), "The update information is too long.");
    EXPECT_LT(m_server.flooded(), 64 * platform::Appcast::maximumSize) << "no more is read than can be used";
}

TEST_F(UpdaterTest, DamagedFeedIsAnError) {
    EXPECT_EQ(check("<!DOCTYPE rss [<!ENTITY a \"b\">]>" + feed("11", enclosure)),
              "The update information cannot be used: the feed declares a document type.");
    shownDialog()->close();
    EXPECT_EQ(check(feed("11", enclosure).chopped(1)),
              "The update information cannot be used: line 1 of the feed is damaged.");
}
