#include "Tidepool/Styles/StyleSet.h"

#include "Platform/Core/Environment.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace tidepool {

namespace {

/// Tells widgets that move into the reach of a set or out of it.
class MoveFilter : public QObject {
public:
    MoveFilter() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ParentChange && watched->isWidgetType())
            platform::notifyStyleChange(static_cast<QWidget&>(*watched));
        return false;
    }

    /// One filter, which lives while there is a set, and so costs nothing without.
    static std::shared_ptr<MoveFilter> shared() {
        static std::weak_ptr<MoveFilter> living;
        auto filter = living.lock();
        if (!filter)
            living = filter = std::make_shared<MoveFilter>();
        return filter;
    }
};

struct AppliedSet {
    std::shared_ptr<const StyleSet> set;
    std::shared_ptr<const MoveFilter> filter;
};

using Environment = platform::Environment<AppliedSet>;

} // namespace

void StyleSet::apply(QWidget& root, std::shared_ptr<const StyleSet> set) {
    if (set)
        Environment::set(root, {std::move(set), MoveFilter::shared()});
    else
        Environment::unset(root);
    platform::notifyStyleChange(root);
}

const StyleSet* StyleSet::of(const QWidget* widget) {
    const AppliedSet* applied = Environment::find(widget);
    return applied != nullptr ? applied->set.get() : nullptr;
}

std::shared_ptr<const StyleSet> makeStyleSet(platform::Appearance appearance,
                                             const std::optional<QColor>& accent) {
    return std::make_shared<StyleSet>(StyleLook{appearance, accent});
}

} // namespace tidepool
