#include "Gallery/Pages/StatesPage.h"

#include "Gallery/Layout/Section.h"
#include "Gallery/Layout/Text.h"
#include "Gallery/Pages/ResolvedStyle.h"
#include "Gallery/Pages/StateImageTable.h"
#include "Gallery/Pages/StyleClasses.h"
#include "Gallery/StyleSet.h"
#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"

#include <QGridLayout>
#include <QLabel>

#include <utility>

namespace gallery {

using platform::ControlState;
using platform::PopUpButton;
using tidepool::StyledCheckBox;
using tidepool::StyledControlState;

namespace {

/// Puts `widget` in place of what the layout holds.
void replaceContent(QVBoxLayout* layout, QWidget* widget) {
    if (const std::unique_ptr<QLayoutItem> item(layout->takeAt(0)); item)
        delete item->widget();
    layout->addWidget(widget);
}

QVBoxLayout* addPlace(Section& section) {
    auto* const place = new QWidget;
    auto* const layout = new QVBoxLayout(place);
    layout->setContentsMargins({});
    section.add(place);
    return layout;
}

} // namespace

GalleryPage statesPage() {
    // Kept from one look at the page to the next.
    const auto selection = std::make_shared<StatesPage::Selection>(StatesPage::Selection{
        styleClassIndex("CheckBoxCellStyle"),
        StyledControlState::disabled | StyledControlState::highlighted | StyledControlState::on});
    return {
        .group = QStringLiteral("Foundations"),
        .title = QStringLiteral("States"),
        .summary = QStringLiteral("A control asks its style for everything it draws, with one set of flags. "
                                  "Choose a style and flags to see what it is given."),
        .keywords = {QStringLiteral("style"), QStringLiteral("StyledControlState"),
                     QStringLiteral("StateImages"), QStringLiteral("ControlStyle"),
                     QStringLiteral("focus ring"), QStringLiteral("bezel"), QStringLiteral("flags")},
        .make = [selection](const GallerySettings& settings) { return new StatesPage(settings, selection); }};
}

StatesPage::StatesPage(const GallerySettings& settings, std::shared_ptr<Selection> selection)
    : m_settings(settings), m_selection(std::move(selection)) {
    addSection(tr("Style and flags")).add(makeChoice());
    m_result = addPlace(addSection(tr("What the control draws with")));
    m_images = addPlace(addSection(tr("States with an image of their own"),
                                   tr("Every other state takes the image of the largest subset of its flags, "
                                      "and of equals the first.")));
    makeStyle();
}

StatesPage::~StatesPage() = default;

QWidget* StatesPage::makeChoice() {
    auto* const choice = new QWidget;
    auto* const row = new QGridLayout(choice);
    row->setContentsMargins({});
    row->setHorizontalSpacing(48);
    row->setVerticalSpacing(8);
    auto* const classes = new PopUpButton;
    for (const StyleClass& styleClass : styleClasses())
        classes->addItem(QString::fromLatin1(styleClass.name));
    classes->selectItem(m_selection->styleClass);
    classes->setMinimumWidth(280);
    classes->setAccessibleName(tr("Style class"));
    connect(classes, &PopUpButton::itemChosen, this,
            [this, classes] { setStyleClass(classes->indexOfSelectedItem()); });
    row->addWidget(makeText(tr("Style class"), TextRole::caption), 0, 0);
    row->addWidget(classes, 1, 0, Qt::AlignTop);
    row->addWidget(makeText(tr("Flags"), TextRole::caption), 0, 1);
    row->addWidget(makeFlags(), 1, 1);
    row->setColumnStretch(2, 1);
    return choice;
}

QWidget* StatesPage::makeFlags() {
    constexpr int columns = 4;
    auto* const flags = new QWidget;
    tidepool::StyleSet::apply(*flags, formStyles(m_settings));
    auto* const grid = new QGridLayout(flags);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(28);
    grid->setVerticalSpacing(10);
    for (const StyledControlState flag : StyledControlState::all) {
        auto* const box = new StyledCheckBox(flag.description());
        box->setState(m_selection->state.contains(flag) ? ControlState::on : ControlState::off);
        connect(box, &StyledCheckBox::stateChanged, this,
                [this, flag](ControlState state) { setFlags(flag, state == ControlState::on); });
        grid->addWidget(box, grid->count() / columns, grid->count() % columns);
    }
    return flags;
}

void StatesPage::setStyleClass(int index) {
    m_selection->styleClass = index;
    makeStyle();
}

void StatesPage::setFlags(StyledControlState flags, bool isSet) {
    m_selection->state = m_selection->state.with(flags, isSet);
    show();
}

void StatesPage::makeStyle() {
    m_style = styleClasses()[static_cast<std::size_t>(m_selection->styleClass)].make(
        {platform::currentAppearance(), accentOf(m_settings)});
    show();
}

void StatesPage::show() {
    replaceContent(m_result, new ResolvedStyle(*m_style, m_selection->state));
    replaceContent(m_images, new StateImageTable(imageMaps(*m_style), m_selection->state));
}

} // namespace gallery
