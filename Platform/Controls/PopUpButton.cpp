#include "Platform/Controls/PopUpButton.h"

#include "Platform/Controls/MenuList.h"
#include "Platform/Controls/PopUpButtonAccessibility.h"
#include "Platform/Graphics/SystemFont.h"

#include <QAccessible>
#include <QActionEvent>

#include <algorithm>
#include <utility>

namespace platform {

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

StyledControlState PopUpButton::controlFlags() const {
    const StyledControlState flags = PushButton::controlFlags();
    return flags.with(StyledControlState::highlighted,
                      flags.contains(StyledControlState::highlighted) || isListOpen());
}

} // namespace platform
