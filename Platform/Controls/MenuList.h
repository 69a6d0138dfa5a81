#pragma once

#include "Platform/Controls/ListPopup.h"
#include "Platform/Controls/MenuItem.h"
#include "Platform/Controls/TypeAhead.h"

#include <memory>

namespace platform {

class Menu;
class MenuRows;

/// The items of a menu that is too long for it in a list that looks the same, except that the lines of
/// separators lie between the items. It follows the menu's changes.
class MenuList : public ListPopup {
    Q_OBJECT

public:
    /// True if the menu opens faster as a list, and the list can show all that it has.
    static bool isBetterFor(const Menu& menu);

    MenuList(Menu& menu, QWidget& view);
    ~MenuList() override;

    /// Null for none.
    MenuItem* itemOf(int row) const;

    /// -1 for none.
    int rowOf(const MenuItem* item) const;

protected:
    void otherKey(QKeyEvent& event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    MenuList(Menu& menu, std::unique_ptr<MenuRows> rows, QWidget& view);
    void updateRows();

    Menu& m_menu;
    const std::unique_ptr<MenuRows> m_rows;
    QTimer m_update;
    TypeAhead m_typeAhead;
};

} // namespace platform
