#include "Platform/Controls/ImageIcon.h"

#include "Platform/Graphics/Dimming.h"

#include "Platform/Graphics/Image.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <utility>

namespace platform {

namespace {

QColor textColor(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    case QIcon::Selected:
        return palette.color(QPalette::HighlightedText);
    default:
        return palette.color(QPalette::WindowText);
    }
}

class ImageIconEngine : public QIconEngine {
public:
    explicit ImageIconEngine(Image image) : m_image(std::move(image)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        if (mode == QIcon::Disabled && !m_image.isTemplate())
            painter->setOpacity(painter->opacity() * dimmedOpacity);
        m_image.tinted(textColor(mode)).draw(*painter, target(rect));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        return pixmap;
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        return m_image.size().scaled(size, Qt::KeepAspectRatio).toSize();
    }

    QIconEngine* clone() const override { return new ImageIconEngine(m_image); }

private:
    QRectF target(const QRectF& rect) const {
        QRectF target({}, m_image.size().scaled(rect.size(), Qt::KeepAspectRatio));
        target.moveCenter(rect.center());
        return target;
    }

    Image m_image;
};

} // namespace

QIcon imageIcon(const Image& image) {
    return image.isNull() ? QIcon() : QIcon(new ImageIconEngine(image));
}

} // namespace platform
