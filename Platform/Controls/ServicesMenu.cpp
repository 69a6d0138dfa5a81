#include "Platform/Controls/ServicesMenu.h"

#include "Platform/Controls/Menu.h"

#include <QPointer>

namespace platform {

namespace {

QPointer<Menu>& current() {
    static QPointer<Menu> menu;
    return menu;
}

} // namespace

Menu* servicesMenu() {
    return current();
}

void setServicesMenu(Menu* menu) {
    current() = menu;
}

} // namespace platform
