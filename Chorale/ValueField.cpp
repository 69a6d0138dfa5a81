#include "Chorale/ValueField.h"

#include "Chorale/RocketFontModifier.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace chorale {

ValueField::ValueField(const QColor& color, qreal fontSize, QWidget& label)
    : QLineEdit(&label), m_label(label) {
    rocketFont(*this, fontSize);
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    QColor selection = color;
    constexpr float selectionAlpha = 0.3F;
    selection.setAlphaF(selectionAlpha);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, color);
    palette.setColor(QPalette::Highlight, selection);
    palette.setColor(QPalette::HighlightedText, color);
    setPalette(palette);
    hide();
}

ValueField::~ValueField() {
    m_isOpen = false; // what the base sends from here on is not heard
}

void ValueField::open() {
    if (std::exchange(m_isOpen, true))
        return;
    m_labelHadFocus = window()->focusWidget() == &m_label; // also while the window counts as inactive
    show();
    setFocus(Qt::OtherFocusReason);
    selectAll();
    qApp->installEventFilter(this);
    Q_EMIT openChanged();
}

void ValueField::close() {
    if (!std::exchange(m_isOpen, false))
        return;
    qApp->removeEventFilter(this);
    // A hidden field would hand the keyboard to whichever control comes next.
    if (hasFocus() && m_labelHadFocus)
        m_label.setFocus(Qt::OtherFocusReason);
    clearFocus();
    hide();
    Q_EMIT openChanged();
}

bool ValueField::eventFilter(QObject* watched, QEvent* event) {
    const bool isElsewhere = watched->isWidgetType() && watched != this && watched != &m_label &&
                             QApplication::activePopupWidget() == nullptr;
    if (event->type() == QEvent::MouseButtonPress && isElsewhere) {
        close();
    } else if (watched == this && event->type() == QEvent::FocusOut) {
        // The field's own menu does not take it away.
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            close();
    } else if (watched == this &&
               (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)) {
        return handleKey(*static_cast<QKeyEvent*>(event));
    }
    return false;
}

bool ValueField::handleKey(QKeyEvent& event) {
    const bool submits = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!submits && event.key() != Qt::Key_Escape)
        return false;
    event.accept();
    if (event.type() == QEvent::KeyPress)
        submits ? Q_EMIT submitted() : Q_EMIT abandoned();
    return true;
}

} // namespace chorale
