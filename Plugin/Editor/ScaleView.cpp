#include "Plugin/Editor/ScaleView.h"

#include "Chorale/AudioParameter.h"
#include "Platform/Display/DisplayPump.h"
#include "Plugin/Assets.h"
#include "Plugin/Scale.h"

#include <QPainter>

#include <utility>

namespace noteloft::plugin {

namespace {

constexpr QSizeF whiteSize(15, 60);
constexpr QSizeF blackSize(10, 36);
constexpr qreal gap = 1;
constexpr qreal radius = 2;
constexpr int whiteCount = 7;
constexpr int keyCount = 12;

/// By pitch class: whether it is a black key, and how many white keys lie to the left of its middle.
struct Key {
    bool isBlack;
    int whitesBefore;
};

constexpr Key keys[keyCount] = {{false, 0}, {true, 1},  {false, 1}, {true, 2},  {false, 2}, {false, 3},
                                {true, 4},  {false, 4}, {true, 5},  {false, 5}, {true, 6},  {false, 6}};

QRectF keyFrame(const Key& key) {
    const qreal left = key.whitesBefore * (whiteSize.width() + gap);
    if (!key.isBlack)
        return {QPointF(left, 0), whiteSize};
    return {QPointF(left - (blackSize.width() + gap) / 2, 0), blackSize};
}

int whole(const chorale::AudioParameter& parameter) {
    return qRound(parameter.value());
}

} // namespace

ScaleView::ScaleView(std::shared_ptr<chorale::AudioParameter> root,
                     std::shared_ptr<chorale::AudioParameter> scale, QWidget* parent)
    : QWidget(parent), m_root(std::move(root)), m_scale(std::move(scale)) {
    setFixedSize(ScaleView::sizeHint());
    new platform::ParameterVisibility(*this);
    for (const auto* const parameter : {m_root.get(), m_scale.get()})
        connect(parameter, &chorale::AudioParameter::valueChanged, this, &ScaleView::describe);
    describe();
}

QSize ScaleView::sizeHint() const {
    return (QSizeF(whiteCount * (whiteSize.width() + gap) - gap, whiteSize.height()) * m_size).toSize();
}

bool ScaleView::isLit(int pitchClass) const {
    return contains(static_cast<Scale>(whole(*m_scale)), whole(*m_root), pitchClass);
}

void ScaleView::describe() {
    QStringList notes;
    for (int pitch = whole(*m_root); pitch < whole(*m_root) + keyCount; ++pitch)
        if (isLit(pitch))
            notes << QString::fromUtf8(noteNames[pitch % keyCount]);
    setAccessibleName(tr("Notes of the scale: %1").arg(notes.join(QStringLiteral(", "))));
    update();
}

void ScaleView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(m_size, m_size);
    for (const bool black : {false, true}) // the black keys lie over the white ones
        for (int pitch = 0; pitch < keyCount; ++pitch) {
            if (keys[pitch].isBlack != black)
                continue;
            const QRectF frame = keyFrame(keys[pitch]);
            if (black) { // parts it from its neighbours
                painter.setBrush(Colors::ground.color());
                painter.drawRoundedRect(frame.adjusted(-gap, -radius, gap, gap), radius, radius);
            }
            const auto unlit = black ? Colors::blackKey : Colors::whiteKey;
            painter.setBrush((isLit(pitch) ? Colors::accent : unlit).color());
            painter.drawRoundedRect(frame, radius, radius);
            if (pitch == whole(*m_root) % keyCount) {
                painter.setBrush(Colors::rootDot.color());
                painter.drawEllipse(QPointF(frame.center().x(), frame.bottom() - 7), 2.5, 2.5);
            }
        }
}

} // namespace noteloft::plugin
