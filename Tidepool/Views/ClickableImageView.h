#pragma once

#include "Platform/Controls/ClickGestureRecognizer.h"
#include "Platform/Controls/ImageView.h"
#include "Platform/Publishing/PassthroughSubject.h"

#include <memory>
#include <variant>

namespace tidepool {

/// An image that sends an event when it is clicked, or when Space or Return is pressed on it.
class ClickableImageView : public platform::ImageView {
    Q_OBJECT

public:
    ClickableImageView(platform::Image image, const QString& description, QWidget* parent = nullptr);

    /// One event for each click; they carry nothing.
    const std::shared_ptr<platform::PassthroughSubject<std::monostate>>& clicked();

    /// As if the user had clicked.
    void click();

    bool acceptsFirstMouse() const override { return true; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    platform::ClickGestureRecognizer& clickGestureRecognizer();

    std::shared_ptr<platform::PassthroughSubject<std::monostate>> m_clicked;
    std::unique_ptr<platform::ClickGestureRecognizer> m_recognizer; // made when it is first asked for
};

} // namespace tidepool
