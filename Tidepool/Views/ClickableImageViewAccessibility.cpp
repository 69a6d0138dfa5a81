#include "Tidepool/Views/ClickableImageViewAccessibility.h"

#include "Tidepool/Views/ClickableImageView.h"

#include <QAccessibleWidget>

namespace tidepool {

namespace {

class ClickableImageViewInterface : public QAccessibleWidget {
public:
    explicit ClickableImageViewInterface(ClickableImageView& view)
        : QAccessibleWidget(&view, QAccessible::Button), m_view(view) {}

    QStringList actionNames() const override {
        return m_view.isEnabled() ? QStringList{pressAction()} : QStringList();
    }

    void doAction(const QString& name) override {
        if (actionNames().contains(name))
            m_view.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ClickableImageView& m_view;
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    auto* const view = className == QLatin1String("tidepool::ClickableImageView")
                           ? dynamic_cast<ClickableImageView*>(object)
                           : nullptr;
    return view != nullptr ? new ClickableImageViewInterface(*view) : nullptr;
}

} // namespace

void installClickableImageViewAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace tidepool
