#include "Platform/Controls/MenuList.h"

#include "Platform/Controls/Menu.h"
#include "Platform/Controls/MenuRows.h"

#include <QActionEvent>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace platform {

bool MenuList::isBetterFor(const Menu& menu) {
    // A menu measures all of its items whenever it opens, and again and again while they are made.
    constexpr qsizetype longestMenu = 1000;
    const auto items = menu.actions();
    return items.size() > longestMenu &&
           std::ranges::none_of(items, [](const QAction* item) { return item->menu() != nullptr; });
}

MenuList::MenuList(Menu& menu, QWidget& view) : MenuList(menu, std::make_unique<MenuRows>(), view) {}

MenuList::MenuList(Menu& menu, std::unique_ptr<MenuRows> rows, QWidget& view)
    : ListPopup(*rows, view), m_menu(menu), m_rows(std::move(rows)) {
    menu.installEventFilter(this);
    connect(&menu, &QObject::destroyed, this, &QObject::deleteLater);
    connect(&m_update, &QTimer::timeout, this, &MenuList::updateRows);
    m_update.setSingleShot(true);
    updateRows();
}

MenuList::~MenuList() {
    hide();
}

MenuItem* MenuList::itemOf(int row) const {
    return m_rows->itemOf(row);
}

int MenuList::rowOf(const MenuItem* item) const {
    return m_rows->rowOf(item);
}

void MenuList::updateRows() {
    const MenuItem* const current = itemOf(currentRow());
    const auto items = m_menu.items();
    setHasMarks(std::ranges::any_of(items, &QAction::isCheckable));
    m_rows->fill(m_menu);
    setCurrentRow(rowOf(current));
}

bool MenuList::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == &m_menu && type == QEvent::ActionRemoved)
        m_rows->remove(static_cast<QActionEvent*>(event)->action());
    else if (watched == &m_menu && (type == QEvent::ActionAdded || type == QEvent::ActionChanged))
        m_update.start(0);
    return ListPopup::eventFilter(watched, event);
}

void MenuList::otherKey(QKeyEvent& event) {
    if (m_typeAhead.takes(event)) {
        QStringList titles;
        for (int row = 0; row < m_rows->rowCount(); ++row)
            titles << (isChoice(row) ? itemOf(row)->title() : QString());
        if (const auto row = m_typeAhead.find(event.text(), titles, currentRow()); row >= 0)
            setCurrentRow(static_cast<int>(row));
    } else if (event.key() == Qt::Key_Home) {
        step(0, 1);
    } else if (event.key() == Qt::Key_End) {
        step(m_rows->rowCount() - 1, -1);
    } else if (event.key() == Qt::Key_Space && !event.isAutoRepeat()) {
        choose(currentRow());
    }
}

} // namespace platform
