#include "Tidepool/ConfirmationAlert.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace tidepool {

void showConfirmationAlert(QWidget* parent, const QString& message, const QString& informativeText,
                           const QString& confirmTitle, std::function<void()> action) {
    auto* const alert = new QMessageBox(QMessageBox::Warning, {}, message, QMessageBox::NoButton, parent);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setInformativeText(informativeText);
    const auto* const confirm = alert->addButton(confirmTitle, QMessageBox::AcceptRole);
    alert->setEscapeButton(alert->addButton(QMessageBox::tr("Cancel"), QMessageBox::RejectRole));
    QObject::connect(confirm, &QPushButton::clicked, alert, std::move(action));
    // Not exec: a nested event loop would stop a plug-in's host.
    alert->setWindowModality(parent != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    alert->show();
}

} // namespace tidepool
