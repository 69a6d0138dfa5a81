#include "Tidepool/Views/Shake.h"

#include "Platform/Graphics/ReducedMotion.h"
#include "Tidepool/Views/ShakeEffect.h"

#include <QVariantAnimation>
#include <QWidget>

namespace tidepool {

namespace {

class Shaking : public QVariantAnimation {
public:
    explicit Shaking(QWidget& view)
        : QVariantAnimation(&view), m_view(view), m_rest(view.pos()), m_shaken(m_rest) {
        setDuration(320);
        setStartValue(0.0);
        setEndValue(1.0);
    }

protected:
    void updateCurrentValue(const QVariant& progress) override {
        if (m_view.pos() != m_shaken)
            m_rest = m_view.pos();
        const QTransform effect = ShakeEffect{4, 6, progress.toReal()}.effectValue(m_view.size());
        m_shaken = m_rest + effect.map(QPointF()).toPoint();
        m_view.move(m_shaken);
    }

private:
    QWidget& m_view;
    QPoint m_rest;
    QPoint m_shaken;
};

} // namespace

void shake(QWidget& view) {
    if (platform::prefersReducedMotion())
        return;
    for (QObject* const child : view.children())
        if (dynamic_cast<Shaking*>(child) != nullptr)
            return; // it shakes already
    (new Shaking(view))->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace tidepool
