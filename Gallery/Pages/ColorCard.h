#pragma once

#include "Gallery/Pages/KitAssets.h"

#include <QWidget>

namespace gallery {

/// A colour of the kit: both its values, its name and what it is for.
class ColorCard : public QWidget {
    Q_OBJECT

public:
    explicit ColorCard(KitAsset color, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSwatch(QPainter& painter, const QRectF& part, const QString& appearance,
                     const QColor& color) const;

    KitAsset m_color;
};

} // namespace gallery
