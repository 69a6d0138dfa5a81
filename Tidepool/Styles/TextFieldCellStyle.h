#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Text fields.
class TextFieldCellStyle : public ControlStyle {
public:
    TextFieldCellStyle();

    virtual const QColor& placeholderTextColor() const { return m_placeholderTextColor; }

    void setPlaceholderTextColor(QColor value) { m_placeholderTextColor = value; }

    virtual const QColor& placeholderBackground() const { return m_placeholderBackground; }

    void setPlaceholderBackground(QColor value) { m_placeholderBackground = value; }

    virtual const QMarginsF& padding() const { return m_padding; }

    void setPadding(QMarginsF value) { m_padding = value; }

private:
    QColor m_placeholderTextColor;
    QColor m_placeholderBackground;
    QMarginsF m_padding;
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
