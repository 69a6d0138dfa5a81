#include "Chorale/DialLabel.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/LabelRows.h"
#include "Chorale/ParameterText.h"
#include "Chorale/RocketFontModifier.h"
#include "Chorale/ValueField.h"
#include "Platform/Controls/FocusRing.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace chorale {

namespace {

/// Between the value and its suffix.
constexpr qreal suffixGap = 4;
constexpr qreal fieldRadius = 5;
constexpr int fieldMargin = 4;
constexpr int fieldTopMargin = 2;

} // namespace

DialLabel::DialLabel(std::shared_ptr<AudioParameter> param, QColor labelColor, QColor valueColor,
                     float labelFontSize, float valueFontSize, float editingFontSize, float width,
                     bool showSuffix, bool showName, int decimalPlaces, std::function<void()> onEditingEnded,
                     QWidget* parent)
    : QWidget(parent),
      m_param(std::move(param)),
      m_labelColor(labelColor),
      m_valueColor(valueColor),
      m_labelFont(RocketFontModifier{labelFontSize * m_scale}.font()),
      m_valueFont(RocketFontModifier{valueFontSize * m_scale}.font()),
      m_width(width * m_scale),
      m_showSuffix(showSuffix),
      m_showName(showName),
      m_decimalPlaces(decimalPlaces),
      m_onEditingEnded(std::move(onEditingEnded)),
      m_field(new ValueField(m_valueColor, editingFontSize * m_scale, *this)) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::IBeamCursor);
    follow(*this);
    m_field->setAccessibleName(tr("New %1 value").arg(m_param->name()));
    connect(m_field, &ValueField::submitted, this, &DialLabel::submit);
    connect(m_field, &ValueField::abandoned, this, &DialLabel::leave);
    connect(m_field, &ValueField::openChanged, this, qOverload<>(&QWidget::update));
    connect(m_param.get(), &AudioParameter::valueChanged, this, &DialLabel::updateValueString);
    updateValueString();
}

DialLabel::~DialLabel() {
    m_field->close(); // while it has a label to give the keyboard back to
}

bool DialLabel::isEditing() const {
    return m_field->isOpen();
}

QString DialLabel::valueString() const {
    return m_field->text();
}

QString DialLabel::suffix() const {
    return m_showSuffix ? m_param->displayableSuffix() : QString();
}

QString DialLabel::valueText() const {
    const QString value = displayText(*m_param, m_decimalPlaces, locale());
    return suffix().isEmpty() ? value : value + u' ' + suffix();
}

QString DialLabel::spokenName() const {
    return tr("%1 value").arg(m_param->name());
}

qreal DialLabel::nameHeight() const {
    return m_showName ? QFontMetricsF(m_labelFont).height() : 0;
}

QRectF DialLabel::valueRow() const {
    const qreal top = m_showName ? nameHeight() - valueRowOverlap * m_scale : 0;
    return {0, top, qreal(width()), valueRowHeight * m_scale};
}

QRectF DialLabel::fieldFrame() const {
    const QSizeF size(m_width, QFontMetricsF(m_field->font()).height() + 2 * fieldTopMargin * m_scale);
    QRectF frame(QPointF(), size);
    frame.moveCenter(valueRow().center());
    // The rows overlap, but the frame must not reach into the name.
    const qreal nameBottom = m_showName ? QFontMetricsF(m_labelFont).ascent() + fieldTopMargin * m_scale : 0;
    const qreal cut = std::max(0.0, nameBottom - frame.top());
    return frame.adjusted(0, cut, 0, -cut);
}

