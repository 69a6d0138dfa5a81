#pragma once

#include "Platform/Controls/BaseButton.h"
#include "Platform/Controls/ButtonStyle.h"

#include <memory>

namespace platform {

/// A push button whose look is a value: it is pressed by the pointer, by Space and by Return.
class Button : public BaseButton {
    Q_OBJECT

public:
    Button(const QString& title, std::unique_ptr<ButtonStyle> style, QWidget* parent = nullptr);

    /// The width of the label, in points; its natural width until set.
    void setLabelWidth(qreal width);

    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<ButtonStyle> m_style;
    qreal m_labelWidth = 0;
};

} // namespace platform
