#include "Tidepool/Styles/TableViewStyle.h"

namespace tidepool {

TableViewStyle::TableViewStyle() {
    setBackgroundColor(rowBackgroundColor());
    setTextColor(Styles::TableRow::text);
}

} // namespace tidepool
