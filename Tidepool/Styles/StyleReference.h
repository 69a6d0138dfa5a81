#pragma once

#include "Tidepool/Styles/ControlStyle.h"
#include "Tidepool/Styles/StyleSet.h"

#include <array>
#include <memory>
#include <utility>

namespace tidepool {

/// The style that all cells of a class share in the appearance in force: made on first use, and the one to
/// change for all of them before they are shown.
template <typename S>
S& sharedStyle() {
    static std::array<std::shared_ptr<S>, 2> styles;
    const platform::Appearance appearance = platform::currentAppearance();
    std::shared_ptr<S>& style = styles[static_cast<std::size_t>(appearance)];
    if (!style)
        style = makeStyle<S>({appearance});
    return *style;
}

/// Where a cell gets its style from. Main thread.
class StyleReference {
public:
    /// An own style; null for none.
    void set(std::shared_ptr<const ControlStyle> own) { m_own = std::move(own); }

    /// The own style if it is an `S`, else that of the style set around `view`, else the shared one.
    template <typename S>
    const S& get(const QWidget* view) const {
        if (const auto* own = dynamic_cast<const S*>(m_own.get()))
            return *own;
        if (const StyleSet* set = StyleSet::of(view))
            if (const S* style = set->get<S>())
                return *style;
        return sharedStyle<S>();
    }

private:
    std::shared_ptr<const ControlStyle> m_own;
};

} // namespace tidepool
