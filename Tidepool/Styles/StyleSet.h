#pragma once

#include "Tidepool/Styles/BaseStyle.h"

#include <concepts>
#include <map>
#include <memory>
#include <typeindex>

class QWidget;

namespace tidepool {

/// The styles of a window or of a part of it, one for each style class. Controls without a style of their own
/// take theirs from the set of their nearest ancestor that has one, else the style that all share. A set is
/// filled and then only read. Main thread.
class StyleSet {
public:
    /// Replaces the style of the class `S`.
    template <std::derived_from<BaseStyle> S>
    void set(std::shared_ptr<const S> style) {
        m_styles.insert_or_assign(typeid(S), std::move(style));
    }

    /// Null if the set has no style of the class.
    template <std::derived_from<BaseStyle> S>
    const S* get() const {
        const auto style = m_styles.find(typeid(S));
        return style == m_styles.end() ? nullptr : static_cast<const S*>(style->second.get());
    }

    /// Gives `root` and everything in it this set, and shows it; null takes it away.
    static void apply(QWidget& root, std::shared_ptr<const StyleSet> set);

    /// The set that holds for `widget`, or null.
    static const StyleSet* of(const QWidget* widget);

private:
    std::map<std::type_index, std::shared_ptr<const BaseStyle>> m_styles;
};

} // namespace tidepool
