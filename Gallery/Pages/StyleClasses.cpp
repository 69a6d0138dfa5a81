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

template <class S>
std::shared_ptr<ControlStyle> make(const StyleLook& look) {
    return makeStyle<S>(look);
}

} // namespace

const std::vector<StyleClass>& styleClasses() {
    static const std::vector<StyleClass> classes{
        {"ControlStyle", make<ControlStyle>},
        {"ButtonCellStyle", make<ButtonCellStyle>},
        {"BackButtonCellStyle", make<BackButtonCellStyle>},
        {"CornerButtonCellStyle", make<CornerButtonCellStyle>},
        {"ToolButtonCellStyle", make<ToolButtonCellStyle>},
        {"CheckBoxCellStyle", make<CheckBoxCellStyle>},
        {"FavouriteCheckBoxCellStyle", make<FavouriteCheckBoxCellStyle>},
        {"PopUpButtonCellStyle", make<PopUpButtonCellStyle>},
        {"StyledPopDownButtonCellStyle", make<StyledPopDownButtonCellStyle>},
        {"ToolPopUpButtonCellStyle", make<ToolPopUpButtonCellStyle>},
        {"ComboBoxStyle", make<ComboBoxStyle>},
        {"SegmentedCellStyle", make<SegmentedCellStyle>},
        {"SliderCellStyle", make<SliderCellStyle>},
        {"TextFieldCellStyle", make<TextFieldCellStyle>},
        {"HeaderTextFieldStyle", make<HeaderTextFieldStyle>},
        {"SearchFieldCellStyle", make<SearchFieldCellStyle>},
        {"TextLabelCellStyle", make<TextLabelCellStyle>},
        {"TableRowLabelCellStyle", make<TableRowLabelCellStyle>},
        {"TableGroupLabelCellStyle", make<TableGroupLabelCellStyle>},
        {"TableViewStyle", make<TableViewStyle>},
        {"OutlineViewStyle", make<OutlineViewStyle>},
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
