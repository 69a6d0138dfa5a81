#include "Gallery/Pages/MenusPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Gallery/Pages/DemoDocuments.h"
#include "Gallery/Pages/NoteLength.h"
#include "Gallery/Pages/OpenMenus.h"
#include "Platform/Publishing/PassthroughSubject.h"
#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Menus/PopUpButtonPresentable.h"
#include "Tidepool/Menus/TPMenuItem.h"

namespace gallery {

namespace {

using platform::PopUpButton;
using tidepool::TPMenuItem;

/// A pop-up button that pulls down.
class PullDownButton : public PopUpButton {
public:
    PullDownButton() : PopUpButton(true) {}
};

/// What two pop-up buttons choose together, as long as their row lives.
struct SharedLength : QObject {
    using QObject::QObject;

    std::shared_ptr<platform::PassthroughSubject<NoteLength>> published =
        std::make_shared<platform::PassthroughSubject<NoteLength>>();
    std::vector<platform::AnyCancellable> cancellables;
};

void addLengths(LiveRow& row) {
    auto* const shared = new SharedLength(&row);
    for (const char16_t* const name : {u"Note length", u"The same note length"}) {
        PopUpButton& button = row.add(new PopUpButton);
        button.setAccessibleName(QString::fromUtf16(name));
        tidepool::bindMenu(button, NoteLength::quarter, platform::AnyPublisher<NoteLength>(shared->published),
                           shared->cancellables,
                           std::function<void(const NoteLength&)>([&row, shared](const NoteLength& length) {
                               shared->published->send(length);
                               row.say(tidepool::Presentation<NoteLength>::displayName(length));
                           }));
    }
}

/// Says which item of the menu, or of its submenus, was chosen, before its action may say more.
void sayChoices(LiveRow& row, platform::Menu& menu) {
    QObject::connect(&menu, &platform::Menu::willSendAction, &row,
                     [&row](const platform::MenuItem* item) { row.say(item->title()); });
}

void addPullDown(LiveRow& row) {
    auto& add = row.add(new PullDownButton);
    for (const char16_t* const title : {u"Add", u"Note", u"Chord", u"Pattern"})
        add.addItem(QString::fromUtf16(title));
    sayChoices(row, *add.menu());
}

void addContextMenu(LiveRow& row) {
    using Items = std::vector<TPMenuItem>;
    const Items colors{{.title = QStringLiteral("Amber")}, {.title = QStringLiteral("Teal")}};
    auto* const track = &row.add(new tidepool::StyledButton(QStringLiteral("Track 1")));
    auto* const menu = tidepool::asMenu({{.title = QStringLiteral("Rename…")},
                                         {.title = QStringLiteral("Colour"), .submenu = colors},
                                         TPMenuItem::separator(),
                                         {.title = QStringLiteral("Delete")}})
                           .release();
    menu->setParent(track, menu->windowFlags()); // a window of its own that goes with the button
    sayChoices(row, *menu);
    track->setMenu(menu);
}

void addDocuments(LiveRow& row) {
    const auto documents = std::make_shared<DemoDocuments>();
    QObject::connect(documents.get(), &DemoDocuments::opened, &row,
                     [&row](const QString& name) { row.say(name + u" opened"); });
    auto& file = row.add(new PullDownButton);
    file.setMenu(tidepool::asMenu({{.title = QStringLiteral("File")},
                                   {.title = QStringLiteral("New")},
                                   {.title = QStringLiteral("Open Recent"),
                                    .menuType = tidepool::TPMenuType::recentDocuments(documents)},
                                   TPMenuItem::separator(),
                                   {.title = QStringLiteral("Close")}}));
    sayChoices(row, *file.menu());
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(
        QStringLiteral("Choose with the pointer, the arrow keys or letters. Right-click Track 1."));
    addLengths(*row);
    addPullDown(*row);
    addDocuments(*row);
    addContextMenu(*row);
    for (platform::PushButton* const button : row->findChildren<platform::PushButton*>())
        button->setEnabled(settings.isEnabled);
    return row;
}

void addVariants(Section& section, const GallerySettings& settings) {
    const ButtonStates states{.hasState = false};
    StateGrid& grid = section.addGrid(states.titles());
    states.addRow<PopUpButton>(grid, QStringLiteral("Pop-up"), settings, [](PopUpButton& button) {
        for (const char16_t* const title : {u"Sine", u"Square", u"Noise"})
            button.addItem(QString::fromUtf16(title));
    });
    states.addRow<PopUpButton>(grid, QStringLiteral("Fixed width"), settings, [](PopUpButton& button) {
        button.addItem(QStringLiteral("A longer title"));
        button.setFixedWidth(96);
    });
    states.addRow<PullDownButton>(grid, QStringLiteral("Pull-down"), settings, [](PopUpButton& button) {
        for (const char16_t* const title : {u"Add", u"Note", u"Chord"})
            button.addItem(QString::fromUtf16(title));
    });
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addVariants(page->addSection(QStringLiteral("PopUpButton")), settings);
    page->addSection(QStringLiteral("Menu")).add(makeOpenMenus());
    return page;
}

} // namespace

GalleryPage menusPage() {
    return {.group = QStringLiteral("Menus"),
            .title = QStringLiteral("Menus"),
            .summary = QStringLiteral("For one of several choices, and for commands that need not be seen "
                                      "until they are looked for."),
            .keywords = {QStringLiteral("PopUpButton"), QStringLiteral("PopUpButtonCell"),
                         QStringLiteral("TPMenuItem"), QStringLiteral("TPMenuType"),
                         QStringLiteral("MenuPresentable"), QStringLiteral("MenuStructure"),
                         QStringLiteral("RecentDocumentsMenuDelegate"), QStringLiteral("bindMenu"),
                         QStringLiteral("pull-down"), QStringLiteral("context menu"),
                         QStringLiteral("section header"), QStringLiteral("shortcut")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
