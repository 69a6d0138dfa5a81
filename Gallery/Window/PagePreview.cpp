#include "Gallery/Window/PagePreview.h"

#include "Gallery/Layout/PageView.h"
#include "Gallery/Window/MagnifiedPage.h"
#include "Tidepool/Views/StyledScrollBar.h"

#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int focusWidth = 2;

QAbstractScrollArea* makeArea(PageView* page, qreal scale) {
    if (scale > 1)
        return new MagnifiedPage(page, scale);
    auto* const area = new QScrollArea;
    area->setWidget(page);
    area->setFrameShape(QFrame::NoFrame);
    area->setAccessibleName(page->accessibleName());
    return area;
}

} // namespace

PagePreview::PagePreview(QWidget* parent) : QWidget(parent) {
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins(focusWidth, focusWidth, focusWidth, focusWidth);
}

void PagePreview::show(const GalleryPage& page, const GallerySettings& settings) {
    const int scrolled =
        m_area != nullptr && m_title == page.title ? m_area->verticalScrollBar()->value() : 0;
    delete m_area;
    m_title = page.title;
    m_area = makeArea(new PageView(page, settings), settings.scale);
    tidepool::setStyledScrollBars(*m_area);
    m_area->installEventFilter(this);
    layout()->addWidget(m_area);
    // The scroll bars have their range once the page is shown in its place.
    m_area->show();
    layout()->activate();
    m_area->horizontalScrollBar()->setValue(m_area->horizontalScrollBar()->minimum());
    m_area->verticalScrollBar()->setValue(scrolled);
}

bool PagePreview::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return false;
}

void PagePreview::paintEvent(QPaintEvent*) {
    if (m_area == nullptr || !m_area->hasFocus())
        return;
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - m_area->geometry()); // the scroll bars let see what lies below
    painter.fillRect(rect(), palette().highlight());
}

} // namespace gallery
