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

void showAddress(const QUrl& url, QWidget* view) {
    const QString address = url.toString();
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
    const bool isPage = url.scheme().startsWith(QStringLiteral("http"));
    if ((isPage && !hasBrowser()) || !QDesktopServices::openUrl(url))
        showAddress(url, view);
}

} // namespace platform
