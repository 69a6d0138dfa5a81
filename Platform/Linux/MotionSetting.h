#pragma once

#include <QDBusVariant>
#include <QObject>

namespace platform {

/// What the desktop's portal says of animations, and follows.
class MotionSetting : public QObject {
    Q_OBJECT

public:
    MotionSetting();

    bool hasAnimations() const { return m_hasAnimations; }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    bool m_hasAnimations = true;
};

} // namespace platform
