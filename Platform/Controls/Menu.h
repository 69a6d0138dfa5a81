#pragma once

#include "Platform/Controls/MenuDelegate.h"
#include "Platform/Controls/MenuItem.h"
#include "Platform/Controls/TypeAhead.h"

#include <QMenu>
#include <QPointer>

#include <memory>
#include <optional>

namespace platform {

/// A menu of `MenuItem`s, which it owns, in the look of all our menus. A user may type the beginning of a
/// title. Main thread.
class Menu : public QMenu {
    Q_OBJECT

public:
    explicit Menu(const QString& title = {});

    MenuItem& addItem(std::unique_ptr<MenuItem> item);

    /// `key` counts with Control.
    MenuItem& addItem(const QString& title, std::optional<Selector> action = {}, const QString& key = {});

    QList<MenuItem*> items() const;

    /// Destroys the items.
    void removeAllItems();

    /// Asked before the menu is shown. Not owned.
    MenuDelegate* delegate() const { return m_delegate; }

    void setDelegate(MenuDelegate* delegate) { m_delegate = delegate; }

    /// On at first: while the menu is shown, exactly those items with an action are enabled that somebody
    /// answers to. Whoever answers may have a method `bool validateMenuItem(QObject* item)` to decide. Items
    /// without an action and those with a submenu keep their state, and so do all if this is off.
    bool autoenablesItems() const { return m_autoenablesItems; }

    void setAutoenablesItems(bool isOn) { m_autoenablesItems = isOn; }

    /// Does what precedes each showing: asks the delegate and enables the items.
    void updateItems();

    /// The menu that has this as a submenu; null for none.
    Menu* supermenu() const;

    /// True while the menu acts on a click or a key: then it must not be destroyed.
    bool isHandlingInput() const { return m_isHandlingInput; }

Q_SIGNALS:
    /// Around the action of an item of this menu or of its submenus, also if the item has no action.
    void willSendAction(platform::MenuItem* item);
    void didSendAction(platform::MenuItem* item);

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void enableAllItems();

    QPointer<MenuDelegate> m_delegate;
    bool m_autoenablesItems = true;
    bool m_isHandlingInput = false;
    TypeAhead m_typeAhead;
};

/// Shows `menu` with `item`, or without one itself, with the corner above where lines begin at `point` of
/// `view`, in points, as far as the screen allows, and returns at once. A press on `view` then closes the
/// menu and is not passed on; so does disabling, hiding or destroying `view`. A disabled view opens nothing.
void popUp(QMenu& menu, QAction* item, QPoint point, QWidget& view);

/// Where a menu opens below `view`, in its coordinates: where lines begin, `gap` points under it.
QPoint below(const QWidget& view, int gap = 0);

/// All items of a menu and of its submenus, each item before those of its submenu.
QList<MenuItem*> flattenedItems(const Menu& menu);

} // namespace platform
