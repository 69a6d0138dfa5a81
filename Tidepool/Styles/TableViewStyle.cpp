#include "Tidepool/Styles/TableViewStyle.h"

namespace tidepool {

TableViewStyle::TableViewStyle() {
    setBackgroundColor(Styles::TableRow::background);
    setTextColor(Styles::TableRow::text);
}

} // namespace tidepool
