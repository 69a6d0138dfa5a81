#include "Gallery/Window/MagnifiedPage.h"

#include "Gallery/Layout/PageView.h"

#include <QGraphicsProxyWidget>
#include <QPainter>

namespace gallery {

namespace {

/// Draws its widget with the pixels of its scale, where the base class would enlarge those of 1x.
class SharpProxy : public QGraphicsProxyWidget {
public:
    explicit SharpProxy(int scale) : m_scale(scale) { setScale(scale); }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override {
        const QRect exposed = painter->clipBoundingRect().toAlignedRect() & widget()->rect();
        if (exposed.isEmpty())
            return;
        const qreal ratio = m_scale * painter->device()->devicePixelRatioF();
        QImage picture(exposed.size() * ratio, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        widget()->render(&picture, {}, exposed);
        painter->drawImage(exposed.topLeft(), picture);
    }

private:
    int m_scale;
};

} // namespace

MagnifiedPage::MagnifiedPage(PageView* page, int scale, QWidget* parent) : QGraphicsView(parent) {
    auto* const content = new QGraphicsScene(this);
    auto* const proxy = new SharpProxy(scale);
    page->resize(PageView::pageWidth, page->pageHeight());
    proxy->setWidget(page);
    content->addItem(proxy);
    content->setSceneRect(proxy->sceneBoundingRect());
    setScene(content);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setBackgroundBrush(page->palette().window());
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(page->accessibleName());
}

} // namespace gallery
