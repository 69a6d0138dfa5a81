#pragma once

#include <functional>
#include <utility>

namespace platform {

/// A two-way connection to a value that somebody else owns: a getter and a setter, nothing more. Copies refer
/// to the same value; what the functions refer to must outlive them all.
template <typename T>
class Binding {
public:
    Binding(std::function<T()> get, std::function<void(const T&)> set)
        : m_get(std::move(get)), m_set(std::move(set)) {}

    /// A binding that always has `value` and ignores what is set.
    static Binding constant(T value) {
        return {[value = std::move(value)] { return value; }, [](const T&) {}};
    }

    T get() const { return m_get(); }

    void set(const T& value) const { m_set(value); }

private:
    std::function<T()> m_get;
    std::function<void(const T&)> m_set;
};

} // namespace platform
