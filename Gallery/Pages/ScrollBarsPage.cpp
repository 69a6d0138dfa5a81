#include "Gallery/Pages/ScrollBarsPage.h"

#include "Gallery/Layout/LiveRow.h"
#include "Gallery/Layout/PageBody.h"
#include "Gallery/Layout/Section.h"
#include "Gallery/Layout/StateGrid.h"
#include "Tidepool/Views/StyledScrollBar.h"

#include <QListWidget>

namespace gallery {

namespace {

using tidepool::StyledScrollBar;

QWidget* makeList(const GallerySettings& settings) {
    auto* const list = new QListWidget;
    for (int note = 0; note < 128; ++note)
        list->addItem(QStringLiteral("Note %1, as played by a rather long name").arg(note));
    list->setFixedSize(180, 140);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setFrameShape(QFrame::NoFrame);
    list->setAccessibleName(QStringLiteral("Notes"));
    list->setEnabled(settings.isEnabled);
    tidepool::setStyledScrollBars(*list);
    return list;
}

/// A bar that never rests.
class SteadyBar : public StyledScrollBar {
public:
    using StyledScrollBar::StyledScrollBar;

protected:
    void paintEvent(QPaintEvent* event) override {
        if (visibility() < 1)
            flash();
        StyledScrollBar::paintEvent(event);
    }
};

template <typename Change>
QWidget* makeBar(Qt::Orientation orientation, int page, Change change) {
    auto* const bar = new SteadyBar(orientation);
    const int length = 110;
    bar->setFixedSize(orientation == Qt::Vertical ? QSize(StyledScrollBar::thickness, length)
                                                  : QSize(length, StyledScrollBar::thickness));
    bar->setRange(0, 100);
    bar->setPageStep(page);
    bar->setValue(30);
    change(*bar);
    return bar;
}

void addStates(StateGrid& grid, const QString& variant, Qt::Orientation orientation, int page) {
    grid.addRow(variant, {makeBar(orientation, page, [](StyledScrollBar&) {}),
                          makeBar(orientation, page,
                                  [](StyledScrollBar& bar) { bar.setAttribute(Qt::WA_UnderMouse); }),
                          makeBar(orientation, page, [](StyledScrollBar& bar) {
                              bar.setAttribute(Qt::WA_UnderMouse);
                              bar.setSliderDown(true);
                          })});
}

QWidget* makePage(const GallerySettings& settings) {
    auto* const page = new PageBody;
    Section& live = page->addSection(QStringLiteral("Live"));
    auto* const row =
        new LiveRow(QStringLiteral("Scroll, and rest: the bars fade, and come back to the pointer."));
    row->add(makeList(settings));
    live.add(row);
    StateGrid& grid = page->addSection(QStringLiteral("StyledScrollBar"))
                          .addGrid({QStringLiteral("While it scrolls"), QStringLiteral("Under the pointer"),
                                    QStringLiteral("Dragged")});
    addStates(grid, QStringLiteral("Vertical"), Qt::Vertical, 60);
    addStates(grid, QStringLiteral("Horizontal"), Qt::Horizontal, 60);
    addStates(grid, QStringLiteral("Much to scroll"), Qt::Horizontal, 1);
    return page;
}

} // namespace

GalleryPage scrollBarsPage() {
    return {.group = QStringLiteral("Views"),
            .title = QStringLiteral("Scroll bars"),
            .summary =
                QStringLiteral("They show where one is while one moves, and otherwise keep out of the way."),
            .keywords = {QStringLiteral("StyledScrollBar"), QStringLiteral("setStyledScrollBars"),
                         QStringLiteral("ScrollBarStyle"), QStringLiteral("QScrollArea")},
            .make = makePage,
            .hasStates = true};
}

} // namespace gallery
