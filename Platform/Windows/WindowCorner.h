#pragma once

#include <QWidget>

namespace platform {

/// Rounds one corner of a translucent window by erasing what the window has drawn there.
class WindowCorner : public QWidget {
    Q_OBJECT

public:
    WindowCorner(Qt::Corner corner, QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Corner m_corner;
};

} // namespace platform
