#include "Gallery/Layout/StateGrid.h"

#include "Gallery/Layout/Text.h"

#include <QGridLayout>
#include <QLabel>

namespace gallery {

StateGrid::StateGrid(const QStringList& states, QWidget* parent)
    : QWidget(parent), m_grid(new QGridLayout(this)) {
    constexpr int variantWidth = 140;
    m_grid->setContentsMargins({});
    m_grid->setHorizontalSpacing(28);
    m_grid->setVerticalSpacing(18);
    m_grid->setColumnMinimumWidth(0, variantWidth);
    for (int column = 0; column < states.size(); ++column)
        m_grid->addWidget(makeText(states[column], TextRole::caption), 0, column + 1);
    m_grid->setColumnStretch(static_cast<int>(states.size()) + 1, 1);
}

void StateGrid::addRow(const QString& variant, const QList<QWidget*>& cells) {
    const int row = m_grid->rowCount();
    auto* const heading = makeText(variant, TextRole::body);
    heading->setWordWrap(false);
    m_grid->addWidget(heading, row, 0);
    for (int column = 0; column < cells.size(); ++column)
        if (cells[column] != nullptr)
            m_grid->addWidget(cells[column], row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace gallery
