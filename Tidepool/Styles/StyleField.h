#pragma once

#include <type_traits>

namespace tidepool {

/// What the accessor of a field returns: numbers and enumerations by value, anything else by reference.
template <typename T>
using StyleFieldValue = std::conditional_t<std::is_scalar_v<T>, T, const T&>;

} // namespace tidepool

/// A field of a style: an accessor that makers can override, a setter, and the member that both use, made
/// from the remaining arguments. A macro, since a name has to become three. What follows it is public.
///
///     TP_STYLE_FIELD(QColor, textColor, setTextColor, Styles::Control::text)
#define TP_STYLE_FIELD(Type, name, setter, ...)                                                              \
public:                                                                                                      \
    virtual ::tidepool::StyleFieldValue<Type> name() const {                                                 \
        return m_##name;                                                                                     \
    }                                                                                                        \
    void setter(const Type& value) {                                                                         \
        m_##name = value;                                                                                    \
    }                                                                                                        \
                                                                                                             \
private:                                                                                                     \
    Type m_##name = Type(__VA_ARGS__);                                                                       \
                                                                                                             \
public:
