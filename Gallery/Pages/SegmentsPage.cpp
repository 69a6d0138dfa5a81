#include "Gallery/Pages/SegmentsPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Platform/Controls/Menu.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Choices/StyledSegmentedControl.h"
#include "Tidepool/Choices/TideSegmentButton.h"
#include "Tidepool/Choices/TideSegmentedControl.h"
#include "Tidepool/Choices/TideSegmentedControlModel.h"

namespace gallery {

namespace {

using tidepool::SegmentTracking;
using tidepool::StyledSegmentedControl;
using tidepool::TideSegmentButton;
using tidepool::TideSegmentedControl;
using tidepool::TideSegmentedControlModel;

const QStringList& views() {
    static const QStringList labels{QStringLiteral("Keys"), QStringLiteral("List"), QStringLiteral("Mixer")};
    return labels;
}

std::shared_ptr<TideSegmentedControlModel> makeModel() {
    tidepool::TideSegmentItems items;
    for (const QString& title : views())
        items << std::make_shared<tidepool::TideSegmentItem>(static_cast<int>(items.size()), title);
    return std::make_shared<TideSegmentedControlModel>(items);
}

/// A menu that goes with `control`.
platform::Menu* makeMenu(StyledSegmentedControl& control) {
    auto* const menu = new platform::Menu;
    menu->setParent(&control, menu->windowFlags());
    for (const char16_t* const title : {u"Note", u"Chord", u"Pattern"})
        menu->addItem(QString::fromUtf16(title));
    return menu;
}

StyledSegmentedControl& addStyled(LiveRow& row, const QStringList& labels, SegmentTracking mode) {
    auto& control = row.add(new StyledSegmentedControl(labels));
    control.cell().setTrackingMode(mode);
    QObject::connect(&control, &StyledSegmentedControl::segmentClicked, &row,
                     [&row, &control](int segment) { row.say(control.cell().segment(segment).label); });
    return control;
}

QWidget* makeStyledRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(
        QStringLiteral("Click, or go with the arrow keys and press Space. Hold Add for its menu."));
    addStyled(*row, views(), SegmentTracking::selectOne).setSelectedSegment(0);
    addStyled(*row, {QStringLiteral("Snap"), QStringLiteral("Loop")}, SegmentTracking::selectAny);
    auto& commands =
        addStyled(*row, {QStringLiteral("Undo"), QStringLiteral("Add")}, SegmentTracking::momentary);
    commands.cell().setMenu(makeMenu(commands), 1);
    for (StyledSegmentedControl* const control : row->findChildren<StyledSegmentedControl*>())
        control->setEnabled(settings.isEnabled);
    return row;
}

QWidget* makeTideRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(QStringLiteral("A second click takes the selection away."));
    const auto model = makeModel();
    model->select(0);
    model->setOnSelectionChanged([row](const tidepool::TideSegmentItemPointer& item) {
        row->say(item ? item->title() : QStringLiteral("Nothing"));
    });
    row->add(new TideSegmentedControl(model)).setEnabled(settings.isEnabled);
    return row;
}

/// A row with the first segment selected, in each state.
template <typename Prepare>
void addStates(StateGrid& grid, const QString& variant, const GallerySettings& settings, Prepare prepare) {
    QList<QWidget*> cells;
    const auto add = [&](StyledSegmentedControl* control, auto change) {
        control->cell().setSegmentCount(2);
        control->setSelectedSegment(0);
        prepare(*control);
        control->setEnabled(settings.isEnabled);
        change(*control);
        cells << control;
    };
    add(new StyledSegmentedControl, [](auto&) {});
    add(new StyledSegmentedControl, [](auto& control) { control.cell().setHighlightedSegment(1); });
    add(new StyledSegmentedControl, [](auto& control) { control.cell().setHighlightedSegment(0); });
    add(new Focused<StyledSegmentedControl>, [](auto& control) { control.cell().setKeySegment(1); });
    add(new StyledSegmentedControl, [](auto& control) { control.setEnabled(false); });
    grid.addRow(variant, cells);
}

void setLabels(StyledSegmentedControl& control) {
    control.cell().setLabel(QStringLiteral("Keys"), 0);
    control.cell().setLabel(QStringLiteral("List"), 1);
}

void setImages(StyledSegmentedControl& control) {
    control.cell().setImage(tidepool::Images::propertiesTableAdd, 0);
    control.cell().setImage(tidepool::Images::organiserIconDisclose, 1);
}

