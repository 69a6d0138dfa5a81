#pragma once

#include "Noteloft/AppDelegate.h"
#include "Noteloft/LaunchOptions.h"
#include "Noteloft/SparkleHelper.h"

#include <memory>

namespace platform {
class HiddenTitleBarWindow;
class Menu;
class WindowActions;
struct StartRequest;
} // namespace platform

namespace noteloft {

class ContentView;

/// The application: its delegate, its updater, its one window and the menu of that. Made once, after the
/// `QApplication`. Main thread.
class NoteloftApp {
public:
    explicit NoteloftApp(const LaunchOptions& options);
    ~NoteloftApp();
    NoteloftApp(const NoteloftApp&) = delete;
    NoteloftApp& operator=(const NoteloftApp&) = delete;

    /// Delivers the launch notification and shows the window.
    void finishLaunching();

    /// What a later start of the program hands over: shows the window and opens the URLs, or quits.
    void reopen(const platform::StartRequest& start);

    /// What a start hands over to have the running instance quit.
    static const QString& quitRequest();

    AppDelegate& delegate() { return m_appDelegate; }

    platform::HiddenTitleBarWindow& window() { return *m_window; }

    ContentView& contentView() { return *m_contentView; }

private:
    void makeMenu();
    void shareActions();
    void makeScene(bool debugMode);

    AppDelegate m_appDelegate;
    SparkleHelper m_sparkleHelper;
    std::unique_ptr<platform::Menu> m_menu;
    ContentView* m_contentView = nullptr;
    std::unique_ptr<platform::HiddenTitleBarWindow> m_window;
    std::unique_ptr<platform::WindowActions> m_actions;
};

} // namespace noteloft
