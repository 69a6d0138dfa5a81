#include "Chorale/PluginHeaderView.h"

#include "Chorale/Assets.h"
#include "Chorale/AudioParameter.h"
#include "Chorale/MakerLinks.h"
#include "Chorale/PlainButtonStyles.h"
#include "Chorale/RocketFontModifier.h"
#include "Chorale/TabButton.h"
#include "Chorale/UpdateButtonStyle.h"
#include "Chorale/ViewScale.h"
#include "Platform/Display/DisplayPump.h"
#include "Platform/Windows/Browser.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>

#include <utility>

namespace chorale {

namespace {

constexpr int barHeight = 46;
constexpr int leadingPadding = 8;
constexpr int trailingPadding = 16;
constexpr int tabSpacing = 24;
constexpr int trailingSpacing = 12;
constexpr qreal versionSize = 13;

int scaled(int points) {
    return qRound(points * ViewScale::current());
}

QHBoxLayout* makeRow(QWidget& row, int spacing) {
    auto* const layout = new QHBoxLayout(&row);
    layout->setContentsMargins({});
    layout->setSpacing(scaled(spacing));
    return layout;
}

} // namespace

PluginHeaderView::PluginHeaderView(QUrl appUpdateURL, const QString& pluginVersion,
                                   std::shared_ptr<AudioParameter> tabParameter,
                                   const std::optional<UpdateAvailableDetails>& updateDetails,
                                   const std::function<QWidget*()>& menu, QWidget* parent)
    : QWidget(parent), m_appUpdateURL(std::move(appUpdateURL)), m_tabParameter(std::move(tabParameter)) {
    setFixedHeight(scaled(barHeight));
    new platform::ParameterVisibility(*this);
    // The three rows lie over each other, so that the tabs stay in the middle of the bar.
    auto* const layers = new QGridLayout(this);
    layers->setContentsMargins(scaled(leadingPadding), 0, scaled(trailingPadding), 0);
    layers->addWidget(makeLogoRow(), 0, 0, Qt::AlignLeading | Qt::AlignVCenter);
    if (m_tabParameter->valueStrings())
        layers->addWidget(makeTabRow(), 0, 0, Qt::AlignCenter);
    layers->addWidget(makeTrailingRow(pluginVersion, menu), 0, 0, Qt::AlignTrailing | Qt::AlignVCenter);
    setUpdateDetails(updateDetails);
}

void PluginHeaderView::setUpdateDetails(const std::optional<UpdateAvailableDetails>& details) {
    delete std::exchange(m_update, nullptr);
    if (!details)
        return;
    const ViewScale scale(m_scale);
    const QString title = (details->newVersion + QStringLiteral(" Available")).toUpper();
    auto* const button = new platform::PushButton(title, std::make_unique<UpdateButtonStyle>());
    connect(button, &QAbstractButton::clicked, this,
            [this] { platform::openInBrowser(m_appUpdateURL, this); });
    m_update = button;
    m_trailing->insertWidget(0, button);
}

QWidget* PluginHeaderView::makeLogoRow() {
    auto* const logo = new platform::PushButton({}, std::make_unique<LogoButtonStyle>(Images::quillfenLogo));
    logo->setAccessibleName(tr("Website of the maker"));
    connect(logo, &QAbstractButton::clicked, this,
            [this] { platform::openInBrowser(MakerLinks::website(), this); });
    return logo;
}

QWidget* PluginHeaderView::makeTabRow() {
    auto* const row = new QWidget;
    QHBoxLayout* const layout = makeRow(*row, tabSpacing);
    for (const QString& name : *m_tabParameter->valueStrings()) {
        auto* const tab = new TabButton(QLocale().toUpper(name));
        tab->setAccessibleName(tr("%1 tab").arg(name));
        const auto index = static_cast<float>(m_tabs.size());
        connect(tab, &QAbstractButton::clicked, this, [this, index] {
            m_tabParameter->setValue(index, ParameterEditor::ui, ParameterEditorState::change);
        });
        layout->addWidget(tab);
        m_tabs.push_back(tab);
    }
    connect(m_tabParameter.get(), &AudioParameter::valueChanged, this, &PluginHeaderView::showTab);
    showTab();
    return row;
}

QWidget* PluginHeaderView::makeTrailingRow(const QString& version, const std::function<QWidget*()>& menu) {
    auto* const row = new QWidget;
    QHBoxLayout* const layout = makeRow(*row, trailingSpacing);
    m_trailing = layout;
    auto* const label = new QLabel(version);
    label->setTextFormat(Qt::PlainText);
    rocketFont(*label, versionSize * ViewScale::current());
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Colors::versionInfo.color());
    label->setPalette(palette);
    layout->addWidget(label);
    if (QWidget* const widget = menu ? menu() : nullptr)
        layout->addWidget(widget);
    return row;
}

void PluginHeaderView::showTab() {
    for (std::size_t index = 0; index < m_tabs.size(); ++index)
        m_tabs[index]->setState(m_tabParameter->value() == static_cast<float>(index)
                                    ? platform::ControlState::on
                                    : platform::ControlState::off);
}

void PluginHeaderView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), Colors::background.color());
}

} // namespace chorale
