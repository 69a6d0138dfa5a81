#pragma once

#include "Platform/Controls/PushButton.h"

#include <memory>

namespace platform {
class Menu;
}

namespace noteloft::plugin {

/// The editor's menu at the end of its header: the maker's pages, and a check for updates by the application.
class MenuButton : public platform::PushButton {
    Q_OBJECT

public:
    MenuButton();
    ~MenuButton() override;

private:
    const std::unique_ptr<platform::Menu> m_menu;
};

} // namespace noteloft::plugin
