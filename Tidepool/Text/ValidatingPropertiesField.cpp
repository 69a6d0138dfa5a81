#include "Tidepool/Text/ValidatingPropertiesField.h"

#include "Platform/Controls/AlignedBoxLayout.h"

#include <QPainter>

namespace tidepool {

namespace {

constexpr int iconWidth = 17;
constexpr qreal radius = 4;

/// A circle with an exclamation mark.
void drawWarning(QPainter& painter, const QRectF& rect) {
    painter.setBrush(Styles::Control::error.color());
    painter.drawEllipse(rect);
    const QPointF middle = rect.center();
    painter.setBrush(TPColors::Background::darkest.color());
    painter.drawRoundedRect(QRectF(middle.x() - 0.75, rect.top() + 2.5, 1.5, 4), 0.75, 0.75);
    painter.drawEllipse(QPointF(middle.x(), rect.bottom() - 2.75), 0.9, 0.9);
}

} // namespace

ValidatingPropertiesField::ValidatingPropertiesField(const QString& text, QWidget* parent)
    : QWidget(parent), m_textField(new ValidatingTextField(text)) {
    auto* const row = new platform::AlignedBoxLayout(QBoxLayout::LeftToRight);
    row->setContentsMargins(0, 1, 0, 1);
    row->setSpacing(0);
    row->addSpacing(iconWidth);
    row->addWidget(m_textField);
    setLayout(row);
    m_textField->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(m_textField);
}

ValidatingPropertiesField::~ValidatingPropertiesField() {
    delete m_textField; // so that it tells nothing more
}

void ValidatingPropertiesField::setValid(bool valid) {
    m_textField->setValid(valid);
    update();
}

void ValidatingPropertiesField::setSelected(bool selected) {
    m_textField->setSelected(selected);
    update();
}

void ValidatingPropertiesField::setOverride(bool isOverride) {
    m_isOverride = isOverride;
    setAccessibleDescription(isOverride ? tr("Overrides the inherited value") : QString());
    update();
}

QRectF ValidatingPropertiesField::iconRect() const {
    constexpr QSizeF size(10, 10);
    const qreal left = layoutDirection() == Qt::RightToLeft ? width() - size.width() - 2 : 2;
    return {QPointF(left, (height() - size.height()) / 2), size};
}

void ValidatingPropertiesField::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (isSelected()) {
        QColor ground = Styles::Control::selection.color();
        ground.setAlphaF(0.25F);
        painter.setBrush(ground);
        painter.drawRoundedRect(QRectF(rect()), radius, radius);
    }
    painter.setOpacity(isEnabled() ? 1 : 0.5);
    if (!isValid()) {
        drawWarning(painter, iconRect());
    } else if (m_isOverride) {
        painter.setBrush(TPColors::Vantor::orange.color());
        painter.drawEllipse(iconRect().adjusted(2, 2, -2, -2));
    }
}

} // namespace tidepool
