#pragma once

#include <QBoxLayout>

namespace platform {

/// A box layout in which neighbours stand in line by their alignment rectangles rather than by all that their
/// widgets cover, and in a row by the line that their texts stand on. Main thread.
class AlignedBoxLayout : public QBoxLayout {
    Q_OBJECT

public:
    using QBoxLayout::QBoxLayout;

    /// `alignment` is as in a `QBoxLayout`; without a vertical one, what has a baseline is aligned by it.
    void addWidget(QWidget* widget, int stretch = 0, Qt::Alignment alignment = {});

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;
};

} // namespace platform
