#include "Tidepool/Styles/TextFieldCellStyle.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

TextFieldCellStyle::TextFieldCellStyle() {
    setHighlightedTextColor(Styles::Control::selectedText);
    setInvalidTextColor(Styles::Control::error);
    setAlignmentRectInsets(insets(2, 2, 2, 2));
    setEdgeInsets(insets(2, 2, 2, 2));
    setBezelImages({{normal, TPImages::textField},
                    {focused, TPImages::textFieldFocus},
                    {invalid, TPImages::textFieldError},
                    {focused | invalid, TPImages::textFieldError}});
}

HeaderTextFieldStyle::HeaderTextFieldStyle() {
    setBezelImages({{normal, Images::tpkTextfieldTableheader},
                    {focused, TPImages::textFieldFocus},
                    {invalid, TPImages::textFieldError},
                    {focused | invalid, TPImages::textFieldError}});
}

SearchFieldCellStyle::SearchFieldCellStyle() {
    setBezelImages({{normal, Images::tpkSearchfield}, {focused, Images::tpkSearchfieldFocus}});
}

TextLabelCellStyle::TextLabelCellStyle() {
    setTextColor(Styles::Label::text);
    setDisabledTextColor(Styles::Label::disabledText);
    setPadding({});
    setBezelImages({});
}

} // namespace tidepool
