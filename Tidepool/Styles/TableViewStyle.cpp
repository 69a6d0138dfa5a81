#include "Tidepool/Styles/TableViewStyle.h"

namespace tidepool {

TableViewStyle::TableViewStyle() {
    setBackgroundColor(rowBackgroundColor());
    setTextColor(Styles::TableRow::text);
    setSelectedTextColor(Styles::TableRow::selectedText);
}

} // namespace tidepool
