#include "Tidepool/Styles/SegmentedCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Styles/StyleValues.h"
#include "Tidepool/Styles/Styles.h"

namespace tidepool {

SegmentedCellStyle::SegmentedCellStyle() : m_segmentPadding(insets(0, 21, 0, 21)) {
    setFont(Styles::PropertiesTab::font());
    setTextColor(Styles::PropertiesTab::text);
    setSelectedTextColor(Styles::PropertiesTab::selectedText);
    setHighlightedTextColor(Styles::PropertiesTab::highlightedText);
    setBackgroundColor(QColor(Styles::BaseStyles::clear));
    setBezelImages({{normal, WindowTabImages::normal},
                    {selected, WindowTabImages::selected},
                    {highlighted, WindowTabImages::down}});
}

} // namespace tidepool
