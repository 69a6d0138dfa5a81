#pragma once

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
    Qt::Corner m_corner;
};

} // namespace platform
