#pragma once

#include "Platform/Controls/Menu.h"

#include <QWidget>

#include <memory>

namespace gallery {

/// A menu for a picture: whether it is open or not, it shows an item under the pointer.
class PicturedMenu : public platform::Menu {
    Q_OBJECT

public:
    PicturedMenu();

    /// Null for none.
    const platform::MenuItem* highlightedItem() const { return m_highlighted; }

    void highlight(const platform::MenuItem& item) { m_highlighted = &item; }

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;

private:
    const platform::MenuItem* m_highlighted = nullptr;
};

/// A menu as it looks while it is open, with the submenu of its highlighted item beside it. It cannot be
/// used.
class MenuPicture : public QWidget {
    Q_OBJECT

public:
    explicit MenuPicture(std::unique_ptr<PicturedMenu> menu, QWidget* parent = nullptr);
    ~MenuPicture() override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    platform::Menu* submenu() const;

    /// Where the submenu begins if lines run from the left: with its first item beside the highlighted one.
    QPoint submenuOffset() const;

    std::unique_ptr<PicturedMenu> m_menu;
};

} // namespace gallery
