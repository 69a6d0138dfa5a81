#include "Platform/Updates/SPUStandardUserDriver.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Updates/SPUStandardUserDriverDelegate.h"
#include "Platform/Windows/Alert.h"
#include "Platform/Windows/Browser.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
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

QMessageBox& SPUStandardUserDriver::replaceDialog(const QString& text, const QString& information) {
    // The desktop may not have given the keyboard yet.
    const bool isExpected =
        m_dialog && !m_hadKeyboard && !m_dialog->testAttribute(Qt::WA_ShowWithoutActivating);
    const bool isElsewhere = m_dialog && !isExpected && QApplication::activeWindow() == nullptr;
    delete m_dialog;
    m_isChecking = false;
    m_dialog = makeAlert(text, information);
    m_dialog->setWindowTitle(QStringLiteral("Software Update"));
    m_dialog->setAttribute(Qt::WA_ShowWithoutActivating, isElsewhere);
    m_dialog->installEventFilter(this);
    m_hadKeyboard = false;
    return *m_dialog;
}

void SPUStandardUserDriver::showDialog() {
    m_dialog->show();
    // A window that was shown just before may still get what it has asked for.
    if (!m_dialog->testAttribute(Qt::WA_ShowWithoutActivating))
        m_dialog->activateWindow();
}

bool SPUStandardUserDriver::eventFilter(QObject*, QEvent* event) {
    m_hadKeyboard = m_hadKeyboard || event->type() == QEvent::WindowActivate;
    return false;
}

void SPUStandardUserDriver::showMessage(const QString& text, const QString& information) {
    QMessageBox& dialog = replaceDialog(text, information);
    dialog.setEscapeButton(dialog.addButton(QMessageBox::tr("OK"), QMessageBox::AcceptRole));
    showDialog();
}

void SPUStandardUserDriver::showUserInitiatedUpdateCheck(std::function<void()> cancel) {
    QMessageBox& dialog = replaceDialog(QStringLiteral("Checking for updates…"), {});
    m_isChecking = true;
    dialog.setEscapeButton(dialog.addButton(QMessageBox::tr("Cancel"), QMessageBox::RejectRole));
    connect(&dialog, &QDialog::finished, this, [cancel = std::move(cancel)] { cancel(); });
    showDialog();
}

void SPUStandardUserDriver::showUpdateFound(const AppcastItem& update) {
    if (m_delegate != nullptr)
        m_delegate->standardUserDriverWillShowUpdate(update);
    const QString information =
        QStringLiteral("%1 %2 is now available; you have %3. Would you like to get it now?")
            .arg(productName(), update.displayVersion, productVersion());
    replaceDialog(QStringLiteral("A new version of %1 is available!").arg(productName()), information);
    if (!update.isInformational)
        addLink(QStringLiteral("Download…"), update.downloadUrl);
    addLink(QStringLiteral("Learn More…"),
            update.releaseNotesUrl.isEmpty() ? update.link : update.releaseNotesUrl);
    m_dialog->setEscapeButton(
        m_dialog->addButton(QStringLiteral("Remind Me Later"), QMessageBox::RejectRole));
    showDialog();
}

void SPUStandardUserDriver::addLink(const QString& title, const QUrl& url) {
    if (url.isEmpty())
        return;
    const QPushButton* button = m_dialog->addButton(title, QMessageBox::AcceptRole);
    connect(button, &QPushButton::clicked, this, [url] { openInBrowser(url); });
}

void SPUStandardUserDriver::showUpdateNotFound() {
    const QString information = QStringLiteral("%1 %2 is currently the newest version available.")
                                    .arg(productName(), productVersion());
    showMessage(QStringLiteral("You're up to date!"), information);
}

void SPUStandardUserDriver::showUpdaterError(const UpdateError& error) {
    showMessage(error.message, error.advice);
}

bool SPUStandardUserDriver::isChecking() const {
    return m_isChecking && m_dialog && m_dialog->isVisible();
}

void SPUStandardUserDriver::showInFront() {
    if (!m_dialog)
        return;
    m_dialog->raise();
    m_dialog->activateWindow();
}

} // namespace platform
