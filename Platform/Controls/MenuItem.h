#pragma once

#include "Platform/Core/Action.h"

#include <QAction>
#include <QPointer>

#include <any>
#include <memory>
#include <optional>

namespace platform {

class Menu;

/// An item of a menu. When it is chosen, or its keys are pressed, it sends its action; from an open menu it
/// does so in the next turn of the loop, when the menu is closed and may be destroyed. Main thread.
class MenuItem : public QAction {
    Q_OBJECT

public:
    enum class State { off, on, mixed };

    /// `title` is shown as it is: an ampersand marks no letter. For the keys see `keyEquivalent`.
    explicit MenuItem(const QString& title, std::optional<Selector> action = {}, const QString& key = {},
                      Qt::KeyboardModifiers modifiers = {});
    ~MenuItem() override;

    static std::unique_ptr<MenuItem> separator();

    /// A title that cannot be chosen, above a group of items.
    static std::unique_ptr<MenuItem> sectionHeader(const QString& title);

    /// What is sent; without one the item does nothing by itself.
    std::optional<Selector> action;
    /// Whom it is sent to. Null, or gone, for the first responder that answers.
    QPointer<QObject> target;
    int tag = 0;
    std::any representedObject;

    const QString& title() const { return m_title; }

    /// `title` as the text of an action, in which an ampersand marks a letter and a tabulator begins the
    /// keys.
    static QString plainText(QString title);

    void setTitle(const QString& title);

    /// The mark before the title. Choosing the item leaves it as it is.
    State state() const { return m_state; }

    /// Once set, even to off, the item has room for its mark.
    void setState(State state);

    bool isSectionHeader() const { return isSeparator() && !m_title.isEmpty(); }

    Menu* submenu() const { return m_submenu.get(); }

    void setSubmenu(std::unique_ptr<Menu> menu);

    /// The menu that this is in; null for none.
    Menu* enclosingMenu() const;

private:
    void performWhenClosed();
    void perform();
    void notify(void (Menu::*signal)(MenuItem*));

    QString m_title;
    State m_state = State::off;
    std::unique_ptr<Menu> m_submenu;
};

} // namespace platform
