#include "Tidepool/Views/ClickableImageView.h"

#include "Platform/Controls/PressKey.h"
#include "Platform/Graphics/Dimming.h"
#include "Tidepool/Buttons/CellDrawing.h"
#include "Tidepool/Styles/ButtonCellStyle.h"
#include "Tidepool/Styles/StyleReference.h"
#include "Tidepool/Views/ClickableImageViewAccessibility.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace tidepool {

ClickableImageView::ClickableImageView(platform::Image image, const QString& description, QWidget* parent)
    : ImageView(std::move(image), description, parent),
      m_clicked(std::make_shared<platform::PassthroughSubject<std::monostate>>()) {
    installClickableImageViewAccessibility();
    setFocusPolicy(Qt::TabFocus);
    clickGestureRecognizer();
}

const std::shared_ptr<platform::PassthroughSubject<std::monostate>>& ClickableImageView::clicked() {
    return m_clicked;
}

void ClickableImageView::click() {
    // A subscriber may destroy the view.
    const auto clicked = m_clicked;
    clicked->send(std::monostate());
}

platform::ClickGestureRecognizer& ClickableImageView::clickGestureRecognizer() {
    constexpr qreal pressed = platform::dimmedOpacity;
    if (!m_recognizer)
        m_recognizer = std::make_unique<platform::ClickGestureRecognizer>(
            *this, [this] { click(); }, [this](bool isPressed) { setAlphaValue(isPressed ? pressed : 1); });
    return *m_recognizer;
}

void ClickableImageView::paintEvent(QPaintEvent* event) {
    ImageView::paintEvent(event);
    if (!hasFocus() || !isActiveWindow())
        return;
    QPainter painter(this);
    drawFocusRing(painter, focusRingMaskBounds(),
                  kitFocusRing(StyleReference().get<ButtonCellStyle>(this).focusRingColor()));
}

void ClickableImageView::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton && isEnabled());
}

void ClickableImageView::mouseReleaseEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton && isEnabled());
}

void ClickableImageView::keyPressEvent(QKeyEvent* event) {
    if (!platform::isPressKey(*event))
        ImageView::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

} // namespace tidepool
