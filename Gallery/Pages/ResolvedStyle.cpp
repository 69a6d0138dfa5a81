#include "Gallery/Pages/ResolvedStyle.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Pages/KitAssets.h"
#include "Gallery/Pages/Specimens.h"
#include "Gallery/Pages/StyleClasses.h"

#include <QGridLayout>
#include <QLabel>

namespace gallery {

using tidepool::ControlStyle;
using tidepool::StyledControlState;

namespace {

void addRow(QGridLayout& grid, const QString& what, QWidget* specimen, const QString& name) {
    const int row = grid.rowCount();
    grid.setRowMinimumHeight(row, 32);
    auto* const heading = makeText(what, TextRole::caption);
    auto* const value = makeText(name, TextRole::body);
    value->setWordWrap(false);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid.addWidget(heading, row, 0);
    grid.addWidget(specimen, row, 1, Qt::AlignCenter);
    grid.addWidget(value, row, 2);
}

void addColor(QGridLayout& grid, const QString& what, const QColor& color) {
    addRow(grid, what, new Swatch(color), colorName(color));
}

} // namespace

ResolvedStyle::ResolvedStyle(const ControlStyle& style, StyledControlState state, QWidget* parent)
    : QWidget(parent) {
    auto* const halves = new QHBoxLayout(this);
    halves->setContentsMargins({});
    halves->setSpacing(48);
    halves->addWidget(new ControlSketch(style, state), 0, Qt::AlignTop);
    auto* const grid = new QGridLayout;
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(0);
    grid->setColumnMinimumWidth(0, 96);
    grid->setColumnMinimumWidth(1, 48);
    grid->setColumnStretch(2, 1);
    const QString flags = state.description();
    addRow(*grid, tr("State"), new QWidget, flags.isEmpty() ? tr("no flags") : flags);
    addColor(*grid, tr("Text"), style.textColor(state));
    addColor(*grid, tr("Background"), style.backgroundColor(state));
    addColor(*grid, tr("Focus ring"), style.focusRingColor(state));
    for (const auto& [what, images] : imageMaps(style)) {
        const auto* const image = images->image(state);
        addRow(*grid, what, new ImageSwatch(image != nullptr ? *image : platform::Image()),
               image != nullptr ? image->name() : tr("none"));
    }
    halves->addLayout(grid, 1);
}

} // namespace gallery
