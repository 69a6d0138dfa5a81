#include "Tidepool/BaseStyle.h"

#include "Tidepool/TPColors.h"

namespace tidepool {

BaseStyle::BaseStyle() : m_backgroundColor(TPColors::Background::normal) {}

} // namespace tidepool
