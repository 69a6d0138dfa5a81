#pragma once

#include <QProxyStyle>

class QMenu;

namespace platform {

/// The look of our menus: a rounded panel with room around its items.
class MenuStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// Gives a menu, or a window like one, this look.
    static void apply(QWidget& menu);

    /// Lets `part` of such a window draw itself in this look.
    static void applyToPart(QWidget& part);

    /// How far the titles lie from the left edge of the items, in points.
    static int titleInset(const QMenu& menu);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;

    static MenuStyle& shared();
};

} // namespace platform
