#include "Noteloft/NoteloftApp.h"

#include "Noteloft/ContentView.h"
#include "Noteloft/ContentViewModel.h"
#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"
#include "Platform/Windows/WindowAccessibility.h"

#include <QApplication>
#include <QShortcut>

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
    m_window->addActions(m_menu->actions());
    QObject::connect(new QShortcut(QKeySequence::HelpContents, m_window.get()), &QShortcut::activated,
                     &ContentView::openHelp);
}

void NoteloftApp::finishLaunching() {
    m_appDelegate.applicationDidFinishLaunching(qApp);
    m_window->makeKeyAndOrderFront();
}

void NoteloftApp::reopen(const QStringList& urls) {
    m_window->makeKeyAndOrderFront();
    m_appDelegate.applicationOpen(urls);
}

} // namespace noteloft
