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
/// press ends. The press of a key also ends when the keyboard goes elsewhere. Assistive technology, which
/// cannot let go, presses once to hold and once more to end it. The button is drawn pressed while the
/// parameter is 1, whoever has set it. Space is left to the host.
class ParameterHoldButton : public QWidget, public ParameterView {
    Q_OBJECT

public:
    ParameterHoldButton(std::shared_ptr<AudioParameter> param, platform::ImageResource image,
                        platform::ImageResource pressedImage, QWidget* parent = nullptr);
    ~ParameterHoldButton() override;

    bool isPressed() const override { return m_isPressed; }

    const std::shared_ptr<AudioParameter>& parameter() const override { return m_param; }

    QString valueText() const override;

    QAccessible::Role role() const override { return QAccessible::Button; }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void begin();
    void hold();
    void setPressed(bool isPressed);

    const qreal m_scale = ViewScale::current();
    const std::shared_ptr<AudioParameter> m_param;
    const platform::ImageResource m_image;
    const platform::ImageResource m_pressedImage;
    bool m_isPressed = false;
    bool m_isKeyDown = false;                              // the press is that of a key
    std::unique_ptr<platform::PointerTracking> m_tracking; // from the press to its end
};

} // namespace chorale
