#include "Gallery/Pages/PushButtonsPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/VantorPushButton.h"

namespace gallery {

namespace {

using platform::ButtonCell;
using platform::ImagePosition;
using tidepool::StyledButton;
using tidepool::VantorPushButton;

/// Stays on when it is clicked.
void makeToggle(StyledButton& button, const GallerySettings& settings) {
    button.cell().setButtonType(ButtonCell::ButtonType::pushOnPushOff);
    button.setSelected(settings.isSelected);
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(QStringLiteral("Click, hold Repeat, press Space or Return, or Alt and A."));
    const auto add = [&](const QString& title) -> StyledButton& {
        StyledButton& button = row->add(new StyledButton(title));
        button.setEnabled(settings.isEnabled);
        return button;
    };
    StyledButton& apply = add(QStringLiteral("&Apply"));
    QObject::connect(&apply, &StyledButton::clicked, row, [row] { row->say(QStringLiteral("Applied")); });
    StyledButton& repeat = add(QStringLiteral("Repeat"));
    repeat.setAutoRepeat(true);
    QObject::connect(&repeat, &StyledButton::clicked, row,
                     [row, count = 0]() mutable { row->say(QStringLiteral("%1 times").arg(++count)); });
    StyledButton& bypass = add(QStringLiteral("Bypass"));
    makeToggle(bypass, settings);
    QObject::connect(&bypass, &StyledButton::stateChanged, row, [row](platform::ControlState state) {
        row->say(state == platform::ControlState::on ? QStringLiteral("Bypassed") : QStringLiteral("Active"));
    });
    return row;
}

void addVariants(Section& section, const GallerySettings& settings) {
    const ButtonStates states;
    StateGrid& grid = section.addGrid(states.titles());
    const auto add = [&](const QString& variant, const QString& title, auto prepare) {
        states.addRow<StyledButton>(grid, variant, settings, [&](StyledButton& button) {
            button.setText(title);
            makeToggle(button, settings);
            prepare(button);
        });
    };
    const platform::Image& star = tidepool::Images::organiserIconStar;
    const platform::Image& plus = tidepool::Images::propertiesTableAdd;
    add(QStringLiteral("Title"), QStringLiteral("Apply"), [](StyledButton&) {});
    add(QStringLiteral("Fixed width"), QStringLiteral("A longer title"),
        [](StyledButton& button) { button.setFixedWidth(72); });
    add(QStringLiteral("Image and title"), QStringLiteral("Keep"),
        [&](StyledButton& button) { button.setImage(star); });
    add(QStringLiteral("Trailing image"), QStringLiteral("Keep"), [&](StyledButton& button) {
        button.setImage(star);
        button.setImagePosition(ImagePosition::imageTrailing);
    });
    add(QStringLiteral("Image"), {}, [&](StyledButton& button) {
        button.setImage(plus);
        button.setImagePosition(ImagePosition::imageOnly);
    });
    add(QStringLiteral("No border"), QStringLiteral("Reset"),
        [](StyledButton& button) { button.setBordered(false); });
}

void addInsets(Section& section, const GallerySettings& settings) {
    const ButtonStates states{.hasState = false};
    StateGrid& grid = section.addGrid(states.titles());
    const auto add = [&](const QString& variant, std::optional<double> height, QMarginsF insets) {
        states.addRow<VantorPushButton>(grid, variant, settings, [&](VantorPushButton& button) {
            button.setText(QStringLiteral("Render"));
            button.setFixedHeight(height);
            button.setFixedWidth(96);
            button.cell().setTitleEdgeInsets(insets);
            button.cell().setVerticallyCenterTitle(insets.isNull());
            button.setSelected(settings.isSelected);
        });
    };
    add(QStringLiteral("24 points high"), std::nullopt, {});
    add(QStringLiteral("32 points high"), 32, {});
    add(QStringLiteral("Title moved up"), 40, {0, 0, 0, 12});
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addVariants(page->addSection(QStringLiteral("StyledButton")), settings);
    addInsets(page->addSection(QStringLiteral("VantorPushButton"),
                               QStringLiteral("The same look around insets and a size of its own.")),
              settings);
    return page;
}

} // namespace

GalleryPage pushButtonsPage() {
    return {.group = QStringLiteral("Buttons"),
            .title = QStringLiteral("Push buttons"),
            .summary = QStringLiteral(
                "For what happens at once. A button can also stay on, or be the selected one of several."),
            .keywords = {QStringLiteral("StyledButton"), QStringLiteral("StyledButtonCell"),
                         QStringLiteral("VantorPushButton"), QStringLiteral("ButtonCellStyle"),
                         QStringLiteral("push button"), QStringLiteral("bezel"), QStringLiteral("fixedWidth"),
                         QStringLiteral("mnemonic"), QStringLiteral("auto-repeat")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
