#pragma once

#include <QWidget>

namespace gallery {

class Section;

/// What stands under the title of a page: sections, one under the other.
class PageBody : public QWidget {
    Q_OBJECT

public:
    explicit PageBody(QWidget* parent = nullptr);

    Section& addSection(const QString& title, const QString& note = {});
};

} // namespace gallery
