#include "Tidepool/Windows/ConfirmationAlert.h"

#include "Platform/Windows/Alert.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace tidepool {

void showConfirmationAlert(QWidget* parent, const QString& message, const QString& informativeText,
                           const QString& confirmTitle, std::function<void()> action) {
    auto* const alert = platform::makeAlert(message, informativeText, parent);
    const auto* const confirm = alert->addButton(confirmTitle, QMessageBox::AcceptRole);
    alert->setEscapeButton(alert->addButton(QMessageBox::tr("Cancel"), QMessageBox::RejectRole));
    QObject::connect(confirm, &QPushButton::clicked, alert, std::move(action));
    // Not exec: a nested event loop would stop a plug-in's host.
    alert->setWindowModality(parent != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    alert->show();
}

} // namespace tidepool
