#include "Gallery/Window/MagnifiedPage.h"

#include "Gallery/Layout/PageView.h"

#include <QGraphicsProxyWidget>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace gallery {

namespace {

/// Draws its widget with the pixels of its scale, where the base class would enlarge those of 1x.
class SharpProxy : public QGraphicsProxyWidget {
public:
    explicit SharpProxy(qreal scale) : m_scale(scale) {
        setScale(scale);
        setFlag(ItemUsesExtendedStyleOption);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*) override {
        const QRect exposed = option->exposedRect.toAlignedRect() & widget()->rect();
        const qreal ratio = m_scale * painter->device()->devicePixelRatioF();
        QImage picture(exposed.size() * ratio, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        widget()->render(&picture, {}, exposed);
        painter->drawImage(exposed.topLeft(), picture);
    }

private:
    qreal m_scale;
};

} // namespace

MagnifiedPage::MagnifiedPage(PageView* page, qreal scale, QWidget* parent) : QGraphicsView(parent) {
    auto* const content = new QGraphicsScene(this);
    auto* const proxy = new SharpProxy(scale);
    proxy->setWidget(page);
    content->addItem(proxy);
    const auto fit = [content, proxy] { content->setSceneRect(proxy->sceneBoundingRect()); };
    connect(proxy, &QGraphicsProxyWidget::geometryChanged, content, fit);
    fit();
    setScene(content);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setBackgroundBrush(page->palette().window());
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(page->accessibleName());
}

} // namespace gallery
