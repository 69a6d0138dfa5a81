#include "Gallery/Window/SettingsBar.h"

#include "Tidepool/TPColors.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace gallery {

SettingsBar::SettingsBar(QWidget* parent) : QWidget(parent), m_row(new QHBoxLayout(this)) {
    m_row->setContentsMargins(20, 10, 20, 10);
    m_row->setSpacing(20);
    m_styleSet = addChoice(tr("Style"), {tr("Dark"), tr("Light"), tr("Accent")});
    m_scale = addChoice(tr("Scale"), {QStringLiteral("1×"), QStringLiteral("2×")});
    m_rightToLeft = addBox(tr("Right to left"));
    m_size = addChoice(tr("Size"), {tr("Small"), tr("Regular"), tr("Large")});
    m_size->setCurrentIndex(static_cast<int>(GallerySettings::ControlSize::regular));
    m_enabled = addBox(tr("Enabled"));
    m_enabled->setChecked(true);
    m_selected = addBox(tr("Selected"));
    m_row->addStretch();
}

QCheckBox* SettingsBar::addBox(const QString& title) {
    auto* const box = new QCheckBox(title);
    m_row->addWidget(box);
    connect(box, &QCheckBox::toggled, this, &SettingsBar::settingsChanged);
    return box;
}

QComboBox* SettingsBar::addChoice(const QString& title, const QStringList& choices) {
    auto* const pair = new QHBoxLayout;
    pair->setSpacing(8);
    auto* const label = new QLabel(title);
    auto* const choice = new QComboBox;
    choice->addItems(choices);
    choice->setAccessibleName(title);
    label->setBuddy(choice);
    pair->addWidget(label);
    pair->addWidget(choice);
    m_row->addLayout(pair);
    connect(choice, &QComboBox::currentIndexChanged, this, &SettingsBar::settingsChanged);
    return choice;
}

void SettingsBar::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(0, height() - 1, width(), 1, tidepool::TPColorsAK::grey20);
}

GallerySettings SettingsBar::settings() const {
    return {.isEnabled = m_enabled->isChecked(),
            .isSelected = m_selected->isChecked(),
            .size = static_cast<GallerySettings::ControlSize>(m_size->currentIndex()),
            .styleSet = static_cast<GallerySettings::StyleSet>(m_styleSet->currentIndex()),
            .scale = m_scale->currentIndex() + 1,
            .isRightToLeft = m_rightToLeft->isChecked()};
}

void SettingsBar::showSettingsOf(const GalleryPage& page) {
    m_enabled->setEnabled(page.hasStates);
    m_selected->setEnabled(page.hasStates);
    m_size->setEnabled(page.hasSizes);
}

} // namespace gallery
