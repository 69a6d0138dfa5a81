#include "Tidepool/Styles/TextFieldCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"
#include "Tidepool/Styles/Styles.h"

namespace tidepool {

TextFieldCellStyle::TextFieldCellStyle()
    : m_placeholderTextColor(Styles::TextInput::placeholder),
      m_placeholderBackground(QColor(Styles::BaseStyles::clear)),
      m_padding(insets(2, 6, 2, 6)) {
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
