#include "Gallery/Pages/ComboBoxesPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Gallery/Pages/ListPicture.h"
#include "Tidepool/Choices/StyledComboBox.h"

#include <QStringListModel>

namespace gallery {

namespace {

using tidepool::StyledComboBox;

const QVariantList& instruments() {
    static const QVariantList titles{QStringLiteral("Bass"),  QStringLiteral("Bassoon"),
                                     QStringLiteral("Cello"), QStringLiteral("Harp"),
                                     QStringLiteral("Viola"), QStringLiteral("Violin")};
    return titles;
}

void sayChanges(LiveRow& row, StyledComboBox& box, const GallerySettings& settings) {
    box.setEnabled(settings.isEnabled);
    QObject::connect(&box, &StyledComboBox::textChanged, &row,
                     [&row](const QString& text) { row.say(text); });
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(QStringLiteral(
        "Type, and it is completed. The arrow, Down and F4 open the list; Escape takes back."));
    auto& instrument = row->add(new StyledComboBox);
    instrument.setObjectValues(instruments());
    instrument.setAccessibleName(QStringLiteral("Instrument"));
    instrument.cell().setPlaceholderString(QStringLiteral("Instrument"));
    auto& size = row->add(new StyledComboBox);
    size.setObjectValues({8, 10, 12, 16, 24, 36.5});
    size.setCompletes(false);
    size.selectItem(2);
    size.setAccessibleName(QStringLiteral("Size"));
    auto& sample = row->add(new StyledComboBox);
    QStringList samples;
    for (int number = 1; number <= 100'000; ++number)
        samples << QStringLiteral("Sample %1").arg(number);
    sample.setModel(new QStringListModel(samples, &sample));
    sample.setAccessibleName(QStringLiteral("Sample"));
    sample.selectItem(0);
    for (StyledComboBox* const box : row->findChildren<StyledComboBox*>())
        sayChanges(*row, *box, settings);
    return row;
}

/// A box in each state.
template <typename Prepare>
void addRow(StateGrid& grid, const QString& variant, const GallerySettings& settings, Prepare prepare) {
    QList<QWidget*> cells;
    const auto add = [&](StyledComboBox* box, auto change) {
        box->setObjectValues(instruments());
        prepare(*box);
        box->setEnabled(settings.isEnabled);
        change(*box);
        cells << box;
    };
    add(new StyledComboBox, [](auto&) {});
    add(new StyledComboBox, [](auto& box) { box.cell().setPopupOpen(true); });
    add(new Focused<StyledComboBox>, [](auto&) {});
    add(new StyledComboBox, [](auto& box) { box.setEnabled(false); });
    add(new StyledComboBox, [](auto& box) {
        box.cell().setPopupOpen(true);
        box.setEnabled(false);
    });
    grid.addRow(variant, cells);
}

void addStates(Section& section, const GallerySettings& settings) {
    StateGrid& grid =
        section.addGrid({QStringLiteral("Normal"), QStringLiteral("List open"), QStringLiteral("Focused"),
                         QStringLiteral("Disabled"), QStringLiteral("Disabled, open")});
    addRow(grid, QStringLiteral("Text"), settings, [](StyledComboBox& box) { box.selectItem(1); });
    addRow(grid, QStringLiteral("Placeholder"), settings,
           [](StyledComboBox& box) { box.cell().setPlaceholderString(QStringLiteral("Instrument")); });
    addRow(grid, QStringLiteral("Too narrow"), settings, [](StyledComboBox& box) {
        box.setStringValue(QStringLiteral("Strings, con sordino"));
        box.setFixedWidth(84);
    });
    addRow(grid, QStringLiteral("Empty"), settings, [](StyledComboBox&) {});
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addStates(page->addSection(QStringLiteral("StyledComboBox")), settings);
    page->addSection(QStringLiteral("The open list")).add(new ListPicture);
    return page;
}

} // namespace

GalleryPage comboBoxesPage() {
    return {.group = QStringLiteral("Choices"),
            .title = QStringLiteral("Combo boxes"),
            .summary = QStringLiteral("For a text or a number that is often, but not always, one of some "
                                      "known values."),
            .keywords = {QStringLiteral("StyledComboBox"), QStringLiteral("StyledComboBoxCell"),
                         QStringLiteral("ComboBoxStyle"), QStringLiteral("isPopupOpen"),
                         QStringLiteral("completion"), QStringLiteral("list"), QStringLiteral("drop-down")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
