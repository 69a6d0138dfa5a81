#include "Gallery/Pages/StateImageTable.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Pages/Specimens.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Palette/TPColors.h"

#include <QGridLayout>
#include <QLabel>

namespace gallery {

using tidepool::StateImages;
using tidepool::StyledControlState;

namespace {

QLabel* colored(QLabel* label, const QColor& color) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

QLabel* makeCell(const QString& text, bool isTaken) {
    auto* const label = makeText(text, TextRole::body);
    label->setWordWrap(false);
    if (!isTaken)
        return label;
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return colored(label, tidepool::TPColorsAK::grey100);
}

void addMap(QGridLayout& grid, const QString& what, const StateImages& images, StyledControlState state) {
    const auto* const taken = images.image(state);
    bool isFirst = true;
    for (const auto& [key, image] : images.entries()) {
        const int row = grid.rowCount();
        const bool isTaken = &image == taken;
        grid.setRowMinimumHeight(row, 32);
        if (isFirst)
            grid.addWidget(makeText(what, TextRole::caption), row, 0);
        isFirst = false;
        grid.addWidget(makeCell(key.description(), isTaken), row, 1);
        grid.addWidget(new ImageSwatch(image), row, 2, Qt::AlignCenter);
        grid.addWidget(makeCell(image.name(), isTaken), row, 3);
        if (isTaken)
            grid.addWidget(colored(makeText(StateImageTable::tr("taken"), TextRole::caption),
                                   tidepool::TPColorsAK::Vantor::lightBlue),
                           row, 4);
    }
}

} // namespace

StateImageTable::StateImageTable(const ImageMaps& maps, StyledControlState state, QWidget* parent)
    : QWidget(parent) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(0);
    grid->setColumnMinimumWidth(0, 96);
    grid->setColumnMinimumWidth(1, 180);
    grid->setColumnMinimumWidth(2, 56);
    grid->setColumnStretch(5, 1);
    if (maps.empty())
        grid->addWidget(makeText(tr("This style has no images."), TextRole::body), 0, 0, 1, 6);
    for (const auto& [what, images] : maps)
        addMap(*grid, what, *images, state);
}

} // namespace gallery
