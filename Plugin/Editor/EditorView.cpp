#include "Plugin/Editor/EditorView.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/DialLabel.h"
#include "Chorale/MakerLinks.h"
#include "Chorale/ParameterDial.h"
#include "Chorale/ParameterHoldButton.h"
#include "Chorale/PluginHeaderView.h"
#include "Chorale/RocketFontModifier.h"
#include "Plugin/Editor/EditorParameters.h"
#include "Plugin/Editor/EditorResources.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace noteloft::plugin {

namespace {

using Parameter = std::shared_ptr<chorale::AudioParameter>;

constexpr qreal dialDiameter = 72;
constexpr float nameSize = 13;
constexpr float valueSize = 18;
constexpr float fieldWidth = 76;

QVBoxLayout* makeColumn(QWidget* control, QWidget* label) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(control, 0, Qt::AlignHCenter);
    column->addWidget(label, 0, Qt::AlignHCenter | Qt::AlignTop);
    return column;
}

QWidget* makeLabel(const Parameter& parameter) {
    return new chorale::DialLabel(parameter, EditorColors::label.color(), EditorColors::value.color(),
                                  nameSize, valueSize, valueSize, fieldWidth, true, true, 0, {});
}

QVBoxLayout* makeDial(const Parameter& parameter) {
    auto* const dial = new chorale::ParameterDial(parameter, dialDiameter, EditorColors::accent.color());
    dial->setDecimalPlaces(0);
    return makeColumn(dial, makeLabel(parameter));
}

QVBoxLayout* makeHold(const Parameter& parameter) {
    auto* const place = new QWidget;
    place->setFixedHeight(static_cast<int>(dialDiameter));
    auto* const middle = new QHBoxLayout(place);
    middle->setContentsMargins({});
    middle->addWidget(
        new chorale::ParameterHoldButton(parameter, EditorImages::hold, EditorImages::holdDown));
    auto* const name = new QLabel(parameter->name().toUpper());
    chorale::rocketFont(*name, nameSize);
    QPalette palette = name->palette();
    palette.setColor(QPalette::WindowText, EditorColors::label.color());
    name->setPalette(palette);
    return makeColumn(place, name);
}

} // namespace

EditorView::EditorView(const EditorParameters& parameters) {
    constexpr int width = 520;
    constexpr QMargins bodyMargins(32, 28, 32, 20);
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    stack->addWidget(new chorale::PluginHeaderView(chorale::MakerLinks::website(),
                                                   QStringLiteral(NOTELOFT_VERSION),
                                                   chorale::AudioParameter::dummyParam(), std::nullopt));
    auto* const body = new QHBoxLayout;
    body->setContentsMargins(bodyMargins);
    for (const Parameter& parameter : {parameters.transpose(), parameters.velocity(), parameters.chance()})
        body->addLayout(makeDial(parameter), 1);
    body->addLayout(makeHold(parameters.hold()), 1);
    stack->addLayout(body);
    setFixedSize(width, sizeHint().height());
}

bool EditorView::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && focusWidget() == nullptr)
        setFocus();
    return QWidget::event(event);
}

void EditorView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), EditorColors::ground.color());
}

} // namespace noteloft::plugin
