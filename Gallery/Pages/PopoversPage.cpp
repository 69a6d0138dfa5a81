#include "Gallery/Pages/PopoversPage.h"

#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Gallery/Layout/StateGrid.h"
#include "Platform/Controls/PopoverWindow.h"
#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Styles/StyleReference.h"
#include "Tidepool/Styles/WindowStyle.h"
#include "Tidepool/Text/StyledTextLabels.h"
#include "Tidepool/Text/ValidatingTextField.h"

#include <QLabel>

namespace gallery {

namespace {

using platform::PopoverPlacement;
using platform::PopoverWindow;
using platform::RectEdge;
using tidepool::ValidatingTextField;

const QString& message() {
    static const QString text = QStringLiteral("A name is needed");
    return text;
}

ValidatingTextField& addField(LiveRow& row, const GallerySettings& settings) {
    row.add(new tidepool::StyledTextLabel(QStringLiteral("Preset")));
    auto& field = row.add(new ValidatingTextField(QStringLiteral("Warm pad")));
    field.setAccessibleName(QStringLiteral("Preset"));
    field.setEnabled(settings.isEnabled);
    QObject::connect(&field, &ValidatingTextField::textChanged, &field, [&field](const QString& text) {
        const bool isValid = !text.trimmed().isEmpty();
        field.setValid(isValid);
        field.setMessage(isValid ? std::nullopt : std::optional(message()));
    });
    return field;
}

void addButton(LiveRow& row, const QString& title, RectEdge edge, const GallerySettings& settings) {
    auto& button = row.add(new tidepool::StyledButton(title));
    auto* const popover = new tidepool::SimpleTextViewPopover(&button);
    button.setEnabled(settings.isEnabled);
    QObject::connect(&button, &tidepool::StyledButton::clicked, popover, [popover, &button, edge] {
        if (popover->isShown())
            popover->close();
        else
            popover->showMessage(QStringLiteral("Beside “%1”").arg(button.text()), button, edge);
    });
}

QWidget* makeLiveRow(const GallerySettings& settings) {
    auto* const row = new LiveRow(
        QStringLiteral("Take the name away. The buttons show and close a popover at one of their edges."));
    addField(*row, settings);
    addButton(*row, QStringLiteral("Above"), RectEdge::minY, settings);
    addButton(*row, QStringLiteral("Below"), RectEdge::maxY, settings);
    addButton(*row, QStringLiteral("Left"), RectEdge::minX, settings);
    addButton(*row, QStringLiteral("Right"), RectEdge::maxX, settings);
    return row;
}

/// A text as a popover shows it.
QLabel* makeContent(const QString& text) {
    const auto& style = tidepool::StyleReference().get<tidepool::PopoverStyle>(nullptr);
    auto* const label = new QLabel(text);
    label->setFont(style.font());
    label->setContentsMargins(12, 12, 12, 12);
    return label;
}

/// A popover inside of the page, beside a part of it that lies at `anchor`.
QWidget* makeSpecimen(RectEdge edge, const QString& text, const QRect& anchor) {
    auto* const holder = new QWidget;
    holder->setFixedSize(152, 96);
    auto* const window = new PopoverWindow;
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setParent(holder, Qt::Widget);
    const auto& style = tidepool::StyleReference().get<tidepool::PopoverStyle>(nullptr);
    window->setContent(makeContent(text));
    window->setColors(style.backgroundColor(), tidepool::TPColors::grey30);
    const QSize size = window->content()->sizeHint();
    window->place(PopoverPlacement::beside(anchor, size, edge, holder->rect().adjusted(10, -99, -10, 99)));
    window->show();
    return holder;
}

void addSpecimens(Section& section) {
    StateGrid& grid = section.addGrid(
        {QStringLiteral("Below"), QStringLiteral("Above"), QStringLiteral("Right"), QStringLiteral("Left")});
    const auto addRow = [&](const QString& variant, const QString& text) {
        const auto at = [&](RectEdge edge, QPoint tip) {
            return makeSpecimen(edge, text, {tip, QSize(0, 0)});
        };
        grid.addRow(variant, {at(RectEdge::maxY, {76, 16}), at(RectEdge::minY, {76, 80}),
                              at(RectEdge::maxX, {12, 48}), at(RectEdge::minX, {140, 48})});
    };
    addRow(QStringLiteral("One line"), message());
    addRow(QStringLiteral("Several lines"), QStringLiteral("A name is needed\nthat no other has"));
    grid.addRow(QStringLiteral("At the screen’s edge"),
                {makeSpecimen(RectEdge::maxY, message(), {0, 16, 30, 0}),
                 makeSpecimen(RectEdge::minY, message(), {122, 80, 30, 0})});
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    addSpecimens(page->addSection(QStringLiteral("SimpleTextViewPopover")));
    return page;
}

} // namespace

GalleryPage popoversPage() {
    return {.group = QStringLiteral("Text"),
            .title = QStringLiteral("Popovers"),
            .summary =
                QStringLiteral("They say what is wrong or what a control does, beside it, and never take "
                               "the keyboard."),
            .keywords = {QStringLiteral("Popover"), QStringLiteral("SimpleTextViewPopover"),
                         QStringLiteral("SimpleTextViewPopoverController"),
                         QStringLiteral("ValidatingTextField"), QStringLiteral("ValidatingTextFieldCell"),
                         QStringLiteral("PopoverStyle"), QStringLiteral("message")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
