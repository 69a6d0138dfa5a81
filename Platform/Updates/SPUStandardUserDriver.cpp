#include "Platform/Updates/SPUStandardUserDriver.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Updates/SPUStandardUserDriverDelegate.h"

#include <QDesktopServices>
#include <QPushButton>

namespace platform {

namespace {

QString productName() {
    return Bundle::main().information(QStringLiteral("name"));
}

QString productVersion() {
    return Bundle::main().information(QStringLiteral("version"));
}

} // namespace

SPUStandardUserDriver::SPUStandardUserDriver(SPUStandardUserDriverDelegate* delegate)
    : m_delegate(delegate) {}

SPUStandardUserDriver::~SPUStandardUserDriver() {
    delete m_dialog;
}

QMessageBox& SPUStandardUserDriver::replaceDialog(QMessageBox::Icon icon, const QString& text,
                                                  const QString& information) {
    delete m_dialog;
    m_dialog = new QMessageBox(icon, productName(), text);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setAttribute(Qt::WA_ShowWithoutActivating);
    m_dialog->setWindowModality(Qt::NonModal);
    // Much of the text comes from the network.
    m_dialog->setTextFormat(Qt::PlainText);
    m_dialog->setInformativeText(information);
    return *m_dialog;
}

void SPUStandardUserDriver::showUserInitiatedUpdateCheck(std::function<void()> cancel) {
    QMessageBox& dialog = replaceDialog(QMessageBox::NoIcon, QStringLiteral("Checking for updates…"), {});
    dialog.setStandardButtons(QMessageBox::Cancel);
    connect(&dialog, &QDialog::finished, this, [cancel = std::move(cancel)] { cancel(); });
    dialog.show();
}

void SPUStandardUserDriver::showUpdateFound(const AppcastItem& update) {
    if (m_delegate != nullptr)
        m_delegate->standardUserDriverWillShowUpdate(update);
    const QString information =
        QStringLiteral("%1 %2 is now available; you have %3. Would you like to get it now?")
            .arg(productName(), update.displayVersion, productVersion());
    replaceDialog(QMessageBox::Information,
                  QStringLiteral("A new version of %1 is available!").arg(productName()), information);
    if (!update.isInformational)
        addLink(QStringLiteral("Download…"), QMessageBox::AcceptRole, update.downloadUrl);
    addLink(QStringLiteral("Learn More…"), QMessageBox::AcceptRole,
            update.releaseNotesUrl.isEmpty() ? update.link : update.releaseNotesUrl);
    m_dialog->setEscapeButton(
        m_dialog->addButton(QStringLiteral("Remind Me Later"), QMessageBox::RejectRole));
    m_dialog->show();
}

void SPUStandardUserDriver::addLink(const QString& title, QMessageBox::ButtonRole role, const QUrl& url) {
    if (url.isEmpty())
        return;
    const QPushButton* button = m_dialog->addButton(title, role);
    connect(button, &QPushButton::clicked, this, [url] { QDesktopServices::openUrl(url); });
}

void SPUStandardUserDriver::showUpdateNotFound() {
    const QString information = QStringLiteral("%1 %2 is currently the newest version available.")
                                    .arg(productName(), productVersion());
    replaceDialog(QMessageBox::Information, QStringLiteral("You're up to date!"), information).show();
}

void SPUStandardUserDriver::showUpdaterError(const UpdateError& error) {
    replaceDialog(QMessageBox::Warning, error.message, error.advice).show();
}

void SPUStandardUserDriver::showInFront() {
    if (m_dialog)
        m_dialog->raise();
}

} // namespace platform
