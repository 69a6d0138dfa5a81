#pragma once

#include "Tidepool/Styles/BaseStyle.h"

#include <concepts>
#include <map>
#include <memory>
#include <optional>
#include <typeindex>
#include <utility>

class QWidget;

namespace tidepool {

/// What the styles of a set have in common. Without an accent they keep the kit's blue.
struct StyleLook {
    platform::Appearance appearance;
    std::optional<QColor> accent{};
};

/// A new style for all controls of its class.
template <std::derived_from<BaseStyle> S>
std::shared_ptr<S> makeStyle(const StyleLook& look) {
    const platform::AppearanceScope scope(look.appearance);
    auto style = std::make_shared<S>();
    style->prepareToBeShared();
    style->setAppearanceName(look.appearance);
    if (look.accent)
        style->applyAccent(*look.accent);
    return style;
}

/// The styles of a window or of a part of it, one for each style class. Controls without a style of their own
/// take theirs from the set of their nearest ancestor that has one, else the style that all share. A set is
/// filled and then only read. Main thread.
class StyleSet {
public:
    /// A set that has nothing but what it is given.
    StyleSet() = default;

    /// A set that makes the style of each class when it is first asked for it.
    explicit StyleSet(const StyleLook& look) : m_look(look) {}

    /// Replaces the style of the class `S`.
    template <std::derived_from<BaseStyle> S>
    void set(std::shared_ptr<const S> style) {
        m_styles.insert_or_assign(typeid(S), std::move(style));
    }

    /// Null if the set has no style of the class.
    template <std::derived_from<BaseStyle> S>
    const S* get() const {
        auto style = m_styles.find(typeid(S));
        if constexpr (std::default_initializable<S>)
            if (style == m_styles.end() && m_look)
                style = m_styles.emplace(typeid(S), makeStyle<S>(*m_look)).first;
        return style == m_styles.end() ? nullptr : static_cast<const S*>(style->second.get());
    }

    /// Gives `root` and everything in it this set; null takes it away. Here and whenever a widget moves into
    /// the reach of a set or out of it, `platform::notifyStyleChange` tells the widgets.
    static void apply(QWidget& root, std::shared_ptr<const StyleSet> set);

    /// The set that holds for `widget`, or null.
    static const StyleSet* of(const QWidget* widget);

private:
    std::optional<StyleLook> m_look;
    mutable std::map<std::type_index, std::shared_ptr<const BaseStyle>> m_styles;
};

/// A set with the styles of all classes, a maker's too, made in `appearance` and, if there is one, with
/// `accent` in place of the kit's blue.
///
///     StyleSet::apply(*window, makeStyleSet(platform::Appearance::light, QColor(0xe0, 0x60, 0x20)));
std::shared_ptr<const StyleSet> makeStyleSet(platform::Appearance appearance,
                                             const std::optional<QColor>& accent = std::nullopt);

} // namespace tidepool
