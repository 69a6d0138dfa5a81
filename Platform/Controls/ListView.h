#pragma once

#include <QListView>

namespace platform {

class ListPopup;

/// The rows of a `ListPopup`, which look like items of a menu and follow the pointer as those do.
class ListView : public QListView {
    Q_OBJECT

public:
    explicit ListView(ListPopup& popup);

    void setHasMarks(bool hasMarks);

    /// Before the window opens: a release counts only after a press here or a way of the pointer.
    void begin();

    /// The room of a row beside its title, in points.
    int roomBesideTitles() const;

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }

    void wheelEvent(QWheelEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    class Delegate;

    bool hasIcons() const;
    void follow(QPoint position);

    ListPopup& m_popup;
    Delegate* m_delegate;
    QPoint m_openedAt; // where the pointer was, in global points
    bool m_isReleaseMeant = false;
};

} // namespace platform
