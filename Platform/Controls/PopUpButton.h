#pragma once

#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PopUpButtonCell.h"
#include "Platform/Controls/PushButton.h"
#include "Platform/Controls/TypeAhead.h"

#include <QPointer>

#include <memory>

namespace platform {

class MenuList;

/// A button with a menu, of which it shows the selected item; or, when it pulls down, a menu of commands
/// below a title. The pointer, Space, Return and F4 open the menu; the arrow keys and the beginning of a
/// title select without it. An item that the user chooses is selected; then it sends its own action or, if it
/// has none, the button does. Main thread.
class PopUpButton : public PushButton {
    Q_OBJECT

public:
    explicit PopUpButton(bool pullsDown = false, QWidget* parent = nullptr);
    ~PopUpButton() override;

    /// True if the first item is the title, which the menu does not show.
    bool pullsDown() const { return m_pullsDown; }

    /// Never null until `setMenu` is given null. Owned.
    Menu* menu() const { return m_menu; }

    /// Destroys the former menu. Selects the first item, unless the button pulls down.
    void setMenu(std::unique_ptr<Menu> menu);

    /// The items of the menu, without those of submenus.
    QList<MenuItem*> itemArray() const;

    /// Appends an item, after making a menu if there is none. The first item is selected, unless the button
    /// pulls down.
    MenuItem& addItem(const QString& title);

    /// Null for none.
    MenuItem* selectedItem() const { return qobject_cast<MenuItem*>(m_selected); }

    /// For an item of a submenu, the index of the item with that submenu. -1 for none.
    int indexOfSelectedItem() const;

    /// Empty for none.
    QString titleOfSelectedItem() const;

    /// Selects without sending an action. What is not in the menu or its submenus, or not an index, selects
    /// nothing.
    void selectItem(MenuItem* item);
    void selectItem(int index);

    /// What the button shows.
    virtual QString title() const;

    /// What names the button for assistive technology if nothing else does.
    virtual QString nameBesideTitle() const { return {}; }

    /// Opens the menu: with the selected item over the button, or below it when the button pulls down. A very
    /// long menu opens as a list that looks the same.
    void openMenu();

    bool isMenuOpen() const;

    void closeMenu();

    QSizeF intrinsicContentSize() const override;

public Q_SLOTS:
    /// Selects the next or previous enabled item, or else the last or first of all, and sends the button's
    /// action. Going back from nothing is fatal.
    void selectNextItem(QObject* sender = nullptr);
    void selectPreviousItem(QObject* sender = nullptr);

Q_SIGNALS:
    /// The user has selected an item, in whichever way, though it may be the one that was selected before.
    /// Precedes the action.
    void itemChosen(platform::MenuItem* item);

protected:
    /// For subclasses with a cell of their own.
    PopUpButton(std::unique_ptr<PopUpButtonCell> cell, QWidget* parent);

    /// A title that stays, whatever is selected; absent for that of an item. With it the menu shows all
    /// items.
    void setStandingTitle(std::optional<QString> title);

    /// Whether a press opens the menu. Otherwise it is one like that of other buttons and sends the action;
    /// F4, Down and the menu key still open the menu.
    virtual bool pressOpensMenu() const { return true; }

    StyledControlState controlFlags() const override;
    void performClick() override;
    void beginTracking(QMouseEvent& event) override;
    bool popUpMenu(const QMouseEvent& press) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    MenuItem* firstItem() const;
    QList<MenuItem*> itemsToMeasure() const;
    void makeRoomForMark(MenuItem& item) const;
    void selectFirstItem();
    void itemAdded(MenuItem& item);
    void itemsChanged();
    void hideTitleItem();
    int titleOverhang() const;
    void openList();
    bool isListOpen() const;
    void choose(MenuItem* item);
    void chooseAndSend(MenuItem* item);
    void finishChoice(MenuItem* item);
    void step(int from, int by);
    void selectTyped(const QString& text);

    const bool m_pullsDown;
    Menu* m_menu = nullptr;
    QPointer<QAction> m_selected;   // what is left of an item that is being destroyed is no item
    QPointer<QAction> m_titleItem;  // of one that pulls down, whose menu does not show it
    bool m_isTitleItemShown = true; // unless it is the title
    std::optional<QString> m_standingTitle;
    TypeAhead m_typeAhead;
    QPointer<MenuList> m_list; // of a very long menu, since it was opened
};

} // namespace platform
