#include "Platform/Text/ComboBox.h"

#include "Platform/Text/ComboBoxAccessibility.h"
#include "Platform/Text/ComboBoxList.h"
#include "Platform/Text/FieldEditor.h"
#include "Platform/Text/ObjectValues.h"

#include <QAccessible>
#include <QLocale>

#include <utility>

namespace platform {

namespace {

constexpr int rowsInSight = 12;

bool isNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

void announceExpansion(ComboBox& box) {
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(&box, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

ComboBox::ComboBox(std::unique_ptr<ComboBoxCell> cell, QWidget* parent)
    : TextField({}, std::move(cell), parent) {
    installComboBoxAccessibility();
    setMouseTracking(true);
}

ComboBox::~ComboBox() {
    delete m_list.data();
}

void ComboBox::setModel(QAbstractItemModel* model) {
    closeList();
    delete m_list.data();
    m_selected = QModelIndex();
    m_model = model;
    if (m_values.get() != model)
        m_values.reset();
    // The list has the model all the time.
    if (model != nullptr)
        connect(model, &QObject::destroyed, this, [this] { delete m_list.data(); });
}

void ComboBox::setObjectValues(const QVariantList& values) {
    auto model = std::make_unique<ObjectValues>(values);
    setModel(model.get());
    m_values = std::move(model);
}

QVariant ComboBox::itemObjectValue(int index) const {
    if (!m_model || index < 0 || index >= m_model->rowCount())
        return {};
    const QVariant value = m_model->index(index, 0).data(Qt::EditRole);
    return value.isValid() ? value : m_model->index(index, 0).data(Qt::DisplayRole);
}

QString ComboBox::titleOf(int index) const {
    return m_model->index(index, 0).data(Qt::DisplayRole).toString();
}

int ComboBox::find(const QString& text, Qt::MatchFlag how) const {
    if (!m_model || m_model->rowCount() == 0 || text.isEmpty())
        return -1;
    return m_model->match(m_model->index(0, 0), Qt::DisplayRole, text, 1, how).value(0).row();
}

void ComboBox::setDoubleValue(double value) {
    setStringValue(QString::number(value, 'g', QLocale::FloatingPointShortest));
}

int ComboBox::indexOfSelectedItem() const {
    return m_selected.isValid() && stringValue() == m_selectedText ? m_selected.row() : -1;
}

void ComboBox::showValue(const QVariant& value) {
    if (isNumber(value))
        setDoubleValue(value.toDouble());
    else
        setStringValue(titleOf(m_selected.row()));
    m_selectedText = stringValue();
}

void ComboBox::selectItem(int index) {
    const QVariant value = itemObjectValue(index);
    if (!value.isValid())
        return;
    m_selected = m_model->index(index, 0);
    showValue(value);
}

void ComboBox::choose(int index) {
    const QString before = stringValue();
    selectItem(index);
    if (FieldEditor* const editor = currentEditor())
        editor->selectAll();
    const QPointer<ComboBox> self(this);
    if (stringValue() != before)
        Q_EMIT textChanged(stringValue());
    if (self)
        Q_EMIT itemChosen(index);
    if (self)
        selectionDidChange();
}

void ComboBox::selectionDidChange() {
    sendAction();
}

bool ComboBox::isListOpen() const {
    return m_list && m_list->isVisible();
}

void ComboBox::openList() {
    if (isListOpen() || !isEnabled() || !m_model || m_model->rowCount() == 0)
        return;
    if (isEditable() && currentEditor() == nullptr)
        setFocus(Qt::OtherFocusReason);
    if (!m_list) {
        m_list = new List(*this);
        connect(m_list, &ListPopup::chosen, this, &ComboBox::choose);
        connect(m_list, &ListPopup::closed, this, &ComboBox::listClosed);
    }
    const int selected = indexOfSelectedItem();
    m_list->setCurrentRow(selected >= 0 ? selected : find(stringValue(), Qt::MatchFixedString));
    willPopUp();
    const QRectF place = QRectF(rect()).marginsRemoved(alignmentRectInsets());
    m_list->openBeside(place.toAlignedRect().translated(mapToGlobal(QPoint())), rowsInSight);
    announceExpansion(*this);
}

void ComboBox::closeList() {
    if (m_list)
        m_list->close();
}

void ComboBox::listClosed() {
    endPreview();
    willDismiss();
    announceExpansion(*this);
}

/// Shows a value in the field which is not chosen yet.
void ComboBox::preview(int index) {
    FieldEditor* const editor = currentEditor();
    if (editor == nullptr)
        return;
    if (!std::exchange(m_isPreviewing, true))
        m_wasModified = editor->isModified();
    editor->setText(titleOf(index));
    editor->selectAll();
}

void ComboBox::endPreview() {
    FieldEditor* const editor = currentEditor();
    if (!std::exchange(m_isPreviewing, false) || editor == nullptr)
        return;
    editor->setText(stringValue());
    editor->setModified(m_wasModified);
}

} // namespace platform
