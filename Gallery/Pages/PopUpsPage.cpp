#include "Gallery/Pages/PopUpsPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Choices/StyledPopDownButton.h"
#include "Tidepool/Choices/StyledPopUpButtonWrapper.h"

namespace gallery {

namespace {

using tidepool::StyledMenuButton;
using tidepool::StyledPopDownButton;
using tidepool::StyledPopUpButton;
using tidepool::StyledPopUpButtonWrapper;
using tidepool::ToolPopUpButton;

const ButtonStates& states() {
    static const ButtonStates states{.hasState = false};
    return states;
}

void addWaves(StyledMenuButton& button) {
    for (const char16_t* const title : {u"Sine", u"Square", u"Noise"})
        button.addItem(QString::fromUtf16(title));
}

void addCommands(StyledMenuButton& button) {
    for (const char16_t* const title : {u"Add", u"Note", u"Chord", u"Pattern"})
        button.addItem(QString::fromUtf16(title));
}

void sayChoices(LiveRow& row, StyledMenuButton& button, const GallerySettings& settings) {
    button.setEnabled(settings.isEnabled);
    QObject::connect(&button, &StyledMenuButton::itemChosen, &row,
                     [&row](const platform::MenuItem* item) { row.say(item->title()); });
}

/// Items with an image, a line, one that is disabled and a submenu, bound to a number of the row.
void addGrid(LiveRow& row) {
    using tidepool::PopupItem;
    using tidepool::PopupObject;
    const auto number = std::make_shared<PopupObject>(4);
    const std::vector<PopupItem> triplets{{.object = 6, .title = QStringLiteral("Quarter triplet")},
                                          {.object = 12, .title = QStringLiteral("Eighth triplet")}};
    row.add(new StyledPopUpButtonWrapper(
        {{.title = QStringLiteral("Off")},
         PopupItem::divider(),
         {.object = 4, .title = QStringLiteral("Quarter"), .image = tidepool::Images::organiserIconStar},
         {.object = 8, .title = QStringLiteral("Eighth")},
         {.object = 64, .title = QStringLiteral("64th"), .isEnabled = false},
         {.title = QStringLiteral("Triplets"), .subMenu = triplets}},
        {[=] { return *number; }, [=](const PopupObject& chosen) { *number = chosen; }},
        QStringLiteral("Grid")));
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(QStringLiteral(
        "Press, or step with the arrow keys and letters. Space, F4, Alt and Down open the menu."));
    auto& wave = row->add(new StyledPopUpButton);
    addWaves(wave);
    auto& labelled = row->add(new StyledPopUpButton);
    addWaves(labelled);
    labelled.setLabel(QStringLiteral("Wave"));
    addGrid(*row);
    auto& small = row->add(new ToolPopUpButton);
    addWaves(small);
    auto& patch = row->add(new StyledPopUpButton);
    auto patches = std::make_unique<platform::Menu>();
    for (int number = 1; number <= 2000; ++number)
        patches->addItem(QStringLiteral("Patch %1").arg(number));
    patch.setMenu(std::move(patches));
    patch.setAccessibleName(QStringLiteral("Patch"));
    auto& add = row->add(new StyledPopDownButton);
    addCommands(add);
    for (StyledMenuButton* const button : row->findChildren<StyledMenuButton*>())
        sayChoices(*row, *button, settings);
    return row;
}

void addPopUps(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid(states().titles());
    const auto add = [&](const QString& variant, auto prepare) {
        states().addRow<StyledPopUpButton>(grid, variant, settings, [&](StyledPopUpButton& button) {
            addWaves(button);
            prepare(button);
        });
    };
    add(QStringLiteral("Title"), [](StyledPopUpButton&) {});
    add(QStringLiteral("Label"), [](StyledPopUpButton& button) { button.setLabel(QStringLiteral("Wave")); });
    add(QStringLiteral("Fixed width"), [](StyledPopUpButton& button) { button.setFixedWidth(84); });
    add(QStringLiteral("Too narrow"), [](StyledPopUpButton& button) {
        button.setLabel(QStringLiteral("Wave"));
        button.selectItem(1);
        button.setFixedWidth(80);
    });
    add(QStringLiteral("Nothing chosen"), [](StyledPopUpButton& button) { button.selectItem(-1); });
}

void addToolPopUps(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid(states().titles());
    states().addRow<ToolPopUpButton>(grid, QStringLiteral("Title"), settings, addWaves);
    states().addRow<ToolPopUpButton>(grid, QStringLiteral("Label"), settings, [](ToolPopUpButton& button) {
        addWaves(button);
        button.setLabel(QStringLiteral("Wave"));
    });
}

void addPopDowns(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid(states().titles());
    states().addRow<StyledPopDownButton>(grid, QStringLiteral("First item"), settings, addCommands);
    states().addRow<StyledPopDownButton>(grid, QStringLiteral("Title of its own"), settings,
                                         [](StyledPopDownButton& button) {
                                             addWaves(button);
                                             button.setTitle(QStringLiteral("Insert"));
                                         });
    states().addRow<StyledPopDownButton>(grid, QStringLiteral("Label"), settings,
                                         [](StyledPopDownButton& button) {
                                             addCommands(button);
                                             button.setLabel(QStringLiteral("Track"));
                                         });
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addPopUps(page->addSection(QStringLiteral("StyledPopUpButton")), settings);
    addToolPopUps(page->addSection(QStringLiteral("ToolPopUpButton")), settings);
    addPopDowns(page->addSection(QStringLiteral("StyledPopDownButton")), settings);
    return page;
}

} // namespace

GalleryPage popUpsPage() {
    return {.group = QStringLiteral("Choices"),
            .title = QStringLiteral("Pop-ups"),
            .summary = QStringLiteral("For one of several choices of which only the chosen one needs room, "
                                      "and for commands behind a title."),
            .keywords = {QStringLiteral("StyledPopUpButton"), QStringLiteral("StyledPopUpButtonCell"),
                         QStringLiteral("ToolPopUpButton"), QStringLiteral("ToolPopUpButtonCell"),
                         QStringLiteral("StyledPopDownButton"), QStringLiteral("StyledPopDownButtonCell"),
                         QStringLiteral("PopUpButtonCellStyle"), QStringLiteral("StyledPopUpButtonWrapper"),
                         QStringLiteral("PopupItem"), QStringLiteral("pull-down"), QStringLiteral("label"),
                         QStringLiteral("fixedWidth")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
