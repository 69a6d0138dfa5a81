#include "Platform/Controls/ContextMenu.h"

#include "Platform/Controls/Menu.h"

#include <QPointer>
#include <QVariant>

namespace platform {

namespace {

constexpr auto key = "_platform_contextMenu";

} // namespace

Menu* contextMenu(const QWidget& widget) {
    return qobject_cast<Menu*>(widget.property(key).value<QPointer<QObject>>());
}

void setContextMenu(QWidget& widget, std::unique_ptr<Menu> menu) {
    delete contextMenu(widget);
    widget.setProperty(key, QVariant::fromValue(QPointer<QObject>(menu.get())));
    widget.setContextMenuPolicy(menu != nullptr ? Qt::CustomContextMenu : Qt::DefaultContextMenu);
    if (menu == nullptr)
        return;
    QObject::connect(&widget, &QWidget::customContextMenuRequested, menu.get(),
                     [menu = menu.get(), &widget](QPoint point) { menu->popUp(nullptr, point, widget); });
    // A child, which goes with the widget, and yet a window of its own.
    menu->setParent(&widget, menu->windowFlags());
    menu.release();
}

} // namespace platform
