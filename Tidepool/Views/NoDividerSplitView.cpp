#include "Tidepool/Views/NoDividerSplitView.h"

#include <QPaintEvent>
#include <QPainter>

namespace tidepool {

namespace {

class InvisibleHandle : public QSplitterHandle {
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent*) override {}
};

} // namespace

NoDividerSplitView::NoDividerSplitView(Qt::Orientation orientation, QWidget* parent)
    : QSplitter(orientation, parent) {
    setHandleWidth(0);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSplitterHandle* NoDividerSplitView::createHandle() {
    return new InvisibleHandle(orientation(), this);
}

void NoDividerSplitView::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), palette().window());
}

} // namespace tidepool
