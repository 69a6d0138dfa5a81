#include "Platform/Graphics/ReducedMotion.h"

#include "Platform/Linux/MotionSetting.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStyle>

namespace platform {

namespace {

// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString settings = QStringLiteral("org.gnome.desktop.interface");
const QString animations = QStringLiteral("enable-animations");

/// The value within; the portal wraps some of them twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

MotionSetting::MotionSetting() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << settings << animations;
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            settingChanged(settings, animations, reply.value());
        watcher->deleteLater();
    });
}

void MotionSetting::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == settings && key == animations)
        m_hasAnimations = unwrapped(value.variant()).toBool();
}

bool prefersReducedMotion() {
    static auto* const setting = [] {
        auto* const made = new MotionSetting;
        made->setParent(QCoreApplication::instance());
        return made;
    }();
    return !setting->hasAnimations() ||
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

} // namespace platform
