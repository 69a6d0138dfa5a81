#pragma once

#include "Platform/Controls/Cell.h"
#include "Platform/Core/FatalError.h"
#include "Platform/Graphics/Appearance.h"
#include "Tidepool/Styles/StyleReference.h"
#include "Tidepool/Styles/Validating.h"

#include <concepts>
#include <memory>
#include <utility>

namespace tidepool {

/// A cell of the kind `Base` that takes its look from a style of class `S`: its own, else that of the style
/// set around its control, else the one that all share.
template <std::derived_from<BaseStyle> S, std::derived_from<platform::Cell> Base>
class StyledCell : public Base {
public:
    using Base::Base;

    const S& style() const override { return m_style.template get<S>(this->controlView()); }

    /// Gives the cell a style of its own; null for none. A style of another class than the cell's stops the
    /// program.
    void setStyle(std::shared_ptr<const S> style) {
        if (style && !takes(*style))
            platform::fatalError("A cell was given a style of another class");
        m_style.set(std::move(style));
        if (QWidget* const view = this->controlView())
            platform::notifyStyleChange(*view);
    }

    bool isSelected() const { return m_selected; }

    /// Selected beside being on or off, as the chosen one of several is.
    void setSelected(bool selected) { this->set(m_selected, selected); }

    StyledControlState controlState(StyledControlState ofControl) const override {
        const StyledControlState state =
            Base::controlState(ofControl).with(StyledControlState::selected, m_selected);
        return isInvalid(this->controlView()) ? state.with(StyledControlState::invalid) : state;
    }

    QColor controlTextColor(const platform::CellContext& context) const override {
        return styleOf(context).textColor();
    }

protected:
    static const S& styleOf(const platform::CellContext& context) {
        return static_cast<const S&>(context.style);
    }

    virtual bool takes(const BaseStyle& style) const { return dynamic_cast<const S*>(&style) != nullptr; }

    const StyleReference& styleReference() const { return m_style; }

private:
    StyleReference m_style;
    bool m_selected = false;
};

/// A styled cell like `Base`, whose style is of the narrower class `S`.
template <typename S, typename Base>
class RestyledCell : public Base {
public:
    using Base::Base;

    const S& style() const override { return this->styleReference().template get<S>(this->controlView()); }

    void setStyle(std::shared_ptr<const S> style) { Base::setStyle(std::move(style)); }

protected:
    static const S& styleOf(const platform::CellContext& context) {
        return static_cast<const S&>(context.style);
    }

    bool takes(const BaseStyle& style) const override { return dynamic_cast<const S*>(&style) != nullptr; }
};

} // namespace tidepool
