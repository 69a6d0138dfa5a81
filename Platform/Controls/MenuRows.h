#pragma once

#include <QAbstractListModel>

#include <vector>

class QAction;

namespace platform {

class Menu;
class MenuItem;

/// The visible items of a menu as rows of a `ListPopup`.
class MenuRows : public QAbstractListModel {
    Q_OBJECT

public:
    /// Takes the items of `menu` in place of what was there.
    void fill(const Menu& menu);

    /// Forgets an item that may have been destroyed already.
    void remove(const QAction* action);

    /// Null for none.
    MenuItem* itemOf(int row) const;

    /// -1 for none.
    int rowOf(const MenuItem* item) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        MenuItem* item;
        bool beginsGroup;
    };

    std::vector<Row> m_rows;
};

} // namespace platform
