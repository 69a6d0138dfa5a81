#include "Tidepool/Styles/KitStyles.h"

#include "Tidepool/Styles/CheckBoxCellStyle.h"
#include "Tidepool/Styles/PopUpButtonCellStyles.h"
#include "Tidepool/Styles/SegmentedCellStyle.h"
#include "Tidepool/Styles/SliderCellStyle.h"
#include "Tidepool/Styles/Styles.h"
#include "Tidepool/Styles/TableViewStyle.h"
#include "Tidepool/Styles/TextFieldCellStyle.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"
#include "Tidepool/Styles/WindowStyle.h"

#include <concepts>

namespace tidepool {

namespace {

StateImages recolored(const StateImages& images, const QColor& accent) {
    const platform::Recoloring recoloring{Styles::Control::selection.color().rgb(), accent.rgb()};
    StateImages result;
    for (const auto& [state, image] : images.entries())
        result.set(state, image.recolored(recoloring));
    return result;
}

class Maker {
public:
    Maker(platform::Appearance appearance, const std::optional<QColor>& accent)
        : m_appearance(appearance), m_scope(appearance), m_accent(accent) {}

    template <typename... Styles>
    void add() {
        (addOne<Styles>(), ...);
    }

    std::shared_ptr<const StyleSet> result() const { return m_set; }

private:
    template <typename Style>
    void addOne() {
        const auto style = std::make_shared<Style>();
        if constexpr (std::same_as<Style, BackButtonCellStyle>)
            style->setArrowBezel();
        style->setAppearanceName(m_appearance);
        if constexpr (std::derived_from<Style, ControlStyle>)
            if (m_accent)
                applyAccent(*style, *m_accent);
        m_set->set<Style>(style);
    }

    const platform::Appearance m_appearance;
    const platform::AppearanceScope m_scope;
    const std::optional<QColor> m_accent;
    const std::shared_ptr<StyleSet> m_set = std::make_shared<StyleSet>();
};

} // namespace

void applyAccent(ControlStyle& style, const QColor& accent) {
    style.setBezelImages(recolored(style.bezelImages(), accent));
    if (auto* const checkBox = dynamic_cast<CheckBoxCellStyle*>(&style))
        checkBox->setButtonImages(recolored(checkBox->buttonImages(), accent));
    if (auto* const slider = dynamic_cast<SliderCellStyle*>(&style)) {
        slider->setBarImages(recolored(slider->barImages(), accent));
        slider->setKnobImages(recolored(slider->knobImages(), accent));
    }
    if (auto* const table = dynamic_cast<TableViewStyle*>(&style))
        table->setSelectedRowBackgroundColor(accent);
    style.setSelectedBackgroundColor(accent);
    style.setFocusRingColor(accent);
}

std::shared_ptr<const StyleSet> makeStyleSet(platform::Appearance appearance,
                                             const std::optional<QColor>& accent) {
    Maker maker(appearance, accent);
    maker.add<ButtonCellStyle, CheckBoxCellStyle, FavouriteCheckBoxCellStyle, ToolButtonCellStyle,
              CornerButtonCellStyle, BackButtonCellStyle>();
    maker.add<PopUpButtonCellStyle, StyledPopDownButtonCellStyle, ToolPopUpButtonCellStyle, ComboBoxStyle>();
    maker.add<SegmentedCellStyle, SliderCellStyle, TableViewStyle, OutlineViewStyle>();
    maker.add<TextFieldCellStyle, HeaderTextFieldStyle, SearchFieldCellStyle, TextLabelCellStyle,
              TableRowLabelCellStyle, TableGroupLabelCellStyle>();
    maker.add<WindowStyle, PopoverStyle>();
    return maker.result();
}

} // namespace tidepool
