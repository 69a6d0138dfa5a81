#pragma once

#include "Platform/Controls/BaseButton.h"
#include "Platform/Controls/ButtonCell.h"
#include "Platform/Controls/Control.h"

#include <memory>

class QAction;
class QMenu;

namespace platform {

class PointerTracking;

/// A button that a cell draws. It is pressed by the pointer, by Space, by Return and by the mnemonic in its
/// text; then it goes to its next state, sends its action and emits `clicked`. A press ends without a click
/// when the pointer is released outside, or Escape is pressed, or the button is hidden or disabled, or its
/// press opens a menu or starts a drag. Every `pressed` is followed by one `released`, unless the button is
/// destroyed.
class PushButton : public BaseButton, public Control {
    Q_OBJECT

public:
    explicit PushButton(const QString& title = {}, QWidget* parent = nullptr);
    PushButton(const QString& title, std::unique_ptr<ButtonCell> cell, QWidget* parent = nullptr);
    ~PushButton() override;

    /// The cell, told all that the button knows. Owned.
    ButtonCell& cell() const;

    ControlState state() const { return m_cell->state(); }

    void setState(ControlState state);

    void setBordered(bool bordered);
    void setImage(Image image);
    void setImagePosition(ImagePosition position);

    /// What a right click or the menu key opens. Not owned.
    QMenu* menu() const;
    void setMenu(QMenu* menu);

    /// How opaque the button is drawn, from 0 to 1.
    qreal alphaValue() const { return m_alphaValue; }

    virtual void setAlphaValue(qreal alpha);

    /// How far the button reaches beyond the rectangle that aligns with its neighbours, in points.
    virtual QMarginsF alignmentRectInsets() const { return {}; }

    /// The natural size of the rectangle that aligns with the neighbours.
    virtual QSizeF intrinsicContentSize() const;

    virtual QRectF focusRingMaskBounds() const { return QRectF(rect()); }

    /// Whether the click that activates its window is meant for the button as well. Where the desktop passes
    /// that click on to every widget, the answer makes no difference.
    virtual bool acceptsFirstMouse() const { return false; }

    /// The state as a number: 0, 1 or -1.
    double doubleValue() const override { return static_cast<double>(state()); }

    /// Whether the button has a state that users are told of.
    virtual bool showsState() const { return m_cell->showsStateBy() != ButtonCell::none; }

    /// The menu that users can open from the button, or null.
    virtual QMenu* offeredMenu() const { return menu(); }

    /// Whether the menu key does something on the button.
    virtual bool answersMenuKey() const { return offeredMenu() != nullptr; }

    QWidget& view() override { return *this; }

    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void stateChanged(platform::ControlState state);

protected:
    /// What a click does, whichever way it was made: sends the action.
    virtual void performClick();

    /// Draws the cell. The painter is as new: it has neither the button's font nor its colours.
    virtual void draw(QPainter& painter);

    /// Shows that the keyboard is on the button: a ring within `focusRingMaskBounds`.
    virtual void drawFocus(QPainter& painter);

    /// Whether the focus is drawn: the keyboard is on the button, in the window that has it.
    virtual bool showsFocus() const { return hasFocus() && isActiveWindow(); }

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
    void paintEvent(QPaintEvent* event) override;
    void initPainter(QPainter* painter) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void menuClosed();

    std::unique_ptr<ButtonCell> m_cell;
    QPointer<QMenu> m_menu;
    QPointer<QMenu> m_openMenu; // while it is open
    qreal m_alphaValue = 1;
    std::unique_ptr<PointerTracking> m_tracking; // while the pointer holds the button
    bool m_isMakingPainter = false;
};

} // namespace platform
