#include "Platform/Graphics/Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QWidget>

namespace platform {

namespace {

Appearance& appearance() {
    static Appearance value = Appearance::dark;
    return value;
}

QPalette darkPalette() {
    const QColor text(0xe4, 0xe4, 0xec);
    const QColor window(0x1c, 0x1b, 0x28);
    const QColor base(0x13, 0x12, 0x1d);
    const QColor highlight(0x3d, 0x6b, 0xf2);
    QPalette palette(text, QColor(0x2c, 0x2b, 0x3b), QColor(0x45, 0x44, 0x58), QColor(0x0c, 0x0b, 0x14),
                     QColor(0x30, 0x2f, 0x40), text, Qt::white, base, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7d, 0xb1, 0xff));
    palette.setColor(QPalette::PlaceholderText, QColor(0x8a, 0x89, 0x9b));
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x6a, 0x69, 0x7a));
    return palette;
}

/// Whoever hears of it may destroy others.
void notify(const QWidgetList& widgets) {
    const QList<QPointer<QWidget>> living(widgets.begin(), widgets.end());
    for (const QPointer<QWidget>& widget : living) {
        QEvent event(QEvent::StyleChange);
        if (widget != nullptr)
            QCoreApplication::sendEvent(widget, &event);
    }
}

} // namespace

Appearance currentAppearance() {
    return appearance();
}

AppearanceScope::AppearanceScope(Appearance value) : m_before(appearance()) {
    appearance() = value;
}

AppearanceScope::~AppearanceScope() {
    appearance() = m_before;
}

void setAppearance(Appearance value) {
    appearance() = value;
    QApplication::setPalette(value == Appearance::dark ? darkPalette()
                                                       : QApplication::style()->standardPalette());
    notify(QApplication::allWidgets());
}

void notifyStyleChange(QWidget& root) {
    notify(QWidgetList{&root} + root.findChildren<QWidget*>());
}

} // namespace platform
