#include "Tidepool/Choices/SegmentedButtonStyle.h"

#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/CellDrawing.h"
#include "Tidepool/Choices/TabFocus.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Styles/Styles.h"

#include <QFontMetricsF>
#include <QPainter>

namespace tidepool {

namespace {

constexpr qreal sidePadding = 16;
constexpr qreal topPadding = 6;

/// What a label that is too long keeps free at either side.
constexpr qreal leastPadding = 6;

QColor textColor(bool isPressed, bool isSelected) {
    if (isPressed)
        return TPColors::grey50;
    return isSelected ? TPColors::grey85 : TPColors::grey70;
}

const platform::Image& background(bool isPressed, bool isSelected) {
    if (isPressed)
        return Images::tpkWindowTabDown;
    return isSelected ? Images::tpkWindowTabSelected : Images::tpkWindowTab;
}

} // namespace

QFont SegmentedButtonStyle::font() const {
    constexpr qreal size = 12;
    return platform::systemFont(size, QFont::Medium);
}

QSizeF SegmentedButtonStyle::size(QSizeF label) const {
    return {label.width() + 2 * sidePadding, label.height() + 2 * topPadding};
}

void SegmentedButtonStyle::paint(QPainter& painter,
                                 const platform::ButtonConfiguration& configuration) const {
    const QRectF& frame = configuration.frame;
    const float opacity = opacityOfBezel(configuration.state);
    background(configuration.isPressed(), m_isSelected).draw(painter, frame, opacity);
    if (configuration.isFocused())
        drawFocusRing(painter, tabFocusFrame(frame), kitFocusRing(Styles::Control::selection));
    painter.setOpacity(painter.opacity() * opacity);
    painter.setPen(textColor(configuration.isPressed(), m_isSelected));
    const QString label =
        QFontMetricsF(painter.font())
            .elidedText(configuration.label, Qt::ElideRight, frame.width() - 2 * leastPadding);
    painter.drawText(frame, Qt::AlignCenter | Qt::TextSingleLine, label);
}

} // namespace tidepool
