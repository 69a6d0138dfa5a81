#include "Tidepool/BaseStyle.h"

#include "Tidepool/Styles.h"

namespace tidepool {

BaseStyle::BaseStyle() : m_backgroundColor(Styles::BaseStyles::background) {}

} // namespace tidepool
