#include "Gallery/Window/SettingsBar.h"

#include "Gallery/StyleSet.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Choices/StyledPopUpButton.h"
#include "Tidepool/Palette/TPColors.h"

#include <QHBoxLayout>
#include <QPainter>

namespace gallery {

using platform::ControlState;
using tidepool::StyledCheckBox;
using tidepool::StyledPopUpButton;

SettingsBar::SettingsBar(QWidget* parent) : QWidget(parent), m_row(new QHBoxLayout(this)) {
    m_row->setContentsMargins(20, 10, 20, 10);
    m_row->setSpacing(20);
    m_styleSet = addChoice(tr("Style"), {tr("Dark"), tr("Light"), tr("Accent")});
    m_scale = addChoice(tr("Scale"), {QStringLiteral("1×"), QStringLiteral("2×")});
    m_rightToLeft = addBox(tr("Right to left"));
    m_size = addChoice(tr("Size"), {tr("Small"), tr("Regular"), tr("Large")});
    m_size->selectItem(static_cast<int>(GallerySettings::ControlSize::regular));
    m_enabled = addBox(tr("Enabled"));
    m_enabled->setState(ControlState::on);
    m_selected = addBox(tr("Selected"));
    m_row->addStretch();
    m_noted = settings();
}

StyledCheckBox* SettingsBar::addBox(const QString& title) {
    auto* const box = new StyledCheckBox(title);
    m_row->addWidget(box);
    connect(box, &StyledCheckBox::clicked, this, &SettingsBar::noteChange);
    return box;
}

StyledPopUpButton* SettingsBar::addChoice(const QString& title, const QStringList& choices) {
    auto* const choice = new StyledPopUpButton;
    choice->setLabel(title);
    choice->setAccessibleName(title);
    for (const QString& name : choices)
        choice->addItem(name);
    m_row->addWidget(choice);
    connect(choice, &StyledPopUpButton::itemChosen, this, &SettingsBar::noteChange);
    return choice;
}

/// The same choice again changes nothing.
void SettingsBar::noteChange() {
    if (settings() == m_noted)
        return;
    m_noted = settings();
    Q_EMIT settingsChanged();
}

void SettingsBar::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(0, height() - 1, width(), 1, tidepool::TPColorsAK::grey20);
}

GallerySettings SettingsBar::settings() const {
    return {.isEnabled = m_enabled->state() == ControlState::on,
            .isSelected = m_selected->state() == ControlState::on,
            .size = static_cast<GallerySettings::ControlSize>(m_size->indexOfSelectedItem()),
            .styleSet = static_cast<GallerySettings::StyleSet>(m_styleSet->indexOfSelectedItem()),
            .scale = m_scale->indexOfSelectedItem() + 1.0,
            .isRightToLeft = m_rightToLeft->state() == ControlState::on};
}

void SettingsBar::showSettingsOf(const GalleryPage& page) {
    tidepool::StyleSet::apply(*this, formStyles(settings()));
    m_enabled->setEnabled(page.hasStates);
    m_selected->setEnabled(page.hasStates);
    m_size->setEnabled(page.hasSizes);
}

} // namespace gallery
