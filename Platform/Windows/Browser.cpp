#include "Platform/Windows/Browser.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Windows/Alert.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace platform {

namespace {

void showAddress(const QString& address, QWidget* view) {
    QMessageBox& alert = *makeAlert(QMessageBox::tr("There is no program to open this address."), address,
                                    view != nullptr ? view->window() : nullptr);
    const auto* const copy = alert.addButton(QMessageBox::tr("Copy Address"), QMessageBox::AcceptRole);
    QObject::connect(copy, &QPushButton::clicked, &alert,
                     [address] { QGuiApplication::clipboard()->setText(address); });
    alert.setEscapeButton(alert.addButton(QMessageBox::tr("Close"), QMessageBox::RejectRole));
    alert.show();
}

} // namespace

void openInBrowser(const QUrl& url, QWidget* view) {
    requireMainThread();
    // A desktop's opener says that it was started, not whether it found a browser.
    if (!hasBrowser() || !QDesktopServices::openUrl(url))
        showAddress(url.toString(), view);
}

void openInProgram(const QString& address, QWidget* view) {
    requireMainThread();
    if (!hasHandler(address.section(u':', 0, 0)) || !startHandler(address))
        showAddress(address, view);
}

} // namespace platform
