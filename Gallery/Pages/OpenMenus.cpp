#include "Gallery/Pages/OpenMenus.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Pages/MenuPicture.h"
#include "Gallery/Pages/NoteLength.h"
#include "Platform/Controls/ImageIcon.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Menus/PresentableMenu.h"
#include "Tidepool/Menus/TPMenuItem.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace gallery {

namespace {

using platform::MenuItem;
using tidepool::TPMenuItem;
using tidepool::TPMenuType;

using Items = std::vector<TPMenuItem>;

std::unique_ptr<PicturedMenu> menuOf(const Items& items) {
    auto menu = std::make_unique<PicturedMenu>();
    for (const TPMenuItem& item : items)
        menu->addItem(item.asMenuItem());
    return menu;
}

MenuItem& itemTitled(const platform::Menu& menu, const QString& title) {
    const auto items = menu.items();
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const MenuItem* item) { return item->title() == title; });
    return **found;
}

/// A sheet of paper with a folded corner, in place of the icons that a desktop has for its documents.
QIcon sheetIcon() {
    QIcon icon;
    for (const int scale : {1, 2}) {
        QPixmap pixmap(16 * scale, 16 * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(textColor(TextRole::caption), 1));
        painter.drawPolygon(QPolygonF({{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}));
        painter.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}));
        icon.addPixmap(pixmap);
    }
    return icon;
}

void setIcon(const platform::Menu& menu, const QString& title, const platform::Image& image) {
    itemTitled(menu, title).setIcon(platform::imageIcon(image));
}

/// Every kind of item.
std::unique_ptr<PicturedMenu> trackMenu() {
    auto menu = menuOf(
        {{.menuType = TPMenuType::sectionHeader(QStringLiteral("Track"))},
         {.title = QStringLiteral("Mute"),
          .shortcutKey = QStringLiteral("m"),
          .modifiers = Qt::ControlModifier},
         {.title = QStringLiteral("Solo"), .shortcutKey = QStringLiteral("s"), .modifiers = Qt::AltModifier},
         {.title = QStringLiteral("Monitor")},
         TPMenuItem::separator(),
         {.title = QStringLiteral("Favourite")},
         {.title = QStringLiteral("Add to Set"), .submenu = Items{{.title = QStringLiteral("Live")}}},
         {.title = QStringLiteral("Freeze"), .shortcutKey = QStringLiteral("F5")},
         {.title = QStringLiteral(
              "Rename “Strings, con sordino, recorded in the small hall on a Tuesday in November”…")},
         TPMenuItem::separator(),
         {.title = QStringLiteral("Delete"), .shortcutKey = QStringLiteral("Del")}});
    itemTitled(*menu, QStringLiteral("Mute")).setState(MenuItem::State::on);
    itemTitled(*menu, QStringLiteral("Solo")).setState(MenuItem::State::mixed);
    itemTitled(*menu, QStringLiteral("Freeze")).setEnabled(false);
    setIcon(*menu, QStringLiteral("Favourite"), tidepool::Images::organiserIconStar);
    setIcon(*menu, QStringLiteral("Add to Set"), tidepool::Images::propertiesTableAdd);
    menu->highlight(itemTitled(*menu, QStringLiteral("Monitor")));
    return menu;
}

std::unique_ptr<PicturedMenu> menuWithSubmenu() {
    const Items quantize{{.title = QStringLiteral("To Bars")},
                         {.title = QStringLiteral("To Beats")},
                         {.title = QStringLiteral("To Grid")},
                         TPMenuItem::separator(),
                         {.title = QStringLiteral("Options…")}};
    auto menu = menuOf({{.title = QStringLiteral("Transpose…")},
                        {.title = QStringLiteral("Quantize"), .submenu = quantize},
                        {.title = QStringLiteral("Reverse")}});
    menu->highlight(itemTitled(*menu, QStringLiteral("Quantize")));
    return menu;
}

std::unique_ptr<PicturedMenu> choiceMenu() {
    auto menu = std::make_unique<PicturedMenu>();
    tidepool::addChoices<NoteLength>(*menu);
    for (MenuItem* const item : menu->items())
        if (!item->isSeparator())
            item->setState(MenuItem::State::off);
    MenuItem& quarter = itemTitled(*menu, QStringLiteral("Quarter"));
    quarter.setState(MenuItem::State::on);
    menu->highlight(quarter);
    return menu;
}

std::unique_ptr<PicturedMenu> recentMenu() {
    const QStringList documents{QStringLiteral("Nocturne.session"), QStringLiteral("Étude in E flat.session"),
                                QStringLiteral("Sketches.session")};
    Items items;
    for (const QString& document : documents)
        items.push_back({.title = document});
    items.push_back(TPMenuItem::separator());
    items.push_back({.title = QStringLiteral("Clear Recent Documents")});
    auto menu = menuOf(items);
    for (const QString& document : documents)
        itemTitled(*menu, document).setIcon(sheetIcon());
    return menu;
}

void addPicture(QHBoxLayout& row, const QString& caption, std::unique_ptr<PicturedMenu> menu) {
    auto* const stack = new QVBoxLayout;
    stack->setSpacing(8);
    stack->addWidget(makeText(caption, TextRole::caption));
    stack->addWidget(new MenuPicture(std::move(menu)));
    stack->addStretch();
    row.addLayout(stack);
}

QHBoxLayout* addRow(QVBoxLayout& rows) {
    auto* const row = new QHBoxLayout;
    row->setSpacing(28);
    rows.addLayout(row);
    return row;
}

} // namespace

QWidget* makeOpenMenus() {
    auto* const menus = new QWidget;
    auto* const rows = new QVBoxLayout(menus);
    rows->setContentsMargins({});
    rows->setSpacing(28);
    QHBoxLayout* const first = addRow(*rows);
    addPicture(*first, QStringLiteral("Every kind of item"), trackMenu());
    addPicture(*first, QStringLiteral("A choice"), choiceMenu());
    first->addStretch();
    QHBoxLayout* const second = addRow(*rows);
    addPicture(*second, QStringLiteral("With its submenu"), menuWithSubmenu());
    addPicture(*second, QStringLiteral("Recent documents"), recentMenu());
    second->addStretch();
    return menus;
}

} // namespace gallery
