#include "Noteloft/NoteloftApp.h"

#include "Noteloft/ContentView.h"
#include "Noteloft/ContentViewModel.h"
#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/Core/Action.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"

#include <QApplication>
#include <QMenu>
#include <QShortcut>

namespace noteloft {

using platform::HiddenTitleBarWindow;

namespace {

/// A command without a target: whoever answers to the selector carries it out.
QAction* addCommand(QMenu& menu, const QString& title, platform::Selector selector,
                    const QKeySequence& keys = {}) {
    auto* const action = menu.addAction(title, keys);
    QObject::connect(action, &QAction::triggered, action,
                     [selector, action] { platform::sendAction(selector, nullptr, action); });
    return action;
}

} // namespace

NoteloftApp::NoteloftApp(const LaunchOptions& options) {
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
    m_menu = std::make_unique<QMenu>();
    m_menu->setTitle(QStringLiteral("Noteloft"));
    addCommand(*m_menu, AppDelegate::tr("About"), {"orderFrontStandardAboutPanel"});
    m_menu->addSeparator();
    addCommand(*m_menu, AppDelegate::tr("Check for Updates…"), {"checkForUpdates"});
    m_menu->addSeparator();
    addCommand(*m_menu, AppDelegate::tr("Quit"), {"terminate"}, QKeySequence::Quit);
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
