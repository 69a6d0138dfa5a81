#include "Gallery/Layout/Section.h"

#include "Gallery/Layout/StateGrid.h"
#include "Gallery/Layout/Text.h"
#include "Tidepool/Palette/TPColors.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace gallery {

Section::Section(const QString& title, const QString& note, QWidget* parent)
    : QWidget(parent), m_stack(new QVBoxLayout(this)) {
    m_stack->setContentsMargins(0, 18, 0, 0);
    m_stack->setSpacing(0);
    m_stack->addWidget(makeText(title, TextRole::heading));
    if (!note.isEmpty()) {
        m_stack->addSpacing(4);
        m_stack->addWidget(makeText(note, TextRole::body));
    }
}

void Section::add(QWidget* content) {
    m_stack->addSpacing(20);
    m_stack->addWidget(content);
}

StateGrid& Section::addGrid(const QStringList& states) {
    auto* const grid = new StateGrid(states);
    add(grid);
    return *grid;
}

void Section::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(0, 0, width(), 1, tidepool::TPColorsAK::grey20);
}

} // namespace gallery
