#include "Tidepool/Styles/TableViewStyle.h"

#include "Tidepool/Styles/Styles.h"

namespace tidepool {

TableViewStyle::TableViewStyle()
    : m_rowBackgroundColor(Styles::TableRow::background),
      m_selectedRowBackgroundColor(Styles::TableRow::selection),
      m_headerBackgroundColor(Styles::TableHeader::background) {
    setBackgroundColor(m_rowBackgroundColor);
    setTextColor(Styles::TableRow::text);
    setSelectedTextColor(Styles::TableRow::selectedText);
}

} // namespace tidepool
