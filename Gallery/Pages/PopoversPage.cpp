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
    static const QString text = QStringLiteral("A preset needs a name");
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

/// A popover inside of the page, at `edge` of nothing.
QWidget* makeSpecimen(RectEdge edge, const QString& text) {
    auto* const holder = new QWidget;
    holder->setFixedSize(160, 100);
    auto* const window = new PopoverWindow;
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setParent(holder, Qt::Widget);
    const auto& style = tidepool::StyleReference().get<tidepool::PopoverStyle>(nullptr);
    auto* const label = new QLabel(text);
    label->setFont(style.font());
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    window->setContent(label);
    window->setColors(style.backgroundColor(), tidepool::TPColors::grey30);
    const QRect middle(80, 50, 0, 0);
    const QPoint offset = edge == RectEdge::maxY   ? QPoint(0, -35)
                          : edge == RectEdge::minY ? QPoint(0, 35)
                          : edge == RectEdge::maxX ? QPoint(-66, 0)
                                                   : QPoint(66, 0);
    window->place(
        PopoverPlacement::beside(middle.translated(offset), {124, 40}, edge, {-500, -500, 1000, 1000}));
    window->show();
    return holder;
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    page->addSection(QStringLiteral("Live")).add(makeLiveRow(settings));
    StateGrid& grid = page->addSection(QStringLiteral("SimpleTextViewPopover"))
                          .addGrid({QStringLiteral("Below"), QStringLiteral("Above"), QStringLiteral("Right"),
                                    QStringLiteral("Left")});
    grid.addRow({}, {makeSpecimen(RectEdge::maxY, message()), makeSpecimen(RectEdge::minY, message()),
                     makeSpecimen(RectEdge::maxX, message()), makeSpecimen(RectEdge::minX, message())});
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
