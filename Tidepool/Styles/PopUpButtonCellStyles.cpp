#include "Tidepool/Styles/PopUpButtonCellStyles.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

namespace {

/// What combo boxes, pop-up and pop-down buttons share: room for the shadow, and for the arrows at the right.
void setPopUpMetrics(ButtonCellStyle& style) {
    style.setAlignmentRectInsets(insets(3, 2, 3, 2));
    style.setEdgeInsets(insets(3, 0, 2, 12));
    style.setSelectedTextColor(style.textColor());
}

} // namespace

ComboBoxStyle::ComboBoxStyle() {
    setPopUpMetrics(*this);
    setTitleEdgeInsets(insets(3, 7, 2, 0));
    setFieldImage(Images::tpkCombobox);
    setArrowImages({{normal, Images::tpkComboboxUp}, {on, Images::tpkCombobox}});
}

MenuButtonCellStyle::MenuButtonCellStyle() {
    setPopUpMetrics(*this);
}

PopUpButtonCellStyle::PopUpButtonCellStyle() {
    setBezelImages({{normal, Images::tpkPopup}, {highlighted, Images::tpkPopupDown}});
}

StyledPopDownButtonCellStyle::StyledPopDownButtonCellStyle() {
    setBezelImages({{normal, Images::tpkPopdown}, {highlighted, Images::tpkPopdownDown}});
}

ToolPopUpButtonCellStyle::ToolPopUpButtonCellStyle() {
    setAlignmentRectInsets({});
    setEdgeInsets(insets(1, 1, 1, 1));
    setTitleEdgeInsets(insets(0, 4, 0, 14));
    setBezelImages({{normal, Images::tpkPopupTool}, {highlighted, Images::tpkPopupToolDown}});
}

} // namespace tidepool
