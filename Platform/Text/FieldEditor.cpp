#include "Platform/Text/FieldEditor.h"

#include "Platform/Controls/MenuStyle.h"
#include "Platform/Graphics/DevicePixels.h"
#include "Platform/Text/FormattedValue.h"
#include "Platform/Text/TextField.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextLayout>
#include <QValidator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace platform {

namespace {

/// Where a line edit draws the baseline of `text` below the top of its line. It rounds the line's height,
/// which differs where another font stands in for missing letters.
qreal baselineInLine(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const qreal ascent = line.ascent();
    return QFontMetrics(font).ascent() - std::round(ascent) + ascent;
}

/// Lets a line edit refuse what a formatter does not let stand, and keeps why.
class PartialValidator : public QValidator {
public:
    PartialValidator(std::shared_ptr<const FormattedValue> value, QString& refusal, QObject* parent)
        : QValidator(parent), m_value(std::move(value)), m_refusal(refusal) {}

    State validate(QString& text, int& position) const override {
        const Formatter::PartialString partial = m_value->partial(text);
        if (!partial.isValid())
            m_refusal = *partial.errorDescription;
        const bool isReplaced = partial.newEditingString && *partial.newEditingString != text;
        if (!partial.isValid() && !isReplaced)
            return Invalid;
        if (isReplaced)
            text = *partial.newEditingString;
        position = std::min(position, static_cast<int>(text.size()));
        return Acceptable;
    }

private:
    const std::shared_ptr<const FormattedValue> m_value;
    QString& m_refusal;
};

} // namespace

FieldEditor::FieldEditor(TextField& field) : QLineEdit(&field), m_field(field) {
    setFrame(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setMaxLength(std::numeric_limits<int>::max()); // to begin must not cut what is there
    connect(this, &QLineEdit::inputRejected, this, &FieldEditor::tellRefusal);
}

void FieldEditor::setFormattedValue(std::shared_ptr<const FormattedValue> value) {
    if (value == m_value)
        return;
    m_value = std::move(value);
    const QValidator* const former = validator();
    setValidator(m_value ? new PartialValidator(m_value, m_refusal, this) : nullptr);
    delete former;
}

void FieldEditor::tellRefusal() {
    Q_EMIT refused(std::exchange(m_refusal, {}));
}

bool FieldEditor::event(QEvent* event) {
    const QScopedValueRollback handling(m_events, m_events + 1);
    return QLineEdit::event(event);
}

void FieldEditor::dispose() {
    if (m_events == 0) {
        delete this;
        return;
    }
    hide();
    setParent(nullptr);
    deleteLater();
}

void FieldEditor::begin(const QString& text) {
    if (this->text() != text || isModified() || isUndoAvailable())
        setText(text);
}

int FieldEditor::offsetInLine(qreal textWidth, int lineWidth, Qt::Alignment alignment) {
    const int used = static_cast<int>(std::lround(textWidth)) + 1;
    if (used > lineWidth)
        return 0;
    if (alignment & Qt::AlignRight)
        return lineWidth - used - 1;
    return alignment & Qt::AlignHCenter ? -((used - lineWidth) / 2) : 0;
}

void FieldEditor::setLine(const QRectF& line) {
    const QPoint origin(static_cast<int>(std::ceil(line.left())), static_cast<int>(line.top()));
    m_shift = line.left() - origin.x();
    const QRect room(origin, QSize(static_cast<int>(line.width()), static_cast<int>(line.height())));
    setGeometry(room.adjusted(-margin, -marginAbove, margin, marginAbove));
}

/// The text begins with a whole pixel of the window, where it stood before there was an editor. The painter
/// does not know yet where in the window it is.
void FieldEditor::initPainter(QPainter* painter) const {
    QLineEdit::initPainter(painter);
    const qreal scale = pixelsPerPoint(*painter);
    const qreal advance = QFontMetricsF(font()).horizontalAdvance(text());
    const QPointF start(margin + offsetInLine(advance, width() - 2 * margin, alignment()), marginAbove);
    const QPointF inWindow = mapTo(window(), start) + QPointF(m_shift, 0);
    const QPointF shift = onPixel(inWindow, scale) - inWindow + QPointF(m_shift, 0);
    const qreal baseline =
        onPixel(QFontMetricsF(font()).ascent(), scale) + 0.25 / scale; // on no pixel's edge
    painter->translate(shift + QPointF(0, baseline - baselineInLine(text(), font())));
}

void FieldEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // Its own menu and another window do not end it.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        Q_EMIT left();
}

void FieldEditor::keyPressEvent(QKeyEvent* event) {
    if (!m_field.keyDown(*event))
        QLineEdit::keyPressEvent(event);
}

void FieldEditor::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    MenuStyle::apply(*menu);
    menu->popup(event->globalPos());
}

} // namespace platform
