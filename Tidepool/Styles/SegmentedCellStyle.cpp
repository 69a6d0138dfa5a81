#include "Tidepool/Styles/SegmentedCellStyle.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

SegmentedCellStyle::SegmentedCellStyle() {
    setFont(Styles::PropertiesTab::font());
    setTextColor(Styles::PropertiesTab::text);
    setSelectedTextColor(Styles::Control::text);
    setBackgroundColor(Styles::BaseStyles::clear);
    setBezelImages({{normal, Images::tpkWindowTab},
                    {selected, Images::tpkWindowTabSelected},
                    {highlighted, Images::tpkWindowTabDown}});
}

} // namespace tidepool
