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

    /// Once the view is hidden, the keyboard is where the window system has put it.
    void giveBack();

protected:
    bool eventFilter(QObject* field, QEvent* event) override;

private:
    void borrow();

    QWidget& m_view;
    std::uint32_t m_owner = 0; // the window that had the keyboard, 0 while it is not borrowed
};

} // namespace noteloft::plugin
