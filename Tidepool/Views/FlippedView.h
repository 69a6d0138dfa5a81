#pragma once

#include <QWidget>

namespace tidepool {

/// A view whose y grows downwards, as that of every view here does.
class FlippedView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    bool isFlipped() const { return true; }
};

/// The same for views that a style draws.
class StyledFlippedView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    bool isFlipped() const { return true; }
};

} // namespace tidepool
