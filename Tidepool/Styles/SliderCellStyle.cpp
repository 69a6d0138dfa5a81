#include "Tidepool/Styles/SliderCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Styles/StyleValues.h"
#include "Tidepool/Styles/Styles.h"

namespace tidepool {

SliderCellStyle::SliderCellStyle()
    : m_barImages{{normal, SliderImages::alley}, {highlighted, SliderImages::normal}},
      m_knobImages{{normal, SliderImages::handle},
                   {highlighted, SliderImages::handleDown},
                   {mixed, SliderImages::handleMulti}} {}

} // namespace tidepool
