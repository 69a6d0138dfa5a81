#include "Tidepool/Styles/SegmentedCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

SegmentedCellStyle::SegmentedCellStyle() {
    setFont(Styles::PropertiesTab::font());
    setTextColor(Styles::PropertiesTab::text);
    setSelectedTextColor(Styles::PropertiesTab::selectedText);
    setHighlightedTextColor(Styles::PropertiesTab::highlightedText);
    setBackgroundColor(Styles::BaseStyles::clear);
    setBezelImages({{normal, WindowTabImages::normal},
                    {selected, WindowTabImages::selected},
                    {highlighted, WindowTabImages::down}});
}

} // namespace tidepool
