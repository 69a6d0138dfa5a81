#include "Platform/Controls/PopUpButton.h"

#include "Platform/Controls/MenuList.h"
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
    delete m_list.data();
    delete std::exchange(m_menu, nullptr);
}

void PopUpButton::setMenu(std::unique_ptr<Menu> menu) {
    delete m_list.data();
    delete std::exchange(m_menu, nullptr);
    m_selected = nullptr;
    m_menu = menu.release();
    PushButton::setMenu(m_menu);
    if (m_menu != nullptr) {
        // A child, which goes with the button, and yet a window of its own.
        m_menu->setParent(this, m_menu->windowFlags());
        connect(m_menu, &Menu::willSendAction, this, &PopUpButton::choose);
        connect(m_menu, &Menu::didSendAction, this, &PopUpButton::finishChoice);
        for (MenuItem* item : m_menu->items())
            makeRoomForMark(*item);
        m_menu->installEventFilter(this); // no sooner: each item would be heard of
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
    if (!m_pullsDown)
        return titleOfSelectedItem();
    return firstItem() != nullptr ? firstItem()->title() : QString();
}

MenuItem* PopUpButton::firstItem() const {
    return m_menu != nullptr ? qobject_cast<MenuItem*>(m_menu->actions().value(0)) : nullptr;
}

void PopUpButton::makeRoomForMark(MenuItem& item) const {
    if (!m_pullsDown && !item.isSeparator())
        item.setState(item.state());
}

/// Where there is a choice, something is chosen.
void PopUpButton::selectFirstItem() {
    const auto items = m_menu->actions();
    const auto first = std::ranges::find_if_not(items, &QAction::isSeparator);
    if (!m_pullsDown && first != items.end())
        selectItem(qobject_cast<MenuItem*>(*first));
}

void PopUpButton::itemAdded(MenuItem& item) {
    makeRoomForMark(item);
    const auto items = m_menu->actions();
    const auto isOther = [&](const QAction* other) { return other != &item && !other->isSeparator(); };
    if (!item.isSeparator() && std::ranges::none_of(items, isOther))
        selectFirstItem();
}

void PopUpButton::hideTitleItem() {
    MenuItem* const first = m_pullsDown && !m_standingTitle ? firstItem() : nullptr;
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
    m_menu->updateItems();
    if (!m_list) {
        m_list = new MenuList(*m_menu, *this);
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

StyledControlState PopUpButton::controlFlags() const {
    const StyledControlState flags = PushButton::controlFlags();
    return flags.with(StyledControlState::highlighted,
                      flags.contains(StyledControlState::highlighted) || isListOpen());
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

/// Of very many items those with most letters.
QList<MenuItem*> PopUpButton::itemsToMeasure() const {
    constexpr qsizetype enough = 64;
    constexpr qsizetype veryMany = 1000;
    auto items = itemArray();
    if (items.size() <= veryMany)
        return items;
    const auto length = [](const MenuItem* item) { return item->title().size(); };
    std::ranges::partial_sort(items, items.begin() + enough, std::greater(), length);
    return items.first(enough);
}

QSizeF PopUpButton::intrinsicContentSize() const {
    QSizeF size = PushButton::intrinsicContentSize();
    if (m_pullsDown)
        return size;
    const CellContext own = context();
    for (const MenuItem* item : itemsToMeasure()) {
        PreparedText title;
        title.set(item->text(), cell().titleFont(font(), own.style));
        size = size.expandedTo(cell().cellSize({own.state, title, own.direction, own.style}));
    }
    return size;
}

} // namespace platform