qreal DialLabel::widestRow() const {
    const QFontMetricsF metrics(m_valueFont);
    QChar widest = u'0';
    for (char16_t digit = u'1'; digit <= u'9'; ++digit)
        if (metrics.horizontalAdvance(digit) > metrics.horizontalAdvance(widest))
            widest = digit;
    qreal width = 0;
    for (const float end : {m_param->valueRange().lowerBound(), m_param->valueRange().upperBound()}) {
        QString text = numberText(end * m_param->displayScaleFactor(), m_decimalPlaces, locale());
        std::replace_if(
            text.begin(), text.end(), [](QChar one) { return one.isDigit(); }, widest);
        width = std::max(width, metrics.horizontalAdvance(text));
    }
    return width + (suffix().isEmpty() ? 0 : suffixGap * m_scale + metrics.horizontalAdvance(suffix()));
}

QSize DialLabel::sizeHint() const {
    const QFontMetricsF label(m_labelFont);
    const qreal name = m_showName ? label.horizontalAdvance(m_param->name().toUpper()) : 0;
    const qreal width = std::max({name, widestRow(), m_width});
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(valueRow().bottom()))};
}

void DialLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_showName)
        paintName(painter);
    if (isEditing())
        paintField(painter);
    else
        paintValue(painter);
    constexpr qreal radius = 4;
    if (hasFocus() && isActiveWindow())
        platform::drawFocusRing(painter, fieldFrame(), {.radius = radius}); // clear of the name
}

void DialLabel::paintName(QPainter& painter) const {
    painter.setFont(m_labelFont);
    painter.setPen(m_labelColor);
    painter.drawText(QRectF(0, 0, width(), nameHeight()), Qt::AlignHCenter | Qt::AlignTop,
                     m_param->name().toUpper());
}

void DialLabel::paintValue(QPainter& painter) const {
    painter.setFont(m_valueFont);
    painter.setPen(m_valueColor);
    const QFontMetricsF metrics(m_valueFont);
    const QString value = displayText(*m_param, m_decimalPlaces, locale());
    const qreal valueWidth = metrics.horizontalAdvance(value);
    const qreal rowWidth =
        valueWidth + (suffix().isEmpty() ? 0 : suffixGap * m_scale + metrics.horizontalAdvance(suffix()));
    QRectF row = valueRow();
    row.setLeft((width() - rowWidth) / 2);
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, value);
    row.setLeft(row.left() + valueWidth + suffixGap * m_scale);
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, suffix());
}

void DialLabel::paintField(QPainter& painter) const {
    QColor fill = m_valueColor;
    constexpr float fillAlpha = 0.08F;
    fill.setAlphaF(fillAlpha);
    QColor edge = m_valueColor;
    constexpr float edgeAlpha = 0.45F;
    edge.setAlphaF(edgeAlpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(fill);
    painter.drawRoundedRect(fieldFrame().adjusted(0.5, 0.5, -0.5, -0.5), fieldRadius * m_scale,
                            fieldRadius * m_scale);
}

void DialLabel::resizeEvent(QResizeEvent*) {
    m_field->setGeometry(
        fieldFrame().marginsRemoved({fieldMargin * m_scale, 1, fieldMargin * m_scale, 1}).toRect());
}

void DialLabel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LocaleChange) {
        updateGeometry();
        update();
    }
}

void DialLabel::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void DialLabel::keyPressEvent(QKeyEvent* event) {
    const bool edits =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_F2;
    if (edits)
        startEditing();
    else
        QWidget::keyPressEvent(event);
}

void DialLabel::updateValueString() {
    m_field->setText(editingText(*m_param, m_decimalPlaces));
}

void DialLabel::startEditing() {
    m_field->open();
}

void DialLabel::submit() {
    if (const std::optional<float> value = editedValue(*m_param, valueString()))
        m_param->setValue(*value, ParameterEditor::ui, ParameterEditorState::change);
    leave();
}

void DialLabel::leave() {
    // The callback may destroy the label, and with it itself.
    const QPointer<DialLabel> self(this);
    if (const auto onEditingEnded = m_onEditingEnded)
        onEditingEnded();
    if (!self)
        return;
    updateValueString();
    m_field->close();
}

} // namespace chorale
