#include "Noteloft/NoteloftApp.h"

#include "Noteloft/ContentView.h"
#include "Noteloft/ContentViewModel.h"
#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Core/SingleInstance.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"
#include "Platform/Windows/WindowAccessibility.h"
#include "Platform/Windows/WindowActions.h"

#include <QApplication>

namespace noteloft {

using platform::HiddenTitleBarWindow;
using platform::Selector;

NoteloftApp::NoteloftApp(const LaunchOptions& options) {
    platform::installWindowAccessibility();
    platform::setApplicationDelegate(&m_appDelegate);
    m_sparkleHelper.updaterController =
        std::make_unique<platform::SPUStandardUpdaterController>(false, &m_sparkleHelper, nullptr);
    m_sparkleHelper.updaterController->startUpdater();
    m_appDelegate.sparkleHelper = &m_sparkleHelper;
    makeMenu();
    makeScene(options.developerMode);
    shareActions();
}

NoteloftApp::~NoteloftApp() = default;

void NoteloftApp::makeMenu() {
    m_menu = std::make_unique<platform::Menu>(QStringLiteral("Noteloft"));
    // Without targets: whoever answers carries them out.
    m_menu->addItem(AppDelegate::tr("About"), Selector{"orderFrontStandardAboutPanel"});
    m_menu->addItem(platform::MenuItem::separator());
    m_menu->addItem(AppDelegate::tr("Check for Updates…"), Selector{"checkForUpdates"});
    m_menu->addItem(platform::MenuItem::separator());
    m_menu->addItem(AppDelegate::tr("Quit"), Selector{"terminate"}, QStringLiteral("q"));
}

void NoteloftApp::makeScene(bool debugMode) {
    if (debugMode)
        platform::AudioComponentManager::shared().addCarriedComponents();
    constexpr qreal buttonWidth = 180;
    m_contentView = new ContentView(new ContentViewModel, debugMode, buttonWidth);
    m_window =
        std::make_unique<HiddenTitleBarWindow>(QStringLiteral("Noteloft"), m_contentView, m_menu.get());
    m_window->setObjectName(QStringLiteral("main"));
}

void NoteloftApp::shareActions() {
    auto* const help = new QAction(m_window.get());
    help->setShortcuts(QKeySequence::HelpContents);
    QObject::connect(help, &QAction::triggered, m_contentView, &ContentView::openHelp);
    auto* const openMenu = new QAction(m_window.get());
    openMenu->setShortcut(Qt::Key_F10);
    QObject::connect(openMenu, &QAction::triggered, m_window.get(), &HiddenTitleBarWindow::openMenu);
    const auto actions = m_menu->actions() << help << openMenu;
    m_window->addActions(actions);
    m_actions = std::make_unique<platform::WindowActions>(actions);
}

void NoteloftApp::finishLaunching() {
    m_appDelegate.applicationDidFinishLaunching(qApp);
    m_window->makeKeyAndOrderFront();
}

const QString& NoteloftApp::quitRequest() {
    static const QString request = QStringLiteral("--quit"); // no address begins like that
    return request;
}

void NoteloftApp::reopen(const platform::StartRequest& start) {
    if (start.arguments.contains(quitRequest())) {
        m_appDelegate.terminate(nullptr);
        return;
    }
    m_window->makeKeyAndOrderFront(start.activation);
    m_appDelegate.applicationOpen(start.arguments);
}

} // namespace noteloft
