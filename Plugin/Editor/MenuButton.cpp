#include "Plugin/Editor/MenuButton.h"

#include "Chorale/MakerLinks.h"
#include "Chorale/ViewScale.h"
#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Controls/FocusRing.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Graphics/Pens.h"
#include "Platform/Windows/Browser.h"
#include "Plugin/Assets.h"

#include <QPainter>
#include <QUrl>

namespace noteloft::plugin {

namespace {

/// Three lines.
class MenuButtonStyle : public platform::ButtonStyle {
public:
    QFont font() const override { return {}; }

    QSizeF size(QSizeF) const override { return QSizeF(22, 22) * m_scale; }

    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override {
        constexpr qreal width = 14;
        constexpr qreal distance = 4.5;
        if (configuration.isFocused())
            platform::drawFocusRing(painter, configuration.frame, {.radius = 4 * m_scale});
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(painter.opacity() * (configuration.isPressed() ? 0.7 : 1));
        painter.setPen(platform::roundPen(Colors::value, 1.5 * m_scale));
        painter.translate(configuration.frame.center());
        for (const int line : {-1, 0, 1})
            painter.drawLine(QPointF(-width / 2, line * distance) * m_scale,
                             QPointF(width / 2, line * distance) * m_scale);
    }

private:
    const qreal m_scale = chorale::ViewScale::current();
};

} // namespace

MenuButton::MenuButton()
    : PushButton({}, std::make_unique<MenuButtonStyle>()), m_menu(std::make_unique<platform::Menu>()) {
    setAccessibleName(tr("Menu"));
    m_menu->setAutoenablesItems(false);
    const auto add = [this](const QString& title, const QUrl& page) {
        connect(&m_menu->addItem(title), &QAction::triggered, this,
                [this, page] { platform::openInBrowser(page, this); });
    };
    add(tr("Website"), chorale::MakerLinks::website());
    add(tr("News"), chorale::MakerLinks::socialProfile());
    add(tr("Contact"), chorale::MakerLinks::contactPage());
    m_menu->addItem(platform::MenuItem::separator());
    connect(&m_menu->addItem(tr("Check for Updates…")), &QAction::triggered, this,
            [this] { platform::openInProgram(QStringLiteral("noteloft://openAndUpdate"), this); });
    connect(this, &QAbstractButton::clicked, this,
            [this] { platform::popUp(*m_menu, nullptr, platform::below(*this), *this); });
}

MenuButton::~MenuButton() = default;

} // namespace noteloft::plugin
