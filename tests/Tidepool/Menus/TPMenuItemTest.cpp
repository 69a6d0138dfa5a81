#include "Tidepool/Menus/TPMenuItem.h"

#include "Platform/Controls/Menu.h"
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
    EXPECT_EQ(item->shortcut(), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_P));
    EXPECT_EQ(item->tag, 7);
    EXPECT_EQ(std::any_cast<std::string>(item->representedObject), "song");
    EXPECT_EQ(item->submenu(), nullptr);
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
    EXPECT_FALSE(header->submenu() || header->action);
    description.menuType = TPMenuType::separator();
    const auto separator = description.asMenuItem();
    EXPECT_TRUE(separator->isSeparator());
    EXPECT_EQ(separator->submenu(), nullptr);
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
    EXPECT_EQ(items[1]->title(), QStringLiteral("MINOR"));
    for (const MenuItem* presented : items) {
        EXPECT_STREQ(presented->action->name, "play");
        EXPECT_EQ(presented->target, nullptr);
    }
}
