#include "Tidepool/Styles/BaseStyle.h"

#include "Tidepool/Styles/Styles.h"

namespace tidepool {

BaseStyle::BaseStyle() : m_backgroundColor(Styles::BaseStyles::background) {}

} // namespace tidepool
