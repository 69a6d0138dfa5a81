#pragma once

#include "benchmarks/Parameters/Model.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace benchmark {

/// A small widget that paints its parameter's value.
class Lamp : public QWidget {
public:
    Lamp(const chorale::AudioParameter& parameter, QWidget* parent)
        : QWidget(parent), m_parameter(parameter) {
        connect(&parameter, &chorale::AudioParameter::valueChanged, this, qOverload<>(&QWidget::update));
    }

    static inline int painted = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        ++painted;
        QPainter(this).fillRect(rect(), QColor::fromRgbF(m_parameter.value(), 0.5F, 0.5F));
    }

private:
    const chorale::AudioParameter& m_parameter;
};

/// One for each parameter of a model.
class LampWindow : public QWidget {
public:
    explicit LampWindow(const Model& model) : m_lamps(int(model.parameters.size())) {
        constexpr int columns = 40;
        constexpr int side = 16;
        for (int index = 0; index < m_lamps; ++index)
            (new Lamp(*model.parameters[index], this))
                ->setGeometry(index % columns * side, index / columns * side, side, side);
        resize(columns * side, m_lamps / columns * side);
        paintAfter([this] { show(); });
    }

    /// What Qt alone does for it.
    void updateAll() const {
        for (auto* const lamp : findChildren<QWidget*>())
            lamp->update();
    }

    /// Returns when all have been painted.
    template <typename Cause>
    void paintAfter(Cause cause) const {
        Lamp::painted = 0;
        cause();
        while (Lamp::painted < m_lamps)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    const int m_lamps;
};

} // namespace benchmark
