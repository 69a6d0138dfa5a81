#include "Platform/Controls/PopUpButton.h"

#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Controls/MenuStyle.h"
#include "Platform/Controls/PopUpButtonAccessible.h"
#include "Platform/Core/FatalError.h"
#include "Platform/Graphics/SystemFont.h"

#include <QAccessible>
#include <QActionEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace platform {

namespace {

constexpr int buttonHeight = 24;
constexpr int titleMargin = 10;
constexpr int arrowsWidth = 20;
constexpr int menuGap = 2;
constexpr qreal radius = 5;

bool isSelectable(const MenuItem* item) {
    return item->isEnabled() && !item->isSeparator();
}

/// Null for none.
template <typename Iterator>
MenuItem* firstSelectable(Iterator begin, Iterator end) {
    const auto found = std::find_if(begin, end, isSelectable);
    return found != end ? *found : nullptr;
}

void paintArrows(QPainter& painter, QPointF center, bool pointsDownOnly) {
    constexpr qreal half = 3;
    const auto arrow = [&](qreal base, qreal tip) {
        painter.drawPolyline(QPolygonF{
            {center + QPointF(-half, base), center + QPointF(0, tip), center + QPointF(half, base)}});
    };
    if (pointsDownOnly) {
        arrow(-1.5, 1.5);
        return;
    }
    arrow(-2.5, -5.5);
    arrow(2.5, 5.5);
}

} // namespace

PopUpButton::PopUpButton(bool pullsDown, QWidget* parent) : QAbstractButton(parent), m_pullsDown(pullsDown) {
    setFont(systemFont(13));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMenu(std::make_unique<Menu>());
    makePopUpButtonsAccessible();
}

void PopUpButton::setMenu(std::unique_ptr<Menu> menu) {
    delete m_menu;
    m_selected = nullptr;
    m_menu = menu.get();
    if (menu) {
        // A child, which goes with the button, and yet a window of its own.
        menu->setParent(this, menu->windowFlags());
        menu.release();
        m_menu->installEventFilter(this);
        connect(m_menu, &Menu::willSendAction, this, &PopUpButton::choose);
        connect(m_menu, &Menu::didSendAction, this, &PopUpButton::finishChoice);
        connect(m_menu, &QMenu::aboutToHide, this, [this] { setDown(false); });
        for (MenuItem* item : m_menu->items())
            itemAdded(*item);
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
    MenuItem* item = m_selected;
    while (item != nullptr && item->enclosingMenu() != m_menu)
        item = item->enclosingMenu() != nullptr ? qobject_cast<MenuItem*>(item->enclosingMenu()->menuAction())
                                                : nullptr;
    return static_cast<int>(itemArray().indexOf(item));
}

QString PopUpButton::titleOfSelectedItem() const {
    return m_selected ? m_selected->title() : QString();
}

void PopUpButton::selectItem(MenuItem* item) {
    if (m_selected && !m_pullsDown)
        m_selected->setState(MenuItem::State::off);
    const bool isKnown = m_menu != nullptr && flattenedItems(*m_menu).contains(item);
    m_selected = isKnown ? item : nullptr;
    if (m_selected && !m_pullsDown)
        m_selected->setState(MenuItem::State::on);
    itemsChanged();
}

void PopUpButton::selectItem(int index) {
    selectItem(itemArray().value(index));
}

QString PopUpButton::title() const {
    const auto items = itemArray();
    return m_pullsDown ? (items.isEmpty() ? QString() : items.front()->title()) : titleOfSelectedItem();
}

void PopUpButton::itemAdded(MenuItem& item) {
    if (m_pullsDown || item.isSeparator())
        return;
    item.setState(item.state()); // makes room for its mark
    const auto items = itemArray();
    if (std::none_of(items.begin(), items.end(),
                     [&](auto* other) { return other != &item && !other->isSeparator(); }))
        selectItem(&item);
}

void PopUpButton::itemsChanged() {
    if (const auto items = itemArray(); m_pullsDown && !items.isEmpty())
        items.front()->setVisible(false);
    updateGeometry();
    update();
    QAccessibleValueChangeEvent event(this, title());
    QAccessible::updateAccessibility(&event);
}

bool PopUpButton::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_menu)
        return QAbstractButton::eventFilter(watched, event);
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
    Q_EMIT itemChosen(item);
}