void addStyledStates(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid({QStringLiteral("Normal"), QStringLiteral("Pressed"),
                                       QStringLiteral("Selected, pressed"), QStringLiteral("Focused"),
                                       QStringLiteral("Disabled")});
    const auto add = [&](const QString& variant, auto prepare) {
        addStates(grid, variant, settings, prepare);
    };
    add(QStringLiteral("Select one"), setLabels);
    add(QStringLiteral("Select any"), [](StyledSegmentedControl& control) {
        setLabels(control);
        control.cell().setTrackingMode(SegmentTracking::selectAny);
        control.cell().setSelected(true, 1);
    });
    add(QStringLiteral("Commands"), [](StyledSegmentedControl& control) {
        setLabels(control);
        control.cell().setTrackingMode(SegmentTracking::momentary);
        control.cell().setMenu(makeMenu(control), 1);
    });
    add(QStringLiteral("Selection hidden"), [](StyledSegmentedControl& control) {
        setLabels(control);
        control.cell().setHideSelection(true);
    });
    add(QStringLiteral("One disabled"), [](StyledSegmentedControl& control) {
        setLabels(control);
        control.cell().setEnabled(false, 0);
    });
    add(QStringLiteral("Images"), setImages);
    add(QStringLiteral("Image and label"), [](StyledSegmentedControl& control) {
        setLabels(control);
        control.cell().setImage(tidepool::Images::organiserIconDisclose, 0);
    });
    add(QStringLiteral("Too narrow"), [](StyledSegmentedControl& control) {
        control.cell().setLabel(QStringLiteral("Keyboard"), 0);
        control.cell().setLabel(QStringLiteral("Event list"), 1);
        control.setFixedWidth(116);
    });
}

void addTideStates(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid({QStringLiteral("Normal"), QStringLiteral("Pressed"),
                                       QStringLiteral("Selected, pressed"), QStringLiteral("Disabled")});
    const auto add = [&](const QString& variant, auto prepare) {
        QList<QWidget*> cells;
        for (const int pressed : {-1, 1, 0, -1}) {
            const auto model = makeModel();
            prepare(*model);
            auto* const control = new TideSegmentedControl(model);
            control->setEnabled(settings.isEnabled && cells.size() < 3);
            if (pressed >= 0)
                control->findChildren<TideSegmentButton*>()[pressed]->setDown(true);
            cells << control;
        }
        grid.addRow(variant, cells);
    };
    add(QStringLiteral("None selected"), [](TideSegmentedControlModel&) {});
    add(QStringLiteral("One selected"), [](TideSegmentedControlModel& model) { model.select(0); });
    add(QStringLiteral("Selection hidden"), [](TideSegmentedControlModel& model) {
        model.select(0);
        model.setHideSelection(true);
    });
    const auto item = std::make_shared<tidepool::TideSegmentItem>(0, QStringLiteral("Keys"));
    auto* const focused = new Focused<TideSegmentButton>(item);
    auto* const selected = new Focused<TideSegmentButton>(item);
    selected->setSelected(true);
    grid.addRow(QStringLiteral("One segment focused"), {focused, nullptr, selected});
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    Section& live = page->addSection(QStringLiteral("Live"));
    live.add(makeStyledRow(settings));
    live.add(makeTideRow(settings));
    addStyledStates(page->addSection(QStringLiteral("StyledSegmentedControl")), settings);
    addTideStates(page->addSection(QStringLiteral("TideSegmentedControl")), settings);
    return page;
}

} // namespace

GalleryPage segmentsPage() {
    return {.group = QStringLiteral("Choices"),
            .title = QStringLiteral("Segments"),
            .summary = QStringLiteral("For a few choices that are worth seeing side by side: views, modes, "
                                      "or commands that belong together."),
            .keywords = {QStringLiteral("StyledSegmentedControl"), QStringLiteral("StyledSegmentedCell"),
                         QStringLiteral("TideSegmentedControl"), QStringLiteral("TideSegmentItem"),
                         QStringLiteral("TideSegmentedControlModel"), QStringLiteral("SegmentedButtonStyle"),
                         QStringLiteral("SegmentedCellStyle"), QStringLiteral("tab"),
                         QStringLiteral("select any"), QStringLiteral("momentary")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
