#pragma once

#include <QProxyStyle>

class QMenu;

namespace platform {

/// The look of a window's own menus: a rounded dark panel with room around its items.
class MenuStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// Gives `menu` this look.
    static void apply(QMenu& menu);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;
};

} // namespace platform
