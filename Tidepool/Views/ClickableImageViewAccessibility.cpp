#include "Tidepool/Views/ClickableImageViewAccessibility.h"

#include "Platform/Controls/Accessibility.h"
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

} // namespace

void installClickableImageViewAccessibility() {
    platform::installAccessibility<ClickableImageView, ClickableImageViewInterface>();
}

} // namespace tidepool
