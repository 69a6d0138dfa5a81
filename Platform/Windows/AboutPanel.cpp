#include "Platform/Windows/AboutPanel.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/SystemFont.h"
#include "Platform/Windows/ApplicationIcon.h"

#include <QApplication>
#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace platform {

namespace {

QLabel* addLine(QVBoxLayout& column, const QString& text, const QFont& font,
                QPalette::ColorRole role = QPalette::WindowText) {
    auto* const label = new QLabel(text);
    label->setFont(font);
    label->setForegroundRole(role);
    label->setAlignment(Qt::AlignCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::NoFocus);
    column.addWidget(label);
    return label;
}

QDialog* makePanel(const QStringList& libraries) {
    constexpr int iconSize = 96;
    useApplicationIcon();
    const Bundle& bundle = Bundle::main();
    auto* const panel = new QDialog;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(QDialog::tr("About %1").arg(bundle.information(QStringLiteral("name"))));
    auto* const column = new QVBoxLayout(panel);
    column->setContentsMargins(40, 28, 40, 28);
    column->setSpacing(8);
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* const icon = new QLabel;
    icon->setPixmap(QApplication::windowIcon().pixmap(QSize(iconSize, iconSize), panel->devicePixelRatioF()));
    icon->setAlignment(Qt::AlignCenter);
    column->addWidget(icon);
    addLine(*column, bundle.information(QStringLiteral("name")), systemFont(20, QFont::Bold));
    addLine(
        *column,
        QDialog::tr("Version %1 (%2)")
            .arg(bundle.information(QStringLiteral("version")), bundle.information(QStringLiteral("build"))),
        systemFont(12));
    column->addSpacing(4);
    addLine(*column, libraries.join(u'\n'), systemFont(11), QPalette::PlaceholderText);
    column->addSpacing(4);
    addLine(*column, bundle.information(QStringLiteral("copyright")), systemFont(11),
            QPalette::PlaceholderText);
    return panel;
}

} // namespace

void orderFrontStandardAboutPanel(const QStringList& libraries) {
    static QPointer<QDialog> panel;
    if (!panel)
        panel = makePanel(libraries);
    panel->show();
    panel->raise();
    panel->activateWindow();
}

} // namespace platform
