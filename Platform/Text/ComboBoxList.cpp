#include "Platform/Text/ComboBoxList.h"

#include "Platform/Text/FieldEditor.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace platform {

bool ComboBox::List::event(QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return ListPopup::event(event);
    keyPressEvent(static_cast<QKeyEvent*>(event)); // Tab, too
    return true;
}

void ComboBox::List::keyPressEvent(QKeyEvent* event) {
    const int before = currentRow();
    if (!handleKey(*event))
        passOn(*event);
    else if (isVisible() && currentRow() != before)
        m_box.preview(currentRow());
}

void ComboBox::List::passOn(QKeyEvent& event) {
    const QPointer<FieldEditor> editor(m_box.currentEditor());
    const bool goesOn = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    if (goesOn && m_box.m_isPreviewing)
        choose(currentRow());
    if (goesOn || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        close();
    if (editor)
        QCoreApplication::sendEvent(editor, &event);
}

bool ComboBox::List::isOnlyClosedBy(QPoint press) const {
    return m_box.isOnArrow(m_box.mapFromGlobal(press));
}

} // namespace platform
