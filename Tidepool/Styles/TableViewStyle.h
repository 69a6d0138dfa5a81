#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Tables.
class TableViewStyle : public ControlStyle {
public:
    TableViewStyle();

    virtual const QColor& rowBackgroundColor() const { return m_rowBackgroundColor; }

    void setRowBackgroundColor(QColor value) { m_rowBackgroundColor = value; }

    virtual const QColor& selectedRowBackgroundColor() const { return m_selectedRowBackgroundColor; }

    void setSelectedRowBackgroundColor(QColor value) { m_selectedRowBackgroundColor = value; }

    virtual const QColor& headerBackgroundColor() const { return m_headerBackgroundColor; }

    void setHeaderBackgroundColor(QColor value) { m_headerBackgroundColor = value; }

private:
    QColor m_rowBackgroundColor;
    QColor m_selectedRowBackgroundColor;
    QColor m_headerBackgroundColor;
};

/// Outlines look like tables.
class OutlineViewStyle : public TableViewStyle {};

} // namespace tidepool
