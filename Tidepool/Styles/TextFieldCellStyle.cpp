#include "Tidepool/Styles/TextFieldCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

TextFieldCellStyle::TextFieldCellStyle() {
    setHighlightedTextColor(Styles::TextInput::highlightedText);
    setInvalidTextColor(Styles::Control::error);
    setAlignmentRectInsets(insets(2, 2, 2, 2));
    setEdgeInsets(insets(2, 2, 2, 2));
    setBezelImages({{normal, TPImages::textField},
                    {focused, TPImages::textFieldFocus},
                    {invalid, TPImages::textFieldError},
                    {focused | invalid, TPImages::textFieldError}});
}

HeaderTextFieldStyle::HeaderTextFieldStyle() {
    setBezelImages({{normal, TextFieldImages::tableheader},
                    {focused, TPImages::textFieldFocus},
                    {invalid, TPImages::textFieldError},
                    {focused | invalid, TPImages::textFieldError}});
}

SearchFieldCellStyle::SearchFieldCellStyle() {
    setBezelImages({{normal, SearchFieldImages::normal}, {focused, SearchFieldImages::focus}});
}

TextLabelCellStyle::TextLabelCellStyle() {
    setTextColor(Styles::Label::text);
    setDisabledTextColor(Styles::Label::disabledText);
    setPadding({});
    setBezelImages({});
}

} // namespace tidepool
