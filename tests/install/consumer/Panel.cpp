#include "Panel.h"

#include "PowerButton.h"

#include <Tidepool/ControlPublishers.h>
#include <Tidepool/KitStyles.h>
#include <Tidepool/StyledButton.h>
#include <Tidepool/StyledCheckBox.h>
#include <Tidepool/TPColors.h>

#include <QVBoxLayout>

using namespace tidepool;

namespace {

/// Titles in the maker's own colour.
class LoudStyle : public ButtonCellStyle {
public:
    using ButtonCellStyle::textColor;

    const QColor& textColor() const override { return TPColors::Vantor::orange; }
};

} // namespace

Panel::Panel() {
    auto* const column = new QVBoxLayout(this);

    auto* const apply = new StyledButton(QStringLiteral("&Apply"));
    connect(apply, &StyledButton::clicked, this, [this] { ++applied; });
    column->addWidget(apply);

    auto* const bypass = new StyledCheckBox(QStringLiteral("Bypass"));
    m_cancellables.push_back(statePublisher(*bypass)->sink(
        [this](platform::ControlState state) { isBypassed = state == platform::ControlState::on; }));
    column->addWidget(bypass);

    auto* const reset = new StyledButton(QStringLiteral("Reset"));
    reset->setAction(platform::Selector{"reset"}, this);
    reset->setButtonStyle(std::make_shared<LoudStyle>());
    column->addWidget(reset);

    column->addWidget(new PowerButton);

    StyleSet::apply(*this, makeStyleSet(platform::Appearance::light, QColor(0xe0, 0x60, 0x20)));
}

void Panel::reset(QObject*) {
    applied = 0;
}
