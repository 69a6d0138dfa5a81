#include "Tidepool/Styles/Validating.h"

#include <QWidget>

#include <typeinfo>

namespace tidepool {

bool isInvalid(const QWidget* view) {
    // A type that validates nothing; the cast takes longer than all the rest of a state's look-up.
    static const std::type_info* plain = nullptr;
    if (view == nullptr || &typeid(*view) == plain)
        return false;
    const auto* validating = dynamic_cast<const Validating*>(view);
    if (validating == nullptr)
        plain = &typeid(*view);
    return validating != nullptr && !validating->isValid();
}

} // namespace tidepool
