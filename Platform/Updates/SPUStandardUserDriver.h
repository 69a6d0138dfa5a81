#pragma once

#include "Platform/Updates/AppcastItem.h"
#include "Platform/Updates/UpdateError.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>

namespace platform {

class SPUStandardUserDriverDelegate;

/// Shows the standard dialogs of an update check, one at a time. They block nothing and do not take the focus
/// from where the user is working. Main thread.
class SPUStandardUserDriver : public QObject {
public:
    /// `delegate` may be null and is not owned.
    explicit SPUStandardUserDriver(SPUStandardUserDriverDelegate* delegate);
    ~SPUStandardUserDriver() override;

    /// `cancel` is called if the user ends the check.
    void showUserInitiatedUpdateCheck(std::function<void()> cancel);
    void showUpdateFound(const AppcastItem& update);
    void showUpdateNotFound();
    void showUpdaterError(const UpdateError& error);

    bool isShowing() const { return m_dialog && m_dialog->isVisible(); }

    /// Brings the dialog that is shown before the other windows.
    void showInFront();

private:
    QMessageBox& replaceDialog(const QString& text, const QString& information);
    void showMessage(const QString& text, const QString& information);
    void addLink(const QString& title, QMessageBox::ButtonRole role, const QUrl& url);

    SPUStandardUserDriverDelegate* m_delegate;
    QPointer<QMessageBox> m_dialog;
};

} // namespace platform
