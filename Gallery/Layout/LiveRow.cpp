#include "Gallery/Layout/LiveRow.h"

#include "Gallery/Layout/Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

LiveRow::LiveRow(const QString& hint, QWidget* parent)
    : QWidget(parent), m_row(new QHBoxLayout), m_line(makeText(hint, TextRole::caption)) {
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(12);
    m_row->setSpacing(12);
    m_row->addStretch();
    stack->addLayout(m_row);
    stack->addWidget(m_line);
}

void LiveRow::take(QWidget* control) {
    m_row->insertWidget(m_row->count() - 1, control);
}

void LiveRow::say(const QString& text) {
    m_line->setText(text);
}

} // namespace gallery
