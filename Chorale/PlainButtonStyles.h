#pragma once

#include "Chorale/ViewScale.h"
#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Graphics/AssetResource.h"

namespace chorale {

/// A tab of the header: its label alone, in the colour of the chosen tab or of the others.
class TabButtonStyle : public platform::ButtonStyle {
public:
    QFont font() const override;

    QSizeF size(QSizeF label) const override { return label; }

    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;

private:
    const qreal m_scale = ViewScale::current();
};

/// An image alone.
class LogoButtonStyle : public platform::ButtonStyle {
public:
    explicit LogoButtonStyle(platform::ImageResource image) : m_image(image) {}

    QFont font() const override { return {}; }

    QSizeF size(QSizeF) const override { return m_image.image().size() * m_scale; }

    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;

private:
    const qreal m_scale = ViewScale::current();
    platform::ImageResource m_image;
};

} // namespace chorale
