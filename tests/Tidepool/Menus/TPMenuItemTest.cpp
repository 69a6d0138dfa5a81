#include "Tidepool/Menus/TPMenuItem.h"

#include "Platform/Controls/Menu.h"
#include "Platform/Controls/ServicesMenu.h"
#include "tests/Tidepool/Menus/MenuChoices.h"

#include <gtest/gtest.h>

using namespace tidepool;
using platform::Menu;
using platform::MenuItem;
using platform::Selector;

namespace {

constexpr Selector play{"play"};

class Filler : public platform::MenuDelegate {
public:
    void menuNeedsUpdate(Menu&) override {}
};

} // namespace

TEST(TPMenuItem, MakesAnItemOfAllItsFields) {
    QObject target;
    const TPMenuItem description{.title = QStringLiteral("Play"),
                                 .action = play,
                                 .target = &target,
                                 .shortcutKey = QStringLiteral("p"),
                                 .modifiers = Qt::ControlModifier | Qt::AltModifier,
                                 .tag = 7,
                                 .representedObject = std::string("song")};
    const auto item = description.asMenuItem();
    EXPECT_EQ(item->title(), QStringLiteral("Play"));
    EXPECT_STREQ(item->action->name, "play");
    EXPECT_EQ(item->target, &target);
    EXPECT_EQ(item->shortcut(), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_P));
    EXPECT_EQ(item->tag, 7);
    EXPECT_EQ(std::any_cast<std::string>(item->representedObject), "song");
    EXPECT_EQ(item->submenu(), nullptr);
}

TEST(TPMenuItem, IsPlainByDefault) {
    TPMenuItem description;
    {
        QObject shortLived;
        description.target = &shortLived;
    }
    const auto item = description.asMenuItem();
    EXPECT_EQ(item->title(), QString());
    EXPECT_FALSE(item->action);
    EXPECT_EQ(item->target, nullptr);
    EXPECT_TRUE(item->shortcut().isEmpty());
    EXPECT_EQ(item->tag, 0);
    EXPECT_FALSE(item->representedObject.has_value());
    EXPECT_FALSE(item->isSeparator());
}

TEST(TPMenuItem, HeadersAndSeparatorsHaveNothingElse) {
    TPMenuItem description{.title = QStringLiteral("Ignored"),
                           .action = play,
                           .menuType = TPMenuType::sectionHeader(QStringLiteral("Tools")),
                           .submenu = std::vector<TPMenuItem>(2),
                           .tag = 7};
    const auto header = description.asMenuItem();
    EXPECT_TRUE(header->isSectionHeader());
    EXPECT_EQ(header->title(), QStringLiteral("Tools"));
    EXPECT_EQ(header->submenu(), nullptr);
    EXPECT_FALSE(header->action);
    EXPECT_EQ(header->tag, 0);
    description.menuType = TPMenuType::separator();
    for (const auto& separator : {description, TPMenuItem::separator()}) {
        const auto item = separator.asMenuItem();
        EXPECT_TRUE(item->isSeparator());
        EXPECT_FALSE(item->isSectionHeader());
        EXPECT_EQ(item->submenu(), nullptr);
    }
}

TEST(TPMenuItem, DelegatesFillTheirSubmenuUnlessThereIsAnother) {
    auto filler = std::make_shared<Filler>();
    TPMenuItem description;
    for (const auto& type : {TPMenuType::documentTemplates(filler), TPMenuType::recentDocuments(filler)}) {
        description.menuType = type;
        const auto item = description.asMenuItem();
        ASSERT_NE(item->submenu(), nullptr);
        EXPECT_TRUE(item->submenu()->items().isEmpty());
        EXPECT_EQ(item->submenu()->delegate(), filler.get());
    }
    const std::weak_ptr<Filler> kept(filler);
    filler.reset();
    EXPECT_FALSE(kept.expired()) << "by the description";
    auto filled = description.asMenuItem();
    description.menuType = TPMenuType::standard();
    EXPECT_NE(filled->submenu()->delegate(), nullptr) << "and by what it fills";
    filled.reset();
    EXPECT_TRUE(kept.expired());
    description.submenuEnum = menuPresentables<Waveform>();
    EXPECT_EQ(description.asMenuItem()->submenu()->items().size(), 3);
    description.submenu = {TPMenuItem{.title = QStringLiteral("Explicit")}, TPMenuItem::separator()};
    const auto item = description.asMenuItem();
    EXPECT_EQ(item->submenu()->delegate(), nullptr);
    ASSERT_EQ(item->submenu()->items().size(), 2) << "an explicit submenu precedes";
    EXPECT_EQ(item->submenu()->items().front()->title(), QStringLiteral("Explicit"));
}

TEST(TPMenuItem, TheServicesMenuIsTheOneMadeLast) {
    const TPMenuItem description{.menuType = TPMenuType::services()};
    const auto first = description.asMenuItem();
    ASSERT_NE(first->submenu(), nullptr);
    EXPECT_EQ(platform::servicesMenu(), first->submenu());
    auto second = description.asMenuItem();
    ASSERT_NE(first->submenu(), nullptr);
    EXPECT_EQ(platform::servicesMenu(), second->submenu());
    second.reset();
    EXPECT_EQ(platform::servicesMenu(), nullptr);

    TPMenuItem filled = description;
    filled.submenu = {TPMenuItem{.title = QStringLiteral("Explicit")}};
    const auto third = filled.asMenuItem();
    ASSERT_EQ(third->submenu()->items().size(), 1);
    ASSERT_NE(platform::servicesMenu(), nullptr) << "though another is the item's submenu";
    EXPECT_TRUE(platform::servicesMenu()->items().isEmpty());
}

TEST(TPMenuItem, PresentsTheValuesOfAnyTypes) {
    QObject target;
    const TPMenuItem description{.target = &target,
                                 .submenuEnum = {{Waveform::noise, Scale{QStringLiteral("minor")}}},
                                 .submenuEmumSelector = play};
    const auto item = description.asMenuItem();
    const auto items = item->submenu()->items();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0]->title(), QStringLiteral("Noise"));
    EXPECT_EQ(items[0]->tag, static_cast<int>(Waveform::noise));
    EXPECT_FALSE(items[0]->icon().isNull());
    EXPECT_TRUE(items[0]->shortcut().isEmpty());
    EXPECT_EQ(items[1]->title(), QStringLiteral("MINOR"));
    EXPECT_EQ(items[1]->tag, 5);
    EXPECT_TRUE(items[1]->icon().isNull());
    for (const MenuItem* presented : items) {
        EXPECT_STREQ(presented->action->name, "play");
        EXPECT_EQ(presented->target, nullptr);
    }
    EXPECT_EQ(item->target, &target);
}

TEST(TPMenuItem, AMenuOfAListEnablesNothingByItself) {
    const auto menu = asMenu({TPMenuItem{.title = QStringLiteral("A"), .action = play},
                              TPMenuItem::separator(), TPMenuItem{.title = QStringLiteral("B")}});
    ASSERT_EQ(menu->items().size(), 3);
    EXPECT_EQ(menu->items()[2]->title(), QStringLiteral("B"));
    menu->updateItems();
    EXPECT_TRUE(menu->items()[0]->isEnabled()) << "though nobody answers";
}
