#include "Platform/Windows/Alert.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

namespace platform {

QMessageBox* makeAlert(const QString& message, const QString& informativeText, QWidget* parent) {
    constexpr int iconSize = 56;
    auto* const alert =
        new QMessageBox(QMessageBox::NoIcon, QApplication::applicationDisplayName(), message, {}, parent);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    // Texts may come from elsewhere, and markup in them is not ours to follow.
    alert->setTextFormat(Qt::PlainText);
    alert->setInformativeText(informativeText);
    alert->setIconPixmap(
        QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), alert->devicePixelRatioF()));
    return alert;
}

} // namespace platform
