#include "Tidepool/Styles/StyleSet.h"

#include "Platform/Core/Environment.h"

#include <QWidget>

#include <utility>

namespace tidepool {

namespace {

using Environment = platform::Environment<std::shared_ptr<const StyleSet>>;

} // namespace

void StyleSet::apply(QWidget& root, std::shared_ptr<const StyleSet> set) {
    if (set)
        Environment::set(root, std::move(set));
    else
        Environment::unset(root);
    const auto refresh = [](QWidget& widget) {
        widget.updateGeometry();
        widget.update();
    };
    refresh(root);
    for (QWidget* const widget : root.findChildren<QWidget*>())
        refresh(*widget);
}

const StyleSet* StyleSet::of(const QWidget* widget) {
    const std::shared_ptr<const StyleSet>* set = Environment::find(widget);
    return set != nullptr ? set->get() : nullptr;
}

std::shared_ptr<const StyleSet> makeStyleSet(platform::Appearance appearance,
                                             const std::optional<QColor>& accent) {
    return std::make_shared<StyleSet>(StyleLook{appearance, accent});
}

} // namespace tidepool
