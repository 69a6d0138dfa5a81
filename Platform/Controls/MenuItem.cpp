#include "Platform/Controls/MenuItem.h"

#include "Platform/Controls/KeyEquivalent.h"
#include "Platform/Controls/Menu.h"

#include <algorithm>
#include <utility>

namespace platform {

MenuItem::MenuItem(const QString& title, std::optional<Selector> sentAction, const QString& key,
                   Qt::KeyboardModifiers modifiers)
    : action(sentAction) {
    setTitle(title);
    setShortcut(keyEquivalent(key, modifiers));
    connect(this, &QAction::triggered, this, &MenuItem::performWhenClosed);
}

MenuItem::~MenuItem() = default;

QString MenuItem::plainText(QString title) {
    std::replace_if(
        title.begin(), title.end(), [](QChar c) { return c.category() == QChar::Other_Control; }, u' ');
    return title.replace(u'&', QStringLiteral("&&"));
}

std::unique_ptr<MenuItem> MenuItem::separator() {
    return sectionHeader({});
}

std::unique_ptr<MenuItem> MenuItem::sectionHeader(const QString& title) {
    auto item = std::make_unique<MenuItem>(title);
    item->setSeparator(true);
    item->setEnabled(false);
    return item;
}

void MenuItem::setTitle(const QString& title) {
    m_title = title;
    setText(plainText(title));
}

void MenuItem::setState(State state) {
    m_state = state;
    setCheckable(true);
    setChecked(state == State::on);
}

void MenuItem::setSubmenu(std::unique_ptr<Menu> menu) {
    setMenu(menu.get());
    m_submenu = std::move(menu);
}

Menu* MenuItem::enclosingMenu() const {
    const auto widgets = associatedObjects();
    for (QObject* widget : widgets)
        if (auto* const menu = qobject_cast<Menu*>(widget))
            return menu;
    return nullptr;
}

void MenuItem::performWhenClosed() {
    // Undoes what an action does to its mark when it is triggered.
    if (isCheckable())
        setState(m_state);
    // Qt 6.4 still writes to a menu after it has told of a choice, and what the item does may destroy the
    // menu.
    const Menu* const menu = enclosingMenu();
    const bool isBusy = menu != nullptr && menu->isHandlingInput();
    QMetaObject::invokeMethod(this, &MenuItem::perform, isBusy ? Qt::QueuedConnection : Qt::DirectConnection);
}

void MenuItem::perform() {
    const QPointer<MenuItem> self(this);
    notify(&Menu::willSendAction);
    if (self && action)
        sendAction(*action, target, this);
    if (self)
        notify(&Menu::didSendAction);
}

void MenuItem::notify(void (Menu::*signal)(MenuItem*)) {
    QList<QPointer<Menu>> menus;
    for (auto* menu = enclosingMenu(); menu != nullptr; menu = menu->supermenu())
        menus << menu;
    const QPointer<MenuItem> self(this);
    for (const auto& menu : menus)
        if (menu && self)
            Q_EMIT(menu->*signal)(this);
}

} // namespace platform
