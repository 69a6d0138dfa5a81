#pragma once

#include <QGraphicsView>

namespace gallery {

class PageView;

/// A page at several pixels a point, each of which is one on the screen. The page stays alive: it gets the
/// pointer and the keyboard.
class MagnifiedPage : public QGraphicsView {
    Q_OBJECT

public:
    /// Takes the page.
    MagnifiedPage(PageView* page, qreal scale, QWidget* parent = nullptr);
};

} // namespace gallery
