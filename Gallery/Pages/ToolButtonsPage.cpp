#include "Gallery/Pages/ToolButtonsPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Platform/Controls/Menu.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/BackButton.h"
#include "Tidepool/Buttons/CornerButton.h"
#include "Tidepool/Buttons/ToolButton.h"

namespace gallery {

namespace {

using platform::ButtonCell;
using platform::ImagePosition;
using tidepool::BackButton;
using tidepool::CornerButton;
using tidepool::ToolButton;

void showImage(platform::PushButton& button, const platform::Image& image) {
    button.setImage(image);
    button.setImagePosition(ImagePosition::imageOnly);
    button.cell().setButtonType(ButtonCell::ButtonType::pushOnPushOff);
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row =
        new LiveRow(QStringLiteral("Click, press and hold the tool, or open the plus sign's menu."));
    ToolButton& tool = row->add(new ToolButton);
    showImage(tool, tidepool::Images::organiserIconDiscloseOpen);
    tool.cell().setButtonType(ButtonCell::ButtonType::momentaryPushIn);
    tool.setAccessibleName(QStringLiteral("Tool"));
    tool.setShowMoreIcon(true);
    tool.setSecondaryAction(LiveRow::hold);
    tool.setSecondaryTarget(row);
    QObject::connect(&tool, &ToolButton::clicked, row, [row] { row->say(QStringLiteral("Clicked")); });

    CornerButton& corner = row->add(new CornerButton);
    showImage(corner, tidepool::Images::propertiesTableAdd);
    corner.setAccessibleName(QStringLiteral("Add"));
    auto* const menu = new platform::Menu;
    QObject::connect(&corner, &QObject::destroyed, menu, &QObject::deleteLater);
    for (const char16_t* const title : {u"Note", u"Chord", u"Pattern"}) {
        const QString added = QString::fromUtf16(title);
        QObject::connect(&menu->addItem(added), &QAction::triggered, row,
                         [row, added] { row->say(added + u" added"); });
    }
    corner.setAlternateMenu(menu);

    BackButton& back = row->add(new BackButton(QStringLiteral("Library")));
    QObject::connect(&back, &BackButton::clicked, row, [row] { row->say(QStringLiteral("Went back")); });
    for (platform::PushButton* const button : row->findChildren<platform::PushButton*>())
        button->setEnabled(settings.isEnabled);
    return row;
}

void addTools(Section& section, const GallerySettings& settings) {
    const ButtonStates states;
    StateGrid& grid = section.addGrid(states.titles());
    const auto add = [&](const QString& variant, auto prepare) {
        states.addRow<ToolButton>(grid, variant, settings, [&](ToolButton& button) {
            showImage(button, tidepool::Images::organiserIconDisclose);
            button.setSelected(settings.isSelected);
            prepare(button);
        });
    };
    add(QStringLiteral("Image"), [](ToolButton&) {});
    add(QStringLiteral("With more"), [](ToolButton& button) { button.setShowMoreIcon(true); });
    add(QStringLiteral("Image and title"), [](ToolButton& button) {
        button.setText(QStringLiteral("Draw"));
        button.setImagePosition(ImagePosition::imageLeading);
    });
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addTools(page->addSection(QStringLiteral("ToolButton")), settings);
    const ButtonStates withState;
    withState.addRow<CornerButton>(
        page->addSection(QStringLiteral("CornerButton")).addGrid(withState.titles()), QStringLiteral("Image"),
        settings, [&](CornerButton& button) {
            showImage(button, tidepool::Images::propertiesTableAdd);
            button.setSelected(settings.isSelected);
        });
    const ButtonStates plain{.hasState = false};
    plain.addRow<BackButton>(page->addSection(QStringLiteral("BackButton")).addGrid(plain.titles()),
                             QStringLiteral("Title"), settings,
                             [](BackButton& button) { button.setText(QStringLiteral("Library")); });
    return page;
}

} // namespace

GalleryPage toolButtonsPage() {
    return {.group = QStringLiteral("Buttons"),
            .title = QStringLiteral("Tool buttons"),
            .summary = QStringLiteral(
                "For tools and for the edges of a view: they stand back behind what they act on."),
            .keywords = {QStringLiteral("ToolButton"), QStringLiteral("ToolButtonCell"),
                         QStringLiteral("CornerButton"), QStringLiteral("CornerButtonCell"),
                         QStringLiteral("BackButton"), QStringLiteral("BackButtonCell"),
                         QStringLiteral("more"), QStringLiteral("press and hold"),
                         QStringLiteral("secondary action"), QStringLiteral("menu")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
