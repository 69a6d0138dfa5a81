#pragma once

class QWidget;

namespace tidepool {

/// A control whose value can be wrong; its cell shows that.
class Validating {
public:
    virtual ~Validating() = default;
    virtual bool isValid() const = 0;
};

/// True if `view` validates its value and finds it not valid. Null is none.
bool isInvalid(const QWidget* view);

} // namespace tidepool
