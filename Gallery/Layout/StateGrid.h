#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QGridLayout;

namespace gallery {

/// Variants of a control in rows, its states in columns.
class StateGrid : public QWidget {
    Q_OBJECT

public:
    explicit StateGrid(const QStringList& states, QWidget* parent = nullptr);

    /// A row with one widget for each state, which the grid takes; null leaves a place empty.
    void addRow(const QString& variant, const QList<QWidget*>& cells);

private:
    QGridLayout* m_grid;
};

} // namespace gallery
