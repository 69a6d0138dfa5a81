#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

namespace gallery {

/// The pages that a search finds: those that hold each of its words in their group, title, controls or
/// keywords, in any case.
class PageFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    /// What the items of its source say under these roles, besides their title.
    enum Role { groupRole = Qt::UserRole, searchedRole };

    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setSearch(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList m_words;
};

} // namespace gallery
