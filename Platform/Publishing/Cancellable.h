#pragma once

#include <functional>
#include <utility>

namespace platform {

/// Ends something when it is cancelled or destroyed, once. Whoever wants it to last keeps this.
class [[nodiscard]] AnyCancellable {
public:
    AnyCancellable() = default;

    explicit AnyCancellable(std::function<void()> cancel) : m_cancel(std::move(cancel)) {}

    ~AnyCancellable() { cancel(); }

    AnyCancellable(AnyCancellable&& other) noexcept : m_cancel(std::exchange(other.m_cancel, nullptr)) {}

    AnyCancellable& operator=(AnyCancellable&& other) noexcept {
        if (this != &other) {
            cancel();
            m_cancel = std::exchange(other.m_cancel, nullptr);
        }
        return *this;
    }

    void cancel() {
        if (const auto work = std::exchange(m_cancel, nullptr))
            work();
    }

private:
    std::function<void()> m_cancel;
};

} // namespace platform
