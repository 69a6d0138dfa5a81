// How a pop-up button opens its menu, and what it does with keys.

#include "Platform/Controls/MenuList.h"
#include "Platform/Controls/MenuStyle.h"
#include "Platform/Controls/PopUpButton.h"
#include "Platform/Controls/PressKey.h"
#include "Platform/Core/FatalError.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <climits>
#include <cmath>

namespace platform {

namespace {

constexpr int menuGap = 2;

bool isSelectable(const MenuItem* item) {
    return item->isEnabled() && !item->isSeparator();
}

/// What a user can choose: an item with a submenu only opens it.
bool isChoice(const MenuItem* item) {
    return isSelectable(item) && item->submenu() == nullptr;
}

/// Null for none.
template <typename Iterator>
MenuItem* first(Iterator begin, Iterator end, bool (*condition)(const MenuItem*)) {
    const auto found = std::find_if(begin, end, condition);
    return found != end ? *found : nullptr;
}

} // namespace

void PopUpButton::selectNextItem(QObject*) {
    const auto items = itemArray();
    MenuItem* next = first(items.begin() + (indexOfSelectedItem() + 1), items.end(), isSelectable);
    if (next == nullptr)
        next = items.value(0);
    chooseAndSend(next);
}

void PopUpButton::selectPreviousItem(QObject*) {
    const int selected = indexOfSelectedItem();
    if (selected < 0)
        fatalError("selectPreviousItem: no item is selected");
    const auto items = itemArray();
    MenuItem* previous = first(items.rend() - selected, items.rend(), isSelectable);
    chooseAndSend(previous != nullptr ? previous : items.back());
}

void PopUpButton::step(int from, int by) {
    if (m_pullsDown)
        return;
    const auto items = itemArray();
    MenuItem* const item = by > 0 ? first(items.begin() + from, items.end(), isChoice)
                                  : first(items.rend() - from, items.rend(), isChoice);
    if (item != nullptr && item != m_selected)
        item->trigger();
}

void PopUpButton::selectTyped(const QString& text) {
    const auto items = itemArray();
    QStringList titles;
    for (const MenuItem* item : items)
        titles << (isChoice(item) ? item->title() : QString());
    const auto index = m_typeAhead.find(text, titles, indexOfSelectedItem());
    if (index >= 0 && index != indexOfSelectedItem())
        items[index]->trigger();
}

/// How far the menu reaches beyond the button, so that the item's title comes to lie over the button's.
int PopUpButton::titleOverhang() const {
    const QRectF bounds(rect());
    const CellContext own = context();
    const QRectF title = cell().titleRect(cell().drawingRect(bounds, own), own);
    const qreal inset = isRightToLeft() ? bounds.right() - title.right() : title.left();
    return MenuStyle::titleInset(*m_menu) - static_cast<int>(std::lround(inset));
}

void PopUpButton::openMenu() {
    if (m_menu == nullptr)
        return;
    if (MenuList::isBetterFor(*m_menu)) {
        openList();
        return;
    }
    auto* const item = itemArray().value(indexOfSelectedItem());
    if (m_pullsDown || item == nullptr) {
        m_menu->setMinimumWidth(width());
        popUp(*m_menu, below(*this, menuGap));
        return;
    }
    const int overhang = titleOverhang();
    m_menu->setMinimumWidth(width() + 2 * overhang);
    popUp(*m_menu,
          {isRightToLeft() ? width() + overhang : -overhang,
           (height() - m_menu->actionGeometry(item).height()) / 2},
          item);
}

void PopUpButton::openList() {
    if (!isEnabled() || isListOpen())
        return;
    Q_EMIT m_menu->aboutToShow(); // fills it and enables its items
    if (!m_list) {
        m_list = new MenuList(*m_menu, *this);
        connect(m_list, &ListPopup::closed, m_menu, &QMenu::aboutToHide);
        connect(m_list, &ListPopup::closed, this, qOverload<>(&QWidget::update));
        connect(m_list, &ListPopup::chosen, this, [this](int row) { m_list->itemOf(row)->trigger(); });
    }
    const QRect place(mapToGlobal(QPoint()), size());
    m_list->setCurrentRow(m_pullsDown ? -1 : m_list->rowOf(selectedItem()));
    if (m_pullsDown || m_list->currentRow() < 0) {
        m_list->openBeside(place.adjusted(0, 0, 0, menuGap), INT_MAX);
    } else {
        const int overhang = titleOverhang();
        m_list->openOver(place.adjusted(-overhang, 0, overhang, 0));
    }
    update();
}

bool PopUpButton::isListOpen() const {
    return m_list && m_list->isVisible();
}

bool PopUpButton::isMenuOpen() const {
    return isListOpen() || (m_menu != nullptr && m_menu->isVisible());
}

void PopUpButton::closeMenu() {
    if (m_list)
        m_list->close();
    if (m_menu != nullptr)
        m_menu->close();
}

void PopUpButton::keyPressEvent(QKeyEvent* event) {
    const bool opens = m_pullsDown || event->modifiers().testFlag(Qt::AltModifier);
    const auto count = static_cast<int>(itemArray().size());
    const int selected = indexOfSelectedItem();
    if (!m_pullsDown && m_typeAhead.takes(*event)) {
        selectTyped(event->text());
        return;
    }
    if (!pressOpensMenu() && isPressKey(*event)) {
        PushButton::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F4:
        if (!event->isAutoRepeat())
            openMenu();
        break;
    case Qt::Key_Down:
        opens ? openMenu() : step(selected + 1, 1);
        break;
    case Qt::Key_Up:
        opens ? openMenu() : step(selected < 0 ? count : selected, -1);
        break;
    case Qt::Key_Home:
        step(0, 1);
        break;
    case Qt::Key_End:
        step(count, -1);
        break;
    default:
        event->ignore();
    }
}

void PopUpButton::performClick() {
    pressOpensMenu() ? openMenu() : PushButton::performClick();
}

void PopUpButton::beginTracking(QMouseEvent& event) {
    pressOpensMenu() ? openMenu() : PushButton::beginTracking(event);
}

bool PopUpButton::popUpMenu(const QMouseEvent&) {
    return false;
}

void PopUpButton::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        openMenu();
    else
        event->ignore();
}

} // namespace platform
