#pragma once

#include "Platform/Updates/AppcastItem.h"
#include "Platform/Updates/UpdateError.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QMessageBox;

namespace platform {

class SPUStandardUserDriverDelegate;

/// Shows the standard dialogs of an update check that the user asked for, one at a time, above the
/// application's window. They block nothing. The first takes the keyboard, and so does each that follows
/// while the user has not gone on to another application. Main thread.
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

    /// True while the dialog of a check that runs is shown.
    bool isChecking() const;

    /// Brings the dialog that is shown before the other windows.
    void showInFront();

protected:
    bool eventFilter(QObject* dialog, QEvent* event) override;

private:
    QMessageBox& replaceDialog(const QString& text, const QString& information);
    void showDialog();
    void showMessage(const QString& text, const QString& information);
    void addLink(const QString& title, const QUrl& url);

    SPUStandardUserDriverDelegate* m_delegate;
    QPointer<QMessageBox> m_dialog;
    bool m_isChecking = false;
    bool m_hadKeyboard = false; // the dialog, at any time
};

} // namespace platform
