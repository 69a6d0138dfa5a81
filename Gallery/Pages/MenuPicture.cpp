#include "Gallery/Pages/MenuPicture.h"

#include "Platform/Graphics/DevicePixels.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

#include <utility>

namespace gallery {

namespace {

QStringList titles(const platform::Menu& menu) {
    QStringList titles;
    const auto items = menu.items();
    for (const platform::MenuItem* item : items)
        if (!item->title().isEmpty())
            titles << item->title();
    return titles;
}

void draw(platform::Menu& menu, QPainter& painter, QPoint position, const QWidget& view) {
    menu.setAttribute(Qt::WA_TranslucentBackground); // round, whatever the desktop can show
    menu.setPalette(view.palette());
    menu.setLayoutDirection(view.layoutDirection());
    menu.resize(menu.sizeHint());
    const qreal scale = platform::pixelsPerPoint(painter);
    QImage image((QSizeF(menu.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    menu.render(&image, {}, {}, QWidget::DrawChildren);
    platform::drawPixels(painter, position, image);
}

} // namespace

PicturedMenu::PicturedMenu() {
    // Nobody answers to the items of a picture.
    setAutoenablesItems(false);
}

void PicturedMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    Menu::initStyleOption(option, action);
    option->state.setFlag(QStyle::State_Selected, action == m_highlighted);
}

MenuPicture::MenuPicture(std::unique_ptr<PicturedMenu> menu, QWidget* parent)
    : QWidget(parent), m_menu(std::move(menu)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("A menu: %1").arg(titles(*m_menu).join(QStringLiteral(", "))));
}

MenuPicture::~MenuPicture() = default;

platform::Menu* MenuPicture::submenu() const {
    return m_menu->highlightedItem() != nullptr ? m_menu->highlightedItem()->submenu() : nullptr;
}

QPoint MenuPicture::submenuOffset() const {
    const QRect item = m_menu->actionGeometry(const_cast<platform::MenuItem*>(m_menu->highlightedItem()));
    const int overlap = m_menu->style()->pixelMetric(QStyle::PM_SubMenuOverlap, nullptr, m_menu.get());
    const int margin = m_menu->style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, m_menu.get());
    return {item.right() + 1 + overlap, item.top() - margin};
}

QSize MenuPicture::sizeHint() const {
    const QSize size = m_menu->sizeHint();
    if (submenu() == nullptr)
        return size;
    const QPoint beside = submenuOffset();
    const QSize open = submenu()->sizeHint();
    return size.expandedTo({beside.x() + open.width(), beside.y() + open.height()});
}

void MenuPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto place = [this](QPoint position, QSize size) {
        return QStyle::visualRect(layoutDirection(), rect(), QRect(position, size)).topLeft();
    };
    draw(*m_menu, painter, place({}, m_menu->sizeHint()), *this);
    if (submenu() != nullptr)
        draw(*submenu(), painter, place(submenuOffset(), submenu()->sizeHint()), *this);
}

} // namespace gallery
