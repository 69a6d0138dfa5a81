#pragma once

#include "Chorale/ViewScale.h"

#include <QWidget>

#include <memory>

namespace chorale {
class AudioParameter;
}

namespace noteloft::plugin {

/// An octave of keys in which those of the scale are lit, and its root has a dot.
class ScaleView : public QWidget {
    Q_OBJECT

public:
    ScaleView(std::shared_ptr<chorale::AudioParameter> root, std::shared_ptr<chorale::AudioParameter> scale,
              QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool isLit(int pitchClass) const;
    void describe();

    const qreal m_size = chorale::ViewScale::current();
    const std::shared_ptr<chorale::AudioParameter> m_root;
    const std::shared_ptr<chorale::AudioParameter> m_scale;
};

} // namespace noteloft::plugin
