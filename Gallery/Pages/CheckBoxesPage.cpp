#include "Gallery/Pages/CheckBoxesPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Tidepool/Buttons/FavouriteCheckBox.h"

namespace gallery {

namespace {

using platform::ControlState;
using tidepool::FavouriteCheckBox;
using tidepool::StyledCheckBox;

QString described(ControlState state) {
    if (state == ControlState::mixed)
        return QStringLiteral("Mixed");
    return state == ControlState::on ? QStringLiteral("On") : QStringLiteral("Off");
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(QStringLiteral("Click, or press Space."));
    const auto add = [&](StyledCheckBox* box) {
        row->add(box).setEnabled(settings.isEnabled);
        QObject::connect(box, &StyledCheckBox::stateChanged, row,
                         [row](ControlState state) { row->say(described(state)); });
    };
    add(new StyledCheckBox(QStringLiteral("&Follow the host's tempo")));
    auto* const mixed = new StyledCheckBox(QStringLiteral("Velocity"));
    mixed->setState(ControlState::mixed);
    add(mixed);
    add(new FavouriteCheckBox);
    return row;
}

void addVariants(Section& section, const GallerySettings& settings) {
    const ButtonStates states{.hasMixed = true};
    StateGrid& grid = section.addGrid(states.titles());
    states.addRow<StyledCheckBox>(grid, QStringLiteral("Title"), settings, [&](StyledCheckBox& box) {
        box.setText(QStringLiteral("Swing"));
        box.setSelected(settings.isSelected);
    });
    states.addRow<StyledCheckBox>(grid, QStringLiteral("Box alone"), settings, [&](StyledCheckBox& box) {
        box.setImagePosition(platform::ImagePosition::imageOnly);
        box.setSelected(settings.isSelected);
    });
}

void addStars(Section& section, const GallerySettings& settings) {
    const ButtonStates states;
    states.addRow<FavouriteCheckBox>(section.addGrid(states.titles()), QStringLiteral("Star"), settings,
                                     [](FavouriteCheckBox&) {});
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addVariants(page->addSection(QStringLiteral("StyledCheckBox")), settings);
    addStars(page->addSection(QStringLiteral("FavouriteCheckBox")), settings);
    return page;
}

} // namespace

GalleryPage checkBoxesPage() {
    return {.group = QStringLiteral("Buttons"),
            .title = QStringLiteral("Check boxes"),
            .summary = QStringLiteral("For what is on or off and stays so. Mixed says that several things "
                                      "differ; a click makes them agree."),
            .keywords = {QStringLiteral("StyledCheckBox"), QStringLiteral("StyledCheckBoxCell"),
                         QStringLiteral("FavouriteCheckBox"), QStringLiteral("CheckBoxCellStyle"),
                         QStringLiteral("star"), QStringLiteral("mixed"), QStringLiteral("toggle")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
