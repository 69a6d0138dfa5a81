#include "Platform/Controls/PopUpButton.h"

#include "Platform/Controls/MenuStyle.h"
#include "Platform/Controls/PopUpButtonAccessibility.h"
#include "Platform/Core/FatalError.h"
#include "Platform/Graphics/SystemFont.h"

#include <QAccessible>
#include <QActionEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

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

PopUpButton::PopUpButton(bool pullsDown, QWidget* parent)
    : PopUpButton(std::make_unique<PopUpButtonCell>(pullsDown), parent) {
    setFont(systemFont(13));
}

PopUpButton::PopUpButton(std::unique_ptr<PopUpButtonCell> cell, QWidget* parent)
    : PushButton({}, std::move(cell), parent),
      m_pullsDown(static_cast<PopUpButtonCell&>(this->cell()).pullsDown()) {
    installPopUpButtonAccessibility();
    setMenu(std::make_unique<Menu>());
}

PopUpButton::~PopUpButton() {
    delete std::exchange(m_menu, nullptr);
}

void PopUpButton::setMenu(std::unique_ptr<Menu> menu) {
    delete std::exchange(m_menu, nullptr);
    m_selected = nullptr;
    m_menu = menu.release();
    PushButton::setMenu(m_menu);
    if (m_menu != nullptr) {
        // A child, which goes with the button, and yet a window of its own.
        m_menu->setParent(this, m_menu->windowFlags());
        m_menu->installEventFilter(this);
        connect(m_menu, &Menu::willSendAction, this, &PopUpButton::choose);
        connect(m_menu, &Menu::didSendAction, this, &PopUpButton::finishChoice);
        for (MenuItem* item : m_menu->items())
            makeRoomForMark(*item);
        selectFirstItem();
    }
    itemsChanged();
}

QList<MenuItem*> PopUpButton::itemArray() const {
    return m_menu != nullptr ? m_menu->items() : QList<MenuItem*>();
}

MenuItem& PopUpButton::addItem(const QString& title) {
    if (m_menu == nullptr)
        setMenu(std::make_unique<Menu>());
    return m_menu->addItem(title);
}

int PopUpButton::indexOfSelectedItem() const {
    MenuItem* item = selectedItem();
    while (item != nullptr && item->enclosingMenu() != m_menu)
        item = item->enclosingMenu() != nullptr ? qobject_cast<MenuItem*>(item->enclosingMenu()->menuAction())
                                                : nullptr;
    return static_cast<int>(itemArray().indexOf(item));
}

QString PopUpButton::titleOfSelectedItem() const {
    return selectedItem() != nullptr ? selectedItem()->title() : QString();
}

void PopUpButton::selectItem(MenuItem* item) {
    if (selectedItem() != nullptr && !m_pullsDown)
        selectedItem()->setState(MenuItem::State::off);
    const bool isKnown = m_menu != nullptr && flattenedItems(*m_menu).contains(item);
    m_selected = isKnown ? item : nullptr;
    if (isKnown && !m_pullsDown)
        item->setState(MenuItem::State::on);
    itemsChanged();
}

void PopUpButton::selectItem(int index) {
    selectItem(itemArray().value(index));
}

void PopUpButton::setStandingTitle(std::optional<QString> title) {
    m_standingTitle = std::move(title);
    itemsChanged();
}

QString PopUpButton::title() const {
    if (m_standingTitle)
        return *m_standingTitle;
    const auto items = itemArray();
    return m_pullsDown ? (items.isEmpty() ? QString() : items.front()->title()) : titleOfSelectedItem();
}

void PopUpButton::makeRoomForMark(MenuItem& item) const {
    if (!m_pullsDown && !item.isSeparator())
        item.setState(item.state());
}

/// Where there is a choice, something is chosen.
void PopUpButton::selectFirstItem() {
    const auto items = itemArray();
    const auto first = std::find_if_not(items.begin(), items.end(), std::mem_fn(&QAction::isSeparator));
    if (!m_pullsDown && first != items.end())
        selectItem(*first);
}

void PopUpButton::itemAdded(MenuItem& item) {
    makeRoomForMark(item);
    const auto items = itemArray();
    if (std::count_if(items.begin(), items.end(), std::not_fn(std::mem_fn(&QAction::isSeparator))) == 1)
        selectFirstItem();
}

void PopUpButton::hideTitleItem() {
    MenuItem* const first = m_pullsDown && !m_standingTitle ? itemArray().value(0) : nullptr;
    if (first == m_titleItem)
        return;
    // Both are told of before they change, for each change comes back here.
    const QPointer<QAction> former = std::exchange(m_titleItem, first);
    const bool wasShown = std::exchange(m_isTitleItemShown, first != nullptr && first->isVisible());
    if (qobject_cast<MenuItem*>(former) != nullptr)
        former->setVisible(wasShown);
    if (first != nullptr)
        first->setVisible(false);
}

void PopUpButton::itemsChanged() {
    hideTitleItem();
    updateGeometry();
    const QString text = title().replace(u'&', QStringLiteral("&&"));
    if (text == this->text())
        return;
    setText(text);
    QAccessibleValueChangeEvent event(this, title());
    QAccessible::updateAccessibility(&event);
}

bool PopUpButton::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_menu)
        return PushButton::eventFilter(watched, event);
    const auto* const change = dynamic_cast<QActionEvent*>(event);
    if (change == nullptr)
        return false;
    if (auto* const item = qobject_cast<MenuItem*>(change->action());
        item != nullptr && event->type() == QEvent::ActionAdded)
        itemAdded(*item);
    if (event->type() == QEvent::ActionRemoved && change->action() == m_selected)
        m_selected = nullptr;
    itemsChanged();
    return false;
}

void PopUpButton::choose(MenuItem* item) {
    selectItem(item);
    if (item != nullptr)
        Q_EMIT itemChosen(item);
}

void PopUpButton::chooseAndSend(MenuItem* item) {
    const QPointer<PopUpButton> self(this);
    choose(item);
    if (self)
        sendAction();
}

void PopUpButton::finishChoice(MenuItem* item) {
    if (!item->action)
        sendAction();
}

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

void PopUpButton::keyPressEvent(QKeyEvent* event) {
    const bool opens = m_pullsDown || event->modifiers().testFlag(Qt::AltModifier);
    const auto count = static_cast<int>(itemArray().size());
    const int selected = indexOfSelectedItem();
    if (!m_pullsDown && m_typeAhead.takes(*event)) {
        selectTyped(event->text());
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
    openMenu();
}

void PopUpButton::beginTracking(QMouseEvent&) {
    openMenu();
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

QSizeF PopUpButton::intrinsicContentSize() const {
    QSizeF size = PushButton::intrinsicContentSize();
    if (m_pullsDown)
        return size;
    const CellContext own = context();
    for (const MenuItem* item : itemArray()) {
        PreparedText title;
        title.set(item->text(), cell().titleFont(font(), own.style));
        size = size.expandedTo(cell().cellSize({own.state, title, own.direction, own.style}));
    }
    return size;
}

} // namespace platform
