#pragma once

namespace platform {

struct AppcastItem;

/// Follows the standard dialogs.
class SPUStandardUserDriverDelegate {
public:
    virtual ~SPUStandardUserDriverDelegate() = default;

    /// A dialog that offers `update` is about to be shown.
    virtual void standardUserDriverWillShowUpdate(const AppcastItem& update) = 0;
};

} // namespace platform
