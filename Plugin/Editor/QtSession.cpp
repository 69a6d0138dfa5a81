#include "Plugin/Editor/QtSession.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Graphics/Appearance.h"
#include "Plugin/Editor/EmbeddedAccessibility.h"

#include <QApplication>
#include <QEventLoop>
#include <QThread>

#include <clocale>
#include <string>

namespace noteloft::plugin {

namespace {

/// Sets a variable of the environment while it lives.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const char* value)
        : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_before(qgetenv(name)) {
        qputenv(name, value);
    }

    ~EnvironmentVariable() {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }

    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* const m_name;
    const bool m_wasSet;
    const QByteArray m_before;
};

} // namespace

bool QtSession::begin() {
    const auto* const application = QCoreApplication::instance();
    if (application != nullptr)
        return qobject_cast<const QApplication*>(application) != nullptr && platform::isMainThread() &&
               QGuiApplication::platformName() == QStringLiteral("xcb");
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    // The host may run GLib's loop, which must not find Qt in it.
    const EnvironmentVariable noGlib("QT_NO_GLIB", "1");
    static int count = 3;
    static char name[] = "noteloft";
    static char option[] = "-platform";
    static char platform[] = "xcb";
    static char* arguments[] = {name, option, platform, nullptr};
    EmbeddedAccessibility::install();
    new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::setAppearance(platform::Appearance::dark); // for menus; a host's own application keeps its look
    std::setlocale(LC_ALL, locale.c_str());
    return true;
}

void QtSession::pump() {
    static bool isPumping = false;
    constexpr int limit = 10;
    if (isPumping || QThread::currentThread()->loopLevel() > 0)
        return;
    isPumping = true;
    QCoreApplication::processEvents(QEventLoop::AllEvents, limit);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    isPumping = false;
}

} // namespace noteloft::plugin
