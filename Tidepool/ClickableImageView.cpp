#include "Tidepool/ClickableImageView.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace tidepool {

namespace {

constexpr qreal pressed = 0.5;

} // namespace

ClickableImageView::ClickableImageView(platform::Image image, const QString& description, QWidget* parent)
    : ImageView(std::move(image), description, parent),
      m_clicked(std::make_shared<platform::PassthroughSubject<std::monostate>>()) {
    setFocusPolicy(Qt::TabFocus);
    clickGestureRecognizer();
}

const std::shared_ptr<platform::PassthroughSubject<std::monostate>>& ClickableImageView::clicked() {
    return m_clicked;
}

platform::ClickGestureRecognizer& ClickableImageView::clickGestureRecognizer() {
    if (!m_recognizer)
        m_recognizer = std::make_unique<platform::ClickGestureRecognizer>(
            *this, [this] { m_clicked->send(std::monostate()); });
    return *m_recognizer;
}

void ClickableImageView::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton && isEnabled());
    if (event->isAccepted())
        setAlphaValue(pressed);
}

void ClickableImageView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && isEnabled())
        setAlphaValue(1);
}

void ClickableImageView::keyPressEvent(QKeyEvent* event) {
    const bool presses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && !event->isAutoRepeat())
        m_clicked->send(std::monostate());
    else
        ImageView::keyPressEvent(event);
}

void ClickableImageView::changeEvent(QEvent* event) {
    ImageView::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        setAlphaValue(1);
}

} // namespace tidepool
