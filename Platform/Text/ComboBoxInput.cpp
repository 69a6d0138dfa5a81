// What a combo box does with the pointer and with the keys of its editor.

#include "Platform/Controls/ListPopup.h"
#include "Platform/Text/ComboBox.h"
#include "Platform/Text/FieldEditor.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace platform {

namespace {

bool types(const QKeyEvent& event) {
    const bool isCommand =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !isCommand && !event.text().isEmpty() && event.text().front().isPrint();
}

bool opensList(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_F4)
        return modifiers == Qt::NoModifier;
    return event.key() == Qt::Key_Down && (modifiers == Qt::NoModifier || modifiers == Qt::AltModifier);
}

} // namespace

void ComboBox::setUpFieldEditor(FieldEditor& editor) {
    TextField::setUpFieldEditor(editor);
    editor.installEventFilter(this);
}

void ComboBox::firstResponderDidChange() {
    if (!isFirstResponder())
        closeList();
}

void ComboBox::textDidChange() {
    m_isPreviewing = false; // what was shown has been edited
}

bool ComboBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched != currentEditor())
        return TextField::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return takeKey(static_cast<QKeyEvent&>(*event));
    // The text keeps its insertion point while the list is open.
    return event->type() == QEvent::FocusOut && isListOpen() &&
           static_cast<const QFocusEvent*>(event)->reason() == Qt::PopupFocusReason;
}

bool ComboBox::takeKey(QKeyEvent& event) {
    if (m_isPassingKeyOn)
        return false;
    if (opensList(event)) {
        if (!event.isAutoRepeat())
            openList();
        return true;
    }
    if (!m_completes || !types(event))
        return false;
    const QPointer<ComboBox> self(this);
    const QPointer<FieldEditor> editor(currentEditor());
    m_isPassingKeyOn = true;
    QCoreApplication::sendEvent(editor, &event);
    if (!self)
        return true;
    m_isPassingKeyOn = false;
    if (editor && editor == currentEditor())
        complete(*editor);
    return true;
}

/// Adds the rest of a value that begins as typed, selected, so that the next key replaces it.
void ComboBox::complete(FieldEditor& editor) {
    const QString typed = editor.text();
    if (editor.cursorPosition() != typed.size())
        return;
    const int match = find(typed, Qt::MatchStartsWith);
    if (isListOpen())
        m_list->setCurrentRow(match);
    const QString title = match >= 0 ? titleOf(match) : typed;
    if (title.size() == typed.size())
        return;
    {
        const QSignalBlocker later(editor); // it may be destroyed by whoever hears of it
        if (!title.startsWith(typed))
            editor.selectAll(); // the value is written otherwise
        editor.insert(title.startsWith(typed) ? title.mid(typed.size()) : title);
        editor.setSelection(static_cast<int>(title.size()), static_cast<int>(typed.size() - title.size()));
    }
    Q_EMIT editor.textEdited(editor.text());
}

bool ComboBox::isOnArrow(QPoint point) const {
    return cell().arrowRect(QRectF(rect()), context()).contains(point);
}

void ComboBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !isOnArrow(event->position().toPoint()))
        TextField::mousePressEvent(event);
    else if (isListOpen())
        closeList();
    else
        openList();
}

void ComboBox::mouseMoveEvent(QMouseEvent* event) {
    if (isEditable())
        setCursor(isOnArrow(event->position().toPoint()) ? Qt::ArrowCursor : Qt::IBeamCursor);
    TextField::mouseMoveEvent(event);
}

} // namespace platform
