#pragma once

#include <QProxyStyle>

namespace tidepool {

/// Where the parts of the kit's scroll bars lie, for the input that Qt handles: a slot without arrows, and in
/// it the knob.
class ScrollBarGeometry : public QProxyStyle {
    Q_OBJECT

public:
    /// In points.
    static constexpr int shortestKnob = 28;

    /// Lives as long as the application.
    static ScrollBarGeometry& shared();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;
};

} // namespace tidepool
