#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Text fields.
class TextFieldCellStyle : public ControlStyle {
public:
    TextFieldCellStyle();

    TP_STYLE_FIELD(QColor, placeholderTextColor, setPlaceholderTextColor, Styles::TextInput::placeholder)
    TP_STYLE_FIELD(QColor, placeholderBackground, setPlaceholderBackground, Styles::BaseStyles::clear)
    TP_STYLE_FIELD(QMarginsF, padding, setPadding, 6, 2, 6, 2)
};

/// Text fields in the header of a table.
class HeaderTextFieldStyle : public TextFieldCellStyle {
public:
    HeaderTextFieldStyle();
};

/// Search fields.
class SearchFieldCellStyle : public TextFieldCellStyle {
public:
    SearchFieldCellStyle();
};

/// Labels, which draw no frame.
class TextLabelCellStyle : public TextFieldCellStyle {
public:
    TextLabelCellStyle();
};

/// Text in the rows of a table.
class TableRowLabelCellStyle : public TextFieldCellStyle {};

/// Text in the group rows of a table.
class TableGroupLabelCellStyle : public TextFieldCellStyle {};

} // namespace tidepool
