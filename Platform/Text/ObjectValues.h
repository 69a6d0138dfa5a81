#pragma once

#include <QAbstractListModel>

#include <utility>

namespace platform {

/// Values that do not change as a model.
class ObjectValues : public QAbstractListModel {
    Q_OBJECT

public:
    explicit ObjectValues(QVariantList values) : m_values(std::move(values)) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_values.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole || role == Qt::EditRole ? m_values[index.row()] : QVariant();
    }

private:
    const QVariantList m_values;
};

} // namespace platform
