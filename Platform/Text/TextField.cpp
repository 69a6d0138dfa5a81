#include "Platform/Text/TextField.h"

#include "Platform/Text/FieldEditor.h"
#include "Platform/Text/FormattedValue.h"
#include "Platform/Text/TextFieldAccessibility.h"

#include <QAccessible>
#include <QApplication>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

namespace platform {

TextField::TextField(const QString& text, QWidget* parent)
    : TextField(text, std::make_unique<TextFieldCell>(), parent) {}

TextField::TextField(const QString& text, std::unique_ptr<TextFieldCell> cell, QWidget* parent)
    : CellControl(std::move(cell), parent), m_text(text) {
    installTextFieldAccessibility();
    setEditable(true);
}

TextField::~TextField() {
    m_isEditing = false;
    if (m_editor == nullptr)
        return;
    m_editor->disconnect(this);
    m_editor->dispose();
}

void TextField::setStringValue(const QString& text) {
    if (!m_formatted)
        return showText(text);
    const auto formatted = m_formatted;
    const QPointer<TextField> self(this);
    if (!formatted->read(text))
        formatted->setObject(text);
    if (self)
        showObject();
}

const std::shared_ptr<const Formatter>& TextField::formatter() const {
    static const std::shared_ptr<const Formatter> none;
    return m_formatted ? m_formatted->formatter() : none;
}

void TextField::setFormatter(std::shared_ptr<const Formatter> formatter) {
    const QVariant object = objectValue();
    m_formatted = formatter ? std::make_shared<FormattedValue>(std::move(formatter)) : nullptr;
    if (m_isEditing)
        m_editor->setFormattedValue(m_formatted);
    setObjectValue(object);
}

QVariant TextField::objectValue() const {
    return m_formatted ? m_formatted->object() : QVariant(m_text);
}

void TextField::setObjectValue(const QVariant& object) {
    if (!m_formatted)
        return showText(object.toString());
    m_formatted->setObject(object);
    showObject();
}

std::optional<QString> TextField::formattingError() const {
    return m_formatted ? m_formatted->error() : std::nullopt;
}

StyledControlState TextField::controlFlags() const {
    const bool isWrong = m_formatted && m_formatted->error();
    return CellControl::controlFlags().with(StyledControlState::invalid, isWrong);
}

void TextField::showObject() {
    const auto formatted = m_formatted;
    const QPointer<TextField> self(this);
    const QString text = m_isEditing ? formatted->editingText() : formatted->displayText();
    if (!self)
        return;
    showText(text);
    errorChanged();
}

void TextField::showText(const QString& text) {
    if (m_isEditing && m_editor->text() != text)
        m_editor->setText(text);
    m_sentText = text;
    takeText(text);
}

void TextField::replaceText(const QString& text) {
    if (!m_isEditable || !isEnabled())
        return;
    const QPointer<TextField> self(this);
    if (!m_isEditing) {
        takeUserText(text);
    } else {
        m_editor->selectAll();
        m_editor->insert(text); // and can be undone
    }
    if (self)
        finishText();
}

void TextField::takeText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    placeEditor(); // a cell may keep free room for what goes with a text
    updateGeometry();
    update();
    QAccessibleValueChangeEvent event(this, text);
    QAccessible::updateAccessibility(&event);
}

void TextField::setEditable(bool editable) {
    m_isEditable = editable;
    if (!editable)
        endEditing();
    setFocusPolicy(editable ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(editable ? Qt::IBeamCursor : Qt::ArrowCursor);
    QSizePolicy policy(editable ? QSizePolicy::Preferred : QSizePolicy::Fixed, QSizePolicy::Fixed);
    setSizePolicy(policy);
}

FieldEditor* TextField::currentEditor() const {
    return m_isEditing ? m_editor : nullptr;
}

bool TextField::isFirstResponder() const {
    return hasFocus() || (m_isEditing && m_editor->hasFocus());
}

QMarginsF TextField::alignmentRectInsets() const {
    constexpr qreal margin = FieldEditor::margin;
    return cell().isFramed() ? QMarginsF() : QMarginsF(margin, 0, margin, 0);
}

QSizeF TextField::intrinsicContentSize() const {
    return CellControl::intrinsicContentSize().shrunkBy(alignmentRectInsets());
}

std::optional<qreal> TextField::baseline(qreal height) const {
    const CellContext own = context();
    const QRectF line = cell().titleRect(QRectF(0, 0, width(), height), own);
    return line.top() + QFontMetricsF(own.title.font()).ascent();
}

void TextField::changeEvent(QEvent* event) {
    CellControl::changeEvent(event);
    if (!isEnabled())
        endEditing();
    if (!m_isEditing)
        return;
    setUpFieldEditor(*m_editor);
    placeEditor();
}

void TextField::focusInEvent(QFocusEvent* event) {
    CellControl::focusInEvent(event);
    beginEditing(event->reason());
}

void TextField::focusOutEvent(QFocusEvent* event) {
    CellControl::focusOutEvent(event);
    update();
}

void TextField::mousePressEvent(QMouseEvent* event) {
    if (!sendToEditor(*event))
        CellControl::mousePressEvent(event);
}

void TextField::mouseMoveEvent(QMouseEvent* event) {
    if (!sendToEditor(*event))
        CellControl::mouseMoveEvent(event);
}

void TextField::mouseReleaseEvent(QMouseEvent* event) {
    if (!sendToEditor(*event))
        CellControl::mouseReleaseEvent(event);
}

/// The press that brings the editor up, and those beside it, set its insertion point.
bool TextField::sendToEditor(QMouseEvent& event) {
    if (!m_isEditing)
        return false;
    QMouseEvent moved(event.type(), m_editor->mapFrom(this, event.position()), event.globalPosition(),
                      event.button(), event.buttons(), event.modifiers(), event.pointingDevice());
    QApplication::sendEvent(m_editor, &moved);
    return true;
}

void TextField::resizeEvent(QResizeEvent* event) {
    CellControl::resizeEvent(event);
    placeEditor();
}

void TextField::hideEvent(QHideEvent* event) {
    CellControl::hideEvent(event);
    endEditing();
}

} // namespace platform
