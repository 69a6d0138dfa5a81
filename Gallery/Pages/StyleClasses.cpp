#include "Gallery/Pages/StyleClasses.h"

#include "Tidepool/Styles/CheckBoxCellStyle.h"
#include "Tidepool/Styles/PopUpButtonCellStyles.h"
#include "Tidepool/Styles/SegmentedCellStyle.h"
#include "Tidepool/Styles/SliderCellStyle.h"
#include "Tidepool/Styles/TableViewStyle.h"
#include "Tidepool/Styles/TextFieldCellStyle.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

#include <algorithm>
#include <string_view>

namespace gallery {

using namespace tidepool;

namespace {

template <class Style>
std::unique_ptr<ControlStyle> makeStyle() {
    return std::make_unique<Style>();
}

} // namespace

const std::vector<StyleClass>& styleClasses() {
    static const std::vector<StyleClass> classes{
        {"ControlStyle", makeStyle<ControlStyle>},
        {"ButtonCellStyle", makeStyle<ButtonCellStyle>},
        {"BackButtonCellStyle", makeStyle<BackButtonCellStyle>},
        {"CornerButtonCellStyle", makeStyle<CornerButtonCellStyle>},
        {"ToolButtonCellStyle", makeStyle<ToolButtonCellStyle>},
        {"CheckBoxCellStyle", makeStyle<CheckBoxCellStyle>},
        {"FavouriteCheckBoxCellStyle", makeStyle<FavouriteCheckBoxCellStyle>},
        {"PopUpButtonCellStyle", makeStyle<PopUpButtonCellStyle>},
        {"StyledPopDownButtonCellStyle", makeStyle<StyledPopDownButtonCellStyle>},
        {"ToolPopUpButtonCellStyle", makeStyle<ToolPopUpButtonCellStyle>},
        {"ComboBoxStyle", makeStyle<ComboBoxStyle>},
        {"SegmentedCellStyle", makeStyle<SegmentedCellStyle>},
        {"SliderCellStyle", makeStyle<SliderCellStyle>},
        {"TextFieldCellStyle", makeStyle<TextFieldCellStyle>},
        {"HeaderTextFieldStyle", makeStyle<HeaderTextFieldStyle>},
        {"SearchFieldCellStyle", makeStyle<SearchFieldCellStyle>},
        {"TextLabelCellStyle", makeStyle<TextLabelCellStyle>},
        {"TableRowLabelCellStyle", makeStyle<TableRowLabelCellStyle>},
        {"TableGroupLabelCellStyle", makeStyle<TableGroupLabelCellStyle>},
        {"TableViewStyle", makeStyle<TableViewStyle>},
        {"OutlineViewStyle", makeStyle<OutlineViewStyle>},
    };
    return classes;
}

int styleClassIndex(const char* name) {
    const auto& classes = styleClasses();
    const auto found = std::find_if(classes.begin(), classes.end(), [name](const StyleClass& styleClass) {
        return std::string_view(styleClass.name) == name;
    });
    return static_cast<int>(found - classes.begin());
}

ImageMaps imageMaps(const ControlStyle& style) {
    ImageMaps maps;
    const auto add = [&](const char16_t* name, const StateImages& images) {
        if (!images.entries().empty())
            maps.emplace_back(QString::fromUtf16(name), &images);
    };
    if (const auto* const box = dynamic_cast<const CheckBoxCellStyle*>(&style))
        add(u"Button image", box->buttonImages());
    if (const auto* const slider = dynamic_cast<const SliderCellStyle*>(&style)) {
        add(u"Bar image", slider->barImages());
        add(u"Knob image", slider->knobImages());
    }
    add(u"Bezel image", style.bezelImages());
    return maps;
}

} // namespace gallery
