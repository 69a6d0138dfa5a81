#include "Gallery/Layout/PageBody.h"

#include "Gallery/Layout/Section.h"

#include <QVBoxLayout>

namespace gallery {

PageBody::PageBody(QWidget* parent) : QWidget(parent) {
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(44);
}

Section& PageBody::addSection(const QString& title, const QString& note) {
    auto* const section = new Section(title, note);
    layout()->addWidget(section);
    return *section;
}

} // namespace gallery
