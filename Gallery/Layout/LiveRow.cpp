#include "Gallery/Layout/LiveRow.h"

#include "Gallery/Layout/Text.h"
#include "Platform/Controls/AlignedBoxLayout.h"

#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

LiveRow::LiveRow(const QString& hint, QWidget* parent)
    : QWidget(parent),
      m_row(new platform::AlignedBoxLayout(QBoxLayout::LeftToRight)),
      m_line(makeText(hint, TextRole::caption)) {
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(12);
    m_row->setSpacing(12);
    m_row->setAlignment(Qt::AlignLeading);
    stack->addLayout(m_row);
    stack->addWidget(m_line);
}

void LiveRow::take(QWidget* control) {
    m_row->addWidget(control);
}

void LiveRow::say(const QString& text) {
    m_line->setText(text);
}

} // namespace gallery
