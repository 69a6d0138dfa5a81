#pragma once

#include <QObject>

#include <cstdint>

class QWidget;

namespace noteloft::plugin {

/// The keyboard belongs to the host, whose shortcuts work while its window is in front. The fields of a view
/// borrow it for as long as they are shown, since a host keeps back the keys that it knows, Return among
/// them. Main thread, X11.
class HostKeyboard : public QObject {
    Q_OBJECT

public:
    /// `view` is a native window with all of its fields, and outlives this.
    explicit HostKeyboard(QWidget& view);

    /// Looks, at each idle call of the host, at what hosts do not tell: some pass keys on to the view while
    /// the keyboard stays with their own window, and a click beside the view may leave the keyboard where it
    /// is. So the view is active only while the host's window is, and a field is closed by a click elsewhere.
    void look();

    /// Once the view is hidden, the keyboard is where the window system has put it.
    void giveBack();

protected:
    bool eventFilter(QObject* field, QEvent* event) override;

private:
    void borrow();
    bool isPressedElsewhere() const;
    void closeField();

    QWidget& m_view;
    std::uint32_t m_owner = 0; // the window that had the keyboard, 0 while it is not borrowed
    bool m_wasActive = false;  // the view, before it borrowed the keyboard
    bool m_comesBack = false;  // the view is active again once the host has the keyboard
};

} // namespace noteloft::plugin
