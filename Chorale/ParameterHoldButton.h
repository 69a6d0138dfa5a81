#pragma once

#include "Chorale/ParameterView.h"
#include "Chorale/ViewScale.h"
#include "Platform/Graphics/AssetResource.h"

#include <QWidget>

namespace platform {
class PointerTracking;
}

namespace chorale {

class AudioParameter;

/// Holds a parameter at 1 for as long as it is pressed, by the pointer or by Return; 0 otherwise, however the
/// press ends. It is drawn pressed while the parameter is 1, whoever has set it. Space is left to the host.
class ParameterHoldButton : public QWidget, public ParameterView {
    Q_OBJECT

public:
    ParameterHoldButton(std::shared_ptr<AudioParameter> param, platform::ImageResource image,
                        platform::ImageResource pressedImage, QWidget* parent = nullptr);
    ~ParameterHoldButton() override;

    bool isPressed() const { return m_isPressed; }

    const std::shared_ptr<AudioParameter>& parameter() const override { return m_param; }

    QString valueText() const override;

    QAccessible::Role role() const override { return QAccessible::Button; }

    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void begin();
    void hold();
    void setPressed(bool isPressed);

    const qreal m_scale = ViewScale::current();
    const std::shared_ptr<AudioParameter> m_param;
    const platform::ImageResource m_image;
    const platform::ImageResource m_pressedImage;
    bool m_isPressed = false;
    std::unique_ptr<platform::PointerTracking> m_tracking; // from the press to its end
};

} // namespace chorale
