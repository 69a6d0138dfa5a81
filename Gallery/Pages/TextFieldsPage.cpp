#include "Gallery/Pages/TextFieldsPage.h"

#include "Gallery/Layout/ButtonStates.h"
#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Tidepool/Formatters/ConstantNameFormatter.h"
#include "Tidepool/Formatters/ExpressionFormatter.h"
#include "Tidepool/Text/StyledSearchField.h"
#include "Tidepool/Text/StyledTextLabels.h"
#include "Tidepool/Text/ValidatingPropertiesField.h"

namespace gallery {

namespace {

using tidepool::StyledSearchField;
using tidepool::StyledTextField;

/// Tells the row what the field sends.
template <typename Field>
Field& addField(LiveRow& row, Field* field, const QString& name, const GallerySettings& settings) {
    row.add(new tidepool::StyledTextLabel(name));
    field->setAccessibleName(name);
    field->setEnabled(settings.isEnabled);
    QObject::connect(field, &Field::editingEnded, &row, [&row, field, name] {
        row.say(field->formattingError().value_or(name + u": " + field->objectValue().toString()));
    });
    QObject::connect(field, &Field::refused, &row, [&row](const QString& reason) { row.say(reason); });
    return row.add(field);
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row =
        new LiveRow(QStringLiteral("Type, and press Return; Escape takes back what was typed."));
    addField(*row, new StyledTextField(QStringLiteral("Bass")), QStringLiteral("Name"), settings);
    auto& constant = addField(*row, new StyledTextField, QStringLiteral("Constant"), settings);
    constant.setFormatter(std::make_shared<tidepool::ConstantNameFormatter>());
    constant.setObjectValue(QStringLiteral("gain"));
    auto& value = addField(*row, new StyledTextField, QStringLiteral("Level"), settings);
    auto decibels = std::make_shared<tidepool::ExpressionFormatter>();
    decibels->setPositiveSuffix(QStringLiteral(" dB"));
    value.setFormatter(std::move(decibels));
    value.setObjectValue(-6.5);
    return row;
}

QWidget* makeSearchRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(QStringLiteral("Searches while you type, and remembers what you sought."));
    auto& search = addField(*row, new StyledSearchField, QStringLiteral("Presets"), settings);
    search.cell().setPlaceholderString(QStringLiteral("Search"));
    search.setMaximumRecents(5);
    search.setRecentSearches({QStringLiteral("warm pad"), QStringLiteral("bass")});
    QObject::connect(&search, &StyledSearchField::textChanged, row, [row](const QString& text) {
        row->say(text.isEmpty() ? QStringLiteral("All presets") : u"Presets with " + text);
    });
    return row;
}

/// A field that says that its text is wrong.
template <typename Field>
class Invalid : public Field {
public:
    using Field::Field;

protected:
    platform::StyledControlState controlFlags() const override {
        return Field::controlFlags().with(platform::StyledControlState::invalid);
    }
};

/// Lets the text look as an editor shows it, in the text's usual colour whatever the state.
void giveEditorsColor(StyledTextField& field) {
    const auto& style = field.cell().style();
    auto edited = std::make_shared<tidepool::TextFieldCellStyle>(style);
    edited->setInvalidTextColor(style.textColor());
    field.cell().setStyle(std::move(edited));
}

template <typename Field, typename Prepare>
void addStates(StateGrid& grid, const QString& variant, const GallerySettings& settings, Prepare prepare) {
    QList<QWidget*> cells;
    const auto add = [&](auto* field, bool isEnabled) {
        prepare(*field);
        field->setEnabled(settings.isEnabled && isEnabled);
        field->setFixedWidth(118);
        cells << field;
    };
    add(new Field, true);
    add(new Focused<Field>, true);
    add(new Invalid<Field>, true);
    add(new Invalid<Focused<Field>>, true);
    giveEditorsColor(*static_cast<Field*>(cells.last()));
    add(new Field, false);
    grid.addRow(variant, cells);
}

void addFieldStates(Section& section, const GallerySettings& settings) {
    StateGrid& grid =
        section.addGrid({QStringLiteral("Normal"), QStringLiteral("Focused"), QStringLiteral("Invalid"),
                         QStringLiteral("Focused, invalid"), QStringLiteral("Disabled")});
    const auto add = [&](const QString& variant, auto prepare) {
        addStates<StyledTextField>(grid, variant, settings, prepare);
    };
    add(QStringLiteral("Text"), [](StyledTextField& field) { field.setStringValue(QStringLiteral("Bass")); });
    add(QStringLiteral("Placeholder"),
        [](StyledTextField& field) { field.cell().setPlaceholderString(QStringLiteral("Name")); });
    add(QStringLiteral("Trailing"), [](StyledTextField& field) {
        field.setStringValue(QStringLiteral("-6.5 dB"));
        field.cell().setAlignment(Qt::AlignTrailing);
    });
    add(QStringLiteral("Centred"), [](StyledTextField& field) {
        field.setStringValue(QStringLiteral("120.00"));
        field.cell().setAlignment(Qt::AlignHCenter);
    });
    add(QStringLiteral("Too long"), [](StyledTextField& field) {
        field.setStringValue(QStringLiteral("A name that is longer than its field"));
    });
    add(QStringLiteral("In a table's header"), [](StyledTextField& field) {
        field.setStringValue(QStringLiteral("Velocity"));
        field.cell().setStyle(std::make_shared<tidepool::HeaderTextFieldStyle>());
    });
}

void addSearchStates(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid({QStringLiteral("Normal"), QStringLiteral("Focused"),
                                       QStringLiteral("Cross pressed"), QStringLiteral("Disabled")});
    const auto add = [&](const QString& variant, auto prepare) {
        QList<QWidget*> cells;
        const auto addState = [&](StyledSearchField* field, auto change) {
            field->cell().setPlaceholderString(QStringLiteral("Search"));
            prepare(*field);
            field->setEnabled(settings.isEnabled);
            change(*field);
            field->setFixedWidth(150);
            cells << field;
        };
        addState(new StyledSearchField, [](auto&) {});
        addState(new Focused<StyledSearchField>, [](auto&) {});
        addState(new StyledSearchField, [](auto& field) {
            field.cell().setPressedPart(tidepool::StyledSearchFieldCell::Part::cancelButton);
        });
        addState(new StyledSearchField, [](auto& field) { field.setEnabled(false); });
        grid.addRow(variant, cells);
    };
    add(QStringLiteral("Empty"), [](StyledSearchField&) {});
    add(QStringLiteral("Text"),
        [](StyledSearchField& field) { field.setStringValue(QStringLiteral("warm pad")); });
    add(QStringLiteral("Recent searches"), [](StyledSearchField& field) { field.setMaximumRecents(5); });
    add(QStringLiteral("Without a glass"), [](StyledSearchField& field) {
        field.cell().setShowsSearchIcon(false);
        field.setStringValue(QStringLiteral("warm pad"));
    });
}

void addProperties(Section& section, const GallerySettings& settings) {
    using tidepool::ValidatingPropertiesField;
    StateGrid& grid =
        section.addGrid({QStringLiteral("Inherited"), QStringLiteral("Overriding"), QStringLiteral("Invalid"),
                         QStringLiteral("Selected"), QStringLiteral("Disabled")});
    QList<QWidget*> cells;
    const auto add = [&](auto change) {
        auto* const field = new ValidatingPropertiesField(QStringLiteral("120 ms"));
        field->setFixedWidth(118);
        field->setEnabled(settings.isEnabled);
        change(*field);
        cells << field;
    };
    add([](ValidatingPropertiesField&) {});
    add([](ValidatingPropertiesField& field) { field.setOverride(true); });
    add([](ValidatingPropertiesField& field) { field.setValid(false); });
    add([](ValidatingPropertiesField& field) { field.setSelected(true); });
    add([](ValidatingPropertiesField& field) { field.setEnabled(false); });
    grid.addRow(QStringLiteral("Attack"), cells);
}

void addLabels(Section& section, const GallerySettings& settings) {
    StateGrid& grid = section.addGrid({QStringLiteral("Normal"), QStringLiteral("Disabled")});
    const auto add = [&]<typename Label>(const QString& variant, Label* label, Label* disabled) {
        label->setEnabled(settings.isEnabled);
        disabled->setEnabled(false);
        grid.addRow(variant, {label, disabled});
    };
    const QString text = QStringLiteral("Attack time");
    using namespace tidepool;
    add(QStringLiteral("StyledTextLabel"), new StyledTextLabel(text), new StyledTextLabel(text));
    add(QStringLiteral("StyledTableRowLabel"), new StyledTableRowLabel(text), new StyledTableRowLabel(text));
    add(QStringLiteral("StyledTableGroupRowLabel"), new StyledTableGroupRowLabel(text),
        new StyledTableGroupRowLabel(text));
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    Section& live = page->addSection(QStringLiteral("Live"));
    live.add(makeLiveRow(settings));
    live.add(makeSearchRow(settings));
    addFieldStates(page->addSection(QStringLiteral("StyledTextField")), settings);
    addSearchStates(page->addSection(QStringLiteral("StyledSearchField")), settings);
    addProperties(page->addSection(QStringLiteral("ValidatingPropertiesField")), settings);
    addLabels(page->addSection(QStringLiteral("Labels")), settings);
    return page;
}

} // namespace

GalleryPage textFieldsPage() {
    return {.group = QStringLiteral("Text"),
            .title = QStringLiteral("Text fields"),
            .summary = QStringLiteral("For a line of text: names, values and searches. A field without the "
                                      "keyboard costs no more than a label."),
            .keywords = {QStringLiteral("StyledTextField"), QStringLiteral("StyledTextFieldCell"),
                         QStringLiteral("StyledSearchField"), QStringLiteral("StyledSearchFieldCell"),
                         QStringLiteral("StyledTextLabel"), QStringLiteral("StyledTableRowLabel"),
                         QStringLiteral("StyledTableGroupRowLabel"), QStringLiteral("WidthResizingTextField"),
                         QStringLiteral("FirstResponderAwareTextField"),
                         QStringLiteral("ValidatingPropertiesField"), QStringLiteral("TextFieldCellStyle"),
                         QStringLiteral("SearchFieldCellStyle"), QStringLiteral("Formatter"),
                         QStringLiteral("placeholder"), QStringLiteral("invalid")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
