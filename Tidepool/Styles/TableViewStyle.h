#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Tables.
class TableViewStyle : public ControlStyle {
public:
    TableViewStyle();

    TP_STYLE_FIELD(QColor, rowBackgroundColor, setRowBackgroundColor, Styles::TableRow::background)
    TP_STYLE_FIELD(QColor, selectedRowBackgroundColor, setSelectedRowBackgroundColor,
                   Styles::Control::selection)
    TP_STYLE_FIELD(QColor, headerBackgroundColor, setHeaderBackgroundColor, Styles::TableHeader::background)

    void applyAccent(const QColor& accent) override {
        ControlStyle::applyAccent(accent);
        setSelectedRowBackgroundColor(accent);
    }
};

/// Outlines look like tables.
class OutlineViewStyle : public TableViewStyle {};

} // namespace tidepool
