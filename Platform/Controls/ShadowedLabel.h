#pragma once

#include "Platform/Graphics/DropShadow.h"
#include "Platform/Graphics/PreparedPicture.h"

#include <QLabel>

#include <tuple>
#include <vector>

namespace platform {

/// A line of text with drop shadows, each under all that comes before it. It is drawn once and then kept
/// until its text, font, size or scale changes.
class ShadowedLabel : public QLabel {
    Q_OBJECT

public:
    /// `margin` is the room for the shadows on each side, in points.
    ShadowedLabel(const QString& text, QColor color, std::vector<DropShadow> shadows, int margin,
                  QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage render(qreal scale) const;

    QColor m_color;
    std::vector<DropShadow> m_shadows;
    int m_margin;
    std::tuple<QString, QFont, QSize, qreal> m_renderedLook;
    PreparedPicture m_rendered;
};

} // namespace platform
