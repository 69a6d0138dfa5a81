#pragma once

#include <QSplitter>

namespace tidepool {

/// A split view without a visible divider; its parts touch, and can be resized where they do. Its parts cover
/// it: it is opaque.
class NoDividerSplitView : public QSplitter {
    Q_OBJECT

public:
    explicit NoDividerSplitView(Qt::Orientation orientation = Qt::Horizontal, QWidget* parent = nullptr);

    QColor dividerColor() const { return Qt::transparent; }

    int dividerThickness() const { return handleWidth(); }

    bool isOpaque() const { return true; }

    bool allowsVibrancy() const { return false; }

protected:
    QSplitterHandle* createHandle() override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tidepool
