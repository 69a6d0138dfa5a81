#include "Platform/Core/RecentDocuments.h"

#include "Platform/Core/Action.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::RecentDocuments;

namespace {

QUrl document(const QString& name) {
    return QUrl::fromLocalFile(QStringLiteral("/music/") + name);
}

class RecentDocumentsTest : public testing::Test {
protected:
    std::unique_ptr<QSettings> settings() const {
        return std::make_unique<QSettings>(m_folder.filePath(QStringLiteral("settings.ini")),
                                           QSettings::IniFormat);
    }

    QTemporaryDir m_folder;
    RecentDocuments m_documents{settings()};
};

} // namespace

TEST_F(RecentDocumentsTest, KeepsTheLastTenWithTheLatestFirst) {
    QSignalSpy changes(&m_documents, &RecentDocuments::changed);
    for (int i = 0; i < 12; ++i)
        m_documents.note(document(QString::number(i)));
    EXPECT_EQ(changes.count(), 12);
    ASSERT_EQ(m_documents.urls().size(), 10);
    EXPECT_EQ(m_documents.urls().front(), document(QStringLiteral("11")));
    EXPECT_EQ(m_documents.urls().back(), document(QStringLiteral("2")));
    m_documents.note(document(QStringLiteral("folder/../5")));
    EXPECT_EQ(m_documents.urls().size(), 10) << "it is one file, however its path is written";
    EXPECT_EQ(m_documents.urls().front(), document(QStringLiteral("5")));
    m_documents.note(QUrl(QStringLiteral("https://quillfen.example/song.mid")));
    m_documents.note(QUrl());
    EXPECT_EQ(m_documents.urls().front(), document(QStringLiteral("5")));
}

TEST_F(RecentDocumentsTest, SurviveARestart) {
    for (const auto& name : {QStringLiteral("Grüße, 100 % & #1.mid"), QStringLiteral("b\"; c\\d=e.mid")})
        m_documents.note(document(name));
    const RecentDocuments next(settings());
    EXPECT_EQ(next.urls(), m_documents.urls());
    EXPECT_EQ(next.urls().back().fileName(), QStringLiteral("Grüße, 100 % & #1.mid"));
    m_documents.clear();
    EXPECT_TRUE(next.urls().isEmpty()) << "another instance sees the change";
    QFile file(m_folder.filePath(QStringLiteral("settings.ini")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[RecentDocuments]\nurls=file:///music/other.mid\n");
    file.close();
    EXPECT_EQ(m_documents.urls(), QList{document(QStringLiteral("other.mid"))})
        << "so does another process's";
}

TEST(SharedRecentDocuments, AnswerToClearingAfterEverybodyElse) {
    constexpr platform::Selector clear{"clearRecentDocuments"};
    RecentDocuments::shared().note(document(QStringLiteral("song.mid")));
    EXPECT_EQ(platform::targetForAction(clear), &RecentDocuments::shared());
    RecentDocuments delegate(std::make_unique<QSettings>());
    platform::setApplicationDelegate(&delegate);
    EXPECT_EQ(platform::targetForAction(clear), &delegate);
    platform::setApplicationDelegate(nullptr);
    EXPECT_TRUE(platform::sendAction(clear, nullptr, nullptr));
    EXPECT_TRUE(RecentDocuments::shared().urls().isEmpty());
}