void PopUpButton::finishChoice(MenuItem* item) {
    if (!item->action)
        sendAction();
}

void PopUpButton::selectNextItem(QObject*) {
    const auto items = itemArray();
    MenuItem* next = firstSelectable(items.begin() + indexOfSelectedItem() + 1, items.end());
    if (next == nullptr)
        next = items.value(0);
    choose(next);
    sendAction();
}

void PopUpButton::selectPreviousItem(QObject*) {
    const int selected = indexOfSelectedItem();
    if (selected < 0)
        fatalError("selectPreviousItem: no item is selected");
    const auto items = itemArray();
    MenuItem* previous = firstSelectable(items.rend() - selected, items.rend());
    choose(previous != nullptr ? previous : items.back());
    sendAction();
}

void PopUpButton::step(int from, int by) {
    const auto items = itemArray();
    MenuItem* const item = by > 0 ? firstSelectable(items.begin() + from, items.end())
                                  : firstSelectable(items.rend() - from, items.rend());
    if (item != nullptr && item != m_selected)
        item->trigger();
}

void PopUpButton::selectTyped(const QString& text) {
    const auto items = itemArray();
    QStringList titles;
    for (const MenuItem* item : items)
        titles << (isSelectable(item) ? item->title() : QString());
    const auto index = m_typeAhead.find(text, titles, indexOfSelectedItem());
    if (index >= 0 && index != indexOfSelectedItem())
        items[index]->trigger();
}

void PopUpButton::openMenu() {
    if (m_menu == nullptr)
        return;
    setDown(true);
    auto* const item = itemArray().value(indexOfSelectedItem());
    if (m_pullsDown || item == nullptr) {
        m_menu->setMinimumWidth(width());
        m_menu->popUp(nullptr, QPoint(0, height() + menuGap), *this);
        return;
    }
    // The item's title comes to lie over the button's.
    const int left = titleMargin - MenuStyle::titleInset(*m_menu);
    m_menu->setMinimumWidth(width() - 2 * left);
    m_menu->popUp(item, QPoint(left, (height() - m_menu->actionGeometry(item).height()) / 2), *this);
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
        QWidget::keyPressEvent(event);
    }
}

void PopUpButton::keyReleaseEvent(QKeyEvent* event) {
    QWidget::keyReleaseEvent(event);
}

void PopUpButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        openMenu();
    else
        event->ignore();
}

void PopUpButton::mouseReleaseEvent(QMouseEvent* event) {
    event->ignore();
}

void PopUpButton::mouseMoveEvent(QMouseEvent* event) {
    event->ignore();
}

QSize PopUpButton::sizeHint() const {
    const QFontMetrics metrics(font());
    int width = metrics.horizontalAdvance(title());
    if (!m_pullsDown)
        for (const MenuItem* item : itemArray())
            width = std::max(width, metrics.horizontalAdvance(item->title()));
    return {titleMargin + width + arrowsWidth, buttonHeight};
}

void PopUpButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintLook(painter);
}

void PopUpButton::paintLook(QPainter& painter) const {
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(palette().color(group, QPalette::Light));
    painter.setBrush(palette().color(group, isDown() ? QPalette::Dark : QPalette::Button));
    painter.drawRoundedRect(frame, radius, radius);
    painter.setPen(palette().color(group, QPalette::ButtonText));
    const QRect line = rect().adjusted(titleMargin, 0, -arrowsWidth, 0);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(title(), Qt::ElideRight, line.width()));
    painter.setPen(QPen(painter.pen().color(), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paintArrows(painter, {width() - arrowsWidth / 2.0, height() / 2.0}, m_pullsDown);
    if (hasFocus())
        paintFocusRing(painter, rect(), radius);
}

} // namespace platform
