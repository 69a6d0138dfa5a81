#include "Tidepool/Menus/RecentDocumentsMenuDelegate.h"

#include "Platform/Controls/Menu.h"
#include "Platform/Core/RecentDocuments.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::Menu;
using platform::RecentDocuments;
using tidepool::RecentDocumentsMenuDelegate;

namespace {

class RecentDocumentsMenuDelegateTest : public testing::Test {
protected:
    RecentDocumentsMenuDelegateTest() {
        m_documents.clear();
        m_menu.setDelegate(&m_delegate);
    }

    ~RecentDocumentsMenuDelegateTest() override {
        m_documents.clear();
        m_documents.opener = nullptr;
    }

    QUrl noteFile(const QString& name) {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        const QUrl url = QUrl::fromLocalFile(file.fileName());
        m_documents.note(url);
        return url;
    }

    QStringList titles() {
        m_menu.updateItems();
        QStringList titles;
        for (const auto* item : m_menu.items())
            titles << item->title();
        return titles;
    }

    RecentDocuments& m_documents = RecentDocuments::shared();
    QTemporaryDir m_folder;
    RecentDocumentsMenuDelegate m_delegate;
    Menu m_menu;
};

const auto clearTitle = QStringLiteral("Clear Recent Documents");

} // namespace

TEST_F(RecentDocumentsMenuDelegateTest, ListsWhatStillExistsOnce) {
    noteFile(QStringLiteral("R & B.mid"));
    QFile::remove(noteFile(QStringLiteral("deleted.mid")).toLocalFile());
    noteFile(QStringLiteral("100 %.mid"));
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(titles(), (QStringList{QStringLiteral("100 %.mid"), QStringLiteral("R & B.mid"), QString(),
                                         clearTitle}));
    EXPECT_FALSE(m_menu.items().front()->icon().isNull());
    EXPECT_TRUE(m_menu.items()[2]->isSeparator());
    EXPECT_TRUE(m_menu.items().back()->isEnabled());
}

TEST_F(RecentDocumentsMenuDelegateTest, ItemsOpenTheirDocumentAndClear) {
    QList<QUrl> opened;
    m_documents.opener = [&](const QUrl& url) {
        opened << url;
        return true;
    };
    const QUrl first = noteFile(QStringLiteral("a.mid"));
    noteFile(QStringLiteral("b.mid"));
    titles();
    m_menu.items()[1]->trigger();
    EXPECT_EQ(opened, QList{first});
    EXPECT_EQ(titles().front(), QStringLiteral("a.mid")) << "it was used last";

    platform::MenuItem stranger(QStringLiteral("stranger"));
    stranger.representedObject = 1;
    m_delegate.openRecentDocument(&stranger);
    m_delegate.openRecentDocument(nullptr);
    EXPECT_EQ(opened.size(), 1);

    m_menu.items().back()->trigger();
    EXPECT_TRUE(m_documents.urls().isEmpty());
    EXPECT_EQ(titles(), (QStringList{QString(), clearTitle}));
    EXPECT_FALSE(m_menu.items().back()->isEnabled()) << "there is nothing to clear";
}
