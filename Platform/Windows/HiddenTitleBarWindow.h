#pragma once

#include "Platform/Core/Activation.h"

#include <QWidget>

#include <optional>

class QMenu;
class QVariantAnimation;

namespace platform {

class WindowButton;

/// A window of one fixed size without a frame of its own: it moves by its background, and small buttons for
/// its menu, minimising and closing appear with the pointer. Its corners are round where a compositor runs.
/// Ctrl+W closes it, Ctrl+M minimises it; a click with the other button opens the window
/// manager's menu at the upper edge and the window's menu elsewhere.
class HiddenTitleBarWindow : public QWidget {
    Q_OBJECT

public:
    /// Takes the content, which gives the window its size, and a menu that stays the caller's.
    HiddenTitleBarWindow(const QString& title, QWidget* content, QMenu* menu);

    /// Shows the window, restores it if it is minimised, and asks for the keyboard, by right of the start
    /// that got `token`.
    void makeKeyAndOrderFront(const ActivationToken& token = {});

    /// Opens the menu below its button, or at the upper edge of another window of the application that is in
    /// front.
    void openMenu();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addButtons();
    void addCorners();
    void addShortcuts();
    void setButtonsShown(bool shown);
    void keepLowerEdgeInReach();
    bool isKeyboardOnButtons() const;
    void openSystemMenu(const QPoint& position);

    QMenu* m_menu;
    QWidget* m_buttonBar;
    WindowButton* m_menuButton = nullptr;
    QVariantAnimation* m_fade;
    std::optional<QPoint> m_press; // until a drag begins, which the window manager carries on
};

} // namespace platform
