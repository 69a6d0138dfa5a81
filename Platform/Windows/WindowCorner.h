#pragma once

#include <QImage>
#include <QRegion>
#include <QWidget>

namespace platform {

/// Rounds one corner of a translucent window by erasing what the window has drawn there.
class WindowCorner : public QWidget {
    Q_OBJECT

public:
    WindowCorner(Qt::Corner corner, QWidget* window);

    /// All points of a window of `size` that its round corners do not leave wholly empty.
    static QRegion shape(QSize size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage render(qreal scale) const;

    Qt::Corner m_corner;
    QImage m_outside; // opaque where the corner is empty
};

} // namespace platform
