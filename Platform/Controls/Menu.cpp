#include "Platform/Controls/Menu.h"

#include "Platform/Controls/MenuStyle.h"
#include "Platform/Controls/PressKey.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QStyleOptionMenuItem>

#include <utility>

namespace platform {

namespace {

bool isValid(MenuItem& item) {
    QObject* const responder = targetForAction(*item.action, item.target);
    if (responder == nullptr)
        return false;
    const QMetaObject& type = *responder->metaObject();
    const QMetaMethod validate = type.method(type.indexOfMethod("validateMenuItem(QObject*)"));
    bool isValid = true;
    if (validate.isValid())
        validate.invoke(responder, Qt::DirectConnection, Q_RETURN_ARG(bool, isValid), Q_ARG(QObject*, &item));
    return isValid;
}

bool isEnabledByUse(const MenuItem& item) {
    return item.action && item.submenu() == nullptr;
}

/// Closes an open menu that its view can no longer use. One that is the view's child is disabled with it, and
/// would keep all input to itself.
class ClosesWithItsView : public QObject {
public:
    ClosesWithItsView(QMenu& menu, QWidget& view) : QObject(&menu), m_menu(menu), m_view(view) {
        view.installEventFilter(this);
        connect(&view, &QObject::destroyed, this, [this] { m_menu.close(); });
        connect(&menu, &QMenu::aboutToHide, this, &QObject::deleteLater);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        const bool isDisabled = event->type() == QEvent::EnabledChange && !m_view.isEnabled();
        if (isDisabled || event->type() == QEvent::Hide)
            m_menu.close();
        return false;
    }

private:
    QMenu& m_menu;
    QWidget& m_view;
};

} // namespace

Menu::Menu(const QString& title) {
    setTitle(title);
    MenuStyle::apply(*this);
    connect(this, &QMenu::aboutToShow, this, &Menu::updateItems);
    // The keys of an item that nobody answered to when the menu was open last may find somebody later.
    connect(this, &QMenu::aboutToHide, this, &Menu::enableAllItems);
}

MenuItem& Menu::addItem(std::unique_ptr<MenuItem> item) {
    item->setParent(this);
    addAction(item.get());
    return *item.release();
}

MenuItem& Menu::addItem(const QString& title, std::optional<Selector> action, const QString& key) {
    return addItem(std::make_unique<MenuItem>(title, action, key, Qt::ControlModifier));
}

QList<MenuItem*> Menu::items() const {
    QList<MenuItem*> items;
    const auto all = actions();
    for (QAction* action : all)
        if (auto* const item = qobject_cast<MenuItem*>(action))
            items << item;
    return items;
}

void Menu::removeAllItems() {
    clear();
}

void Menu::updateItems() {
    m_typeAhead = {};
    if (m_delegate)
        m_delegate->menuNeedsUpdate(*this);
    if (!m_autoenablesItems)
        return;
    for (MenuItem* item : items())
        if (isEnabledByUse(*item))
            item->setEnabled(isValid(*item));
}

void Menu::enableAllItems() {
    if (!m_autoenablesItems)
        return;
    for (MenuItem* item : items())
        if (isEnabledByUse(*item))
            item->setEnabled(true);
}

Menu* Menu::supermenu() const {
    const auto* const item = qobject_cast<MenuItem*>(menuAction());
    return item != nullptr ? item->enclosingMenu() : nullptr;
}

void Menu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenu::initStyleOption(option, action);
    const auto* const item = qobject_cast<const MenuItem*>(action);
    option->state.setFlag(QStyle::State_NoChange, item != nullptr && item->state() == MenuItem::State::mixed);
}

void Menu::keyPressEvent(QKeyEvent* event) {
    if (event->isAutoRepeat() && isPressKey(*event))
        return; // still held from opening the menu
    if (!m_typeAhead.takes(*event)) {
        const QScopedValueRollback handling(m_isHandlingInput, true);
        QMenu::keyPressEvent(event);
        return;
    }
    QStringList titles;
    const auto all = items();
    for (const MenuItem* item : all)
        titles << (item->isEnabled() && item->isVisible() ? item->title() : QString());
    const auto index = m_typeAhead.find(event->text(), titles, all.indexOf(activeAction()));
    if (index >= 0)
        setActiveAction(all[index]);
}

void Menu::mouseReleaseEvent(QMouseEvent* event) {
    const QScopedValueRollback handling(m_isHandlingInput, true);
    QMenu::mouseReleaseEvent(event);
}

void popUp(QMenu& menu, QAction* item, QPoint point, QWidget& view) {
    if (!view.isEnabled())
        return;
    menu.setLayoutDirection(view.layoutDirection());
    menu.setNoReplayFor(&view);
    const bool isRightToLeft = menu.isRightToLeft();
    const int margin = menu.style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, &menu);
    if (item != nullptr)
        point -= QPoint(isRightToLeft ? -margin : margin, margin);
    const QPointer<QAction> shown(item);
    if (isRightToLeft) {
        // What its delegate puts into it decides how wide it is.
        if (auto* const filled = qobject_cast<Menu*>(&menu))
            filled->updateItems();
        point.rx() -= menu.sizeHint().expandedTo(menu.minimumSize()).width();
    }
    new ClosesWithItsView(menu, view);
    menu.popup(view.mapToGlobal(point), shown);
    if (shown)
        menu.setActiveAction(shown);
}

QPoint below(const QWidget& view, int gap) {
    return {view.isRightToLeft() ? view.width() : 0, view.height() + gap};
}

QList<MenuItem*> flattenedItems(const Menu& menu) {
    QList<MenuItem*> items;
    const auto own = menu.items();
    for (MenuItem* item : own) {
        items << item;
        if (item->submenu() != nullptr)
            items << flattenedItems(*item->submenu());
    }
    return items;
}

} // namespace platform
