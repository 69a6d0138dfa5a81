#include "Tidepool/SliderCellStyle.h"

#include "Tidepool/ControlAssets.h"
#include "Tidepool/StyleValues.h"
#include "Tidepool/Styles.h"

namespace tidepool {

SliderCellStyle::SliderCellStyle()
    : m_barImages{{normal, SliderImages::alley}, {highlighted, SliderImages::normal}},
      m_knobImages{{normal, SliderImages::handle},
                   {highlighted, SliderImages::handleDown},
                   {mixed, SliderImages::handleMulti}} {}

} // namespace tidepool
