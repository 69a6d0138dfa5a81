#pragma once

#include "Platform/Controls/BaseButton.h"
#include "Platform/Controls/ButtonCell.h"
#include "Platform/Controls/CellControl.h"

#include <memory>
#include <utility>

class QAction;
class QMenu;

namespace platform {

class ButtonStyle;
class PointerTracking;

/// A button that a cell draws. It is pressed by the pointer, by Space, by Return and by the mnemonic in its
/// text; then it goes to its next state, sends its action and emits `clicked`. A press ends without a click
/// when the pointer is released outside, or Escape is pressed, or the button is hidden or disabled, or its
/// press opens a menu or starts a drag. Every `pressed` is followed by one `released`, unless the button is
/// destroyed.
class PushButton : public CellControl<BaseButton, ButtonCell> {
    Q_OBJECT

public:
    explicit PushButton(const QString& title = {}, QWidget* parent = nullptr);
    PushButton(const QString& title, std::unique_ptr<ButtonCell> cell, QWidget* parent = nullptr);

    /// A button that is drawn by a style.
    PushButton(const QString& title, std::unique_ptr<ButtonStyle> style, QWidget* parent = nullptr);
    ~PushButton() override;

    /// The text without what marks its mnemonic.
    const QString& plainTitle() const { return context().title.text(); }

    ControlState state() const { return m_state; }

    void setState(ControlState state);

    /// The state as a number: 0, 1 or -1.
    double doubleValue() const override { return static_cast<double>(m_state); }

    void setBordered(bool bordered) { cell().setBordered(bordered); }

    void setImage(Image image) { cell().setImage(std::move(image)); }

    void setImagePosition(ImagePosition position) { cell().setImagePosition(position); }

    /// What a right click or the menu key opens. Not owned.
    QMenu* menu() const;
    void setMenu(QMenu* menu);

    std::optional<qreal> baseline(qreal height) const override;

    /// Whether the button has a state that users are told of.
    virtual bool showsState() const { return cell().showsStateBy() != ButtonCell::none; }

    /// The menu that users can open from the button, or null.
    virtual QMenu* offeredMenu() const { return menu(); }

    /// Whether the menu key does something on the button.
    virtual bool answersMenuKey() const { return offeredMenu() != nullptr; }

Q_SIGNALS:
    void stateChanged(platform::ControlState state);

protected:
    /// What a click does, whichever way it was made: sends the action.
    virtual void performClick();

    QString cellTitle() const override { return text(); }

    StyledControlState controlFlags() const override;

    /// The pointer's press, single or the second of a double click.
    virtual void beginTracking(QMouseEvent& event);

    /// The end of every press, exactly once for each begin.
    virtual void endTracking() { setDown(false); }

    /// Ends the press without a click.
    void cancelTracking();

    bool isTracking() const;

    /// Opens the menu, or `item` of it, at `position` in the button's coordinates; the button is highlighted
    /// meanwhile, and a press on it only closes the menu.
    void popUp(QMenu& menu, QPoint position, QAction* item = nullptr);

    /// True if the press asked for a menu, which is now open.
    virtual bool popUpMenu(const QMouseEvent& press);

    void nextCheckState() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void menuClosed();

    ControlState m_state = ControlState::off;
    QPointer<QMenu> m_menu;
    QPointer<QMenu> m_openMenu;                  // while it is open
    std::unique_ptr<PointerTracking> m_tracking; // while the pointer holds the button
};

} // namespace platform
