#include "Platform/Windows/Alert.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>

namespace platform {

QMessageBox* makeAlert(const QString& message, const QString& informativeText, QWidget* parent) {
    constexpr int iconSize = 56;
    auto* const alert =
        new QMessageBox(QMessageBox::NoIcon, QApplication::applicationDisplayName(), message, {}, parent);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setInformativeText(informativeText);
    // Texts may come from elsewhere, and markup in them is not ours to follow. The box's own text format does
    // not reach its informative text.
    const auto labels = alert->findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setTextFormat(Qt::PlainText);
    alert->setIconPixmap(
        QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), alert->devicePixelRatioF()));
    return alert;
}

} // namespace platform
