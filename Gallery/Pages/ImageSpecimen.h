#pragma once

#include "Gallery/Pages/KitAssets.h"

#include <QWidget>

namespace gallery {

/// One image of the kit: as it is, its pixels at 1x and 2x, and as controls stretch, tile or tint it.
class ImageSpecimen : public QWidget {
    Q_OBJECT

public:
    explicit ImageSpecimen(KitAsset asset, QWidget* parent = nullptr);

    /// What stands over the columns of all specimens.
    static QWidget* makeHeadings();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString facts() const;
    void paintText(QPainter& painter) const;
    void paintPixels(QPainter& painter, int x, int scale) const;
    void paintInUse(QPainter& painter) const;
    QRectF place(qreal x, QSizeF size) const;

    KitAsset m_asset;
    platform::Image m_image;
};

} // namespace gallery
