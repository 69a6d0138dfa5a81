#pragma once

namespace tidepool {

/// A control whose value can be wrong; its cell shows that.
class Validating {
public:
    virtual ~Validating() = default;
    virtual bool isValid() const = 0;
};

} // namespace tidepool
