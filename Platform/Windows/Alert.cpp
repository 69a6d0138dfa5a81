#include "Platform/Windows/Alert.h"

#include "Platform/Windows/ApplicationIcon.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>

#include <algorithm>

namespace platform {

namespace {

bool isMainWindow(const QWidget* widget) {
    return widget->isVisible() && widget->windowType() == Qt::Window;
}

/// The active window, or the one that the active dialog belongs to, else any that is shown; null for none.
QWidget* frontWindow() {
    for (QWidget* widget = QApplication::activeWindow(); widget != nullptr; widget = widget->parentWidget())
        if (isMainWindow(widget))
            return widget;
    const auto windows = QApplication::topLevelWidgets();
    const auto shown = std::find_if(windows.begin(), windows.end(), isMainWindow);
    return shown != windows.end() ? *shown : nullptr;
}

} // namespace

QMessageBox* makeAlert(const QString& message, const QString& informativeText, QWidget* parent) {
    constexpr int iconSize = 56;
    useApplicationIcon();
    auto* const alert = new QMessageBox(QMessageBox::NoIcon, QApplication::applicationDisplayName(), message,
                                        {}, parent != nullptr ? parent : frontWindow());
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setWindowModality(Qt::NonModal);
    alert->setInformativeText(informativeText);
    // Texts may come from elsewhere, and markup in them is not ours to follow. The box's own text format does
    // not reach its informative text.
    const auto labels = alert->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    alert->setIconPixmap(
        QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), alert->devicePixelRatioF()));
    return alert;
}

} // namespace platform
