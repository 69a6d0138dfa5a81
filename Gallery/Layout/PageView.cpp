#include "Gallery/Layout/PageView.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/StyleSet.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

PageView::PageView(const GalleryPage& page, const GallerySettings& settings) {
    constexpr int side = 48;
    setPalette(kitPalette());
    tidepool::StyleSet::apply(*this, kitStyles(settings));
    setAutoFillBackground(true);
    setFont(textFont(TextRole::body));
    setLayoutDirection(settings.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    setAccessibleName(page.title);
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins(side, 40, side, 56);
    stack->setSpacing(0);
    stack->addWidget(makeText(page.title, TextRole::title));
    stack->addSpacing(8);
    stack->addWidget(makeText(page.summary, TextRole::body));
    stack->addSpacing(36);
    stack->addWidget(page.make(settings));
    stack->addStretch();
    setFixedWidth(pageWidth);
    resize(pageWidth, pageHeight());
}

bool PageView::event(QEvent* event) {
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        resize(pageWidth, pageHeight());
    return isDone;
}

int PageView::pageHeight() const {
    const int wrapped = layout()->totalHeightForWidth(pageWidth);
    return wrapped > 0 ? wrapped : layout()->totalSizeHint().height();
}

} // namespace gallery
