#include "Gallery/Pages/MenusPage.h"
#include "Gallery/Pages/DemoDocuments.h"
#include "Platform/Controls/PopUpButton.h"
#include "Platform/Core/RecentDocuments.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

TEST(MenusPage, TwoPopUpButtonsChooseTheSameValue) {
    const std::unique_ptr<QWidget> page(gallery::menusPage().make({}));
    QList<platform::PopUpButton*> lengths;
    for (auto* const button : page->findChildren<platform::PopUpButton*>())
        if (button->accessibleName().endsWith(QStringLiteral("note length"), Qt::CaseInsensitive))
            lengths << button;
    ASSERT_EQ(lengths.size(), 2);
    for (auto* const button : lengths) {
        button->selectNextItem();
        EXPECT_EQ(lengths[0]->title(), lengths[1]->title());
    }
    EXPECT_EQ(lengths[0]->title(), QStringLiteral("Quarter triplet"));
}

TEST(DemoDocuments, OpenByNameAndGoWithTheirMenu) {
    auto& recent = platform::RecentDocuments::shared();
    auto documents = std::make_unique<gallery::DemoDocuments>();
    QSignalSpy opened(documents.get(), &gallery::DemoDocuments::opened);
    platform::Menu menu;
    menu.setDelegate(documents.get());
    EXPECT_TRUE(recent.urls().isEmpty()) << "nothing is made before the menu is opened";
    menu.updateItems();
    ASSERT_EQ(menu.items().size(), 5);
    menu.items().front()->trigger();
    EXPECT_EQ(opened.value(0).value(0).toString(), QStringLiteral("Nocturne.wav"));
    documents.reset();
    EXPECT_TRUE(recent.urls().isEmpty());
}
