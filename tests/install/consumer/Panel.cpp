#include "Panel.h"

#include "PowerButton.h"

#include <Tidepool/Buttons/StyledButton.h>
#include <Tidepool/Buttons/StyledCheckBox.h>
#include <Tidepool/Events/ControlPublishers.h>
#include <Tidepool/Palette/TPColors.h>
#include <Tidepool/Styles/StyleSet.h>

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
    reset->cell().setStyle(std::make_shared<LoudStyle>());
    column->addWidget(reset);

    column->addWidget(new PowerButton);

    StyleSet::apply(*this, makeStyleSet(platform::Appearance::light, QColor(0xe0, 0x60, 0x20)));
}

void Panel::reset(QObject*) {
    applied = 0;
}
