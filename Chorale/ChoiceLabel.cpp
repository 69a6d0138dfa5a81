#include "Chorale/ChoiceLabel.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/LabelRows.h"
#include "Chorale/ParameterGesture.h"
#include "Chorale/ParameterText.h"
#include "Chorale/RocketFontModifier.h"
#include "Platform/Controls/FocusRing.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Graphics/Pens.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace chorale {

namespace {

constexpr QSizeF arrowSize(7, 4);
constexpr qreal arrowGap = 5;
constexpr qreal arrowWidth = 1.4;

void paintArrow(QPainter& painter, QPointF middle, qreal scale, const QColor& color) {
    const QPointF half = QPointF(arrowSize.width() / 2, arrowSize.height() / 2) * scale;
    const QPointF points[] = {middle - half, middle + QPointF(0, half.y()),
                              middle + QPointF(half.x(), -half.y())};
    painter.setPen(platform::roundPen(color, arrowWidth * scale));
    painter.drawPolyline(points, std::size(points));
}

} // namespace

ChoiceLabel::ChoiceLabel(std::shared_ptr<AudioParameter> param, QColor labelColor, QColor valueColor,
                         float labelFontSize, float valueFontSize, QWidget* parent)
    : QWidget(parent),
      m_param(std::move(param)),
      m_labelColor(labelColor),
      m_valueColor(valueColor),
      m_labelFont(RocketFontModifier{labelFontSize * m_scale}.font()),
      m_valueFont(RocketFontModifier{valueFontSize * m_scale}.font()) {
    setFocusPolicy(Qt::TabFocus);
    follow(*this);
}

ChoiceLabel::~ChoiceLabel() = default;

QString ChoiceLabel::valueText() const {
    return hostText(m_param->value(), m_param->valueStrings());
}

QString ChoiceLabel::spokenName() const {
    return tr("%1 choice").arg(m_param->name());
}

QRectF ChoiceLabel::valueRow() const {
    const qreal top = QFontMetricsF(m_labelFont).height() - valueRowOverlap * m_scale;
    return {0, top, qreal(width()), valueRowHeight * m_scale};
}

qreal ChoiceLabel::arrowRoom() const {
    return (arrowGap + arrowSize.width()) * m_scale;
}

QSize ChoiceLabel::sizeHint() const {
    const QFontMetricsF metrics(m_valueFont);
    qreal longest = 0;
    for (const QString& name : m_param->valueStrings().value_or(QStringList()))
        longest = std::max(longest, metrics.horizontalAdvance(name));
    const qreal name = QFontMetricsF(m_labelFont).horizontalAdvance(m_param->name().toUpper());
    const qreal width = std::max(name, longest + 2 * arrowRoom());
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(valueRow().bottom()))};
}

void ChoiceLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_labelFont);
    painter.setPen(m_labelColor);
    painter.drawText(QRectF(rect()), Qt::AlignHCenter | Qt::AlignTop, m_param->name().toUpper());

    const QFontMetricsF metrics(m_valueFont);
    const QString value = metrics.elidedText(valueText(), Qt::ElideRight, width() - arrowRoom());
    const QRectF row = valueRow();
    const qreal textWidth = metrics.horizontalAdvance(value);
    // The text is in the middle, as that of other labels; the arrow hangs on.
    const qreal right = std::min((width() + textWidth) / 2, width() - arrowRoom());
    painter.setFont(m_valueFont);
    painter.setPen(m_valueColor);
    painter.drawText(QRectF(right - textWidth, row.top(), textWidth, row.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, value);
    paintArrow(painter, {right + arrowRoom() - arrowSize.width() / 2 * m_scale, row.center().y()}, m_scale,
               m_labelColor);

    constexpr qreal radius = 4;
    if (hasFocus() && isActiveWindow())
        platform::drawFocusRing(painter, QRectF(rect()), {.radius = radius});
}

void ChoiceLabel::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->button() == Qt::LeftButton)
        openMenu();
}

void ChoiceLabel::keyPressEvent(QKeyEvent* event) {
    const bool opens =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2;
    if (opens)
        openMenu();
    else
        QWidget::keyPressEvent(event);
}

void ChoiceLabel::openMenu() {
    m_menu = std::make_unique<platform::Menu>();
    platform::MenuItem* current = nullptr;
    float index = 0;
    for (const QString& name : m_param->valueStrings().value_or(QStringList())) {
        platform::MenuItem& item = m_menu->addItem(name);
        const bool isCurrent = index == std::floor(m_param->value());
        item.setState(isCurrent ? platform::MenuItem::State::on : platform::MenuItem::State::off);
        if (isCurrent)
            current = &item;
        connect(&item, &QAction::triggered, this,
                [this, index] { ParameterGesture(m_param).setValue(index); });
        ++index;
    }
    platform::popUp(*m_menu, current, valueRow().topLeft().toPoint(), *this);
}

} // namespace chorale
