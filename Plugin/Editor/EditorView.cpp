#include "Plugin/Editor/EditorView.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/ChoiceLabel.h"
#include "Chorale/DialLabel.h"
#include "Chorale/MakerLinks.h"
#include "Chorale/ParameterDial.h"
#include "Chorale/ParameterHoldButton.h"
#include "Chorale/PluginHeaderView.h"
#include "Chorale/RocketFontModifier.h"
#include "Chorale/ViewScale.h"
#include "Platform/Windows/WindowAccessibility.h"
#include "Plugin/Assets.h"
#include "Plugin/Editor/EditorParameters.h"
#include "Plugin/Editor/MenuButton.h"
#include "Plugin/Editor/ScaleView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace noteloft::plugin {

namespace {

using chorale::AudioParameter;
using Parameter = std::shared_ptr<AudioParameter>;

constexpr qreal dialDiameter = 72;
constexpr float nameSize = 13;
constexpr float valueSize = 18;
constexpr float fieldWidth = 76;

int scaled(qreal points) {
    return qRound(points * chorale::ViewScale::current());
}

/// A control over its name, the controls of a row all of one height.
QVBoxLayout* makeColumn(QWidget* control, QWidget* label) {
    auto* const place = new QWidget;
    place->setFixedHeight(scaled(dialDiameter));
    auto* const middle = new QHBoxLayout(place);
    middle->setContentsMargins({});
    middle->addWidget(control);
    auto* const column = new QVBoxLayout;
    column->setSpacing(scaled(8));
    column->addWidget(place, 0, Qt::AlignHCenter);
    column->addWidget(label, 0, Qt::AlignHCenter | Qt::AlignTop);
    return column;
}

QLabel* makeName(const QString& text) {
    auto* const name = new QLabel(text.toUpper());
    chorale::rocketFont(*name, nameSize * chorale::ViewScale::current());
    QPalette palette = name->palette();
    palette.setColor(QPalette::WindowText, Colors::label.color());
    name->setPalette(palette);
    return name;
}

QWidget* makeLabel(const Parameter& parameter) {
    const QColor label = Colors::label.color();
    const QColor value = Colors::value.color();
    if (parameter->valueStrings())
        return new chorale::ChoiceLabel(parameter, label, value, nameSize, valueSize);
    return new chorale::DialLabel(parameter, label, value, nameSize, valueSize, valueSize, fieldWidth, true,
                                  true, 0, {});
}

QVBoxLayout* makeDial(const Parameter& parameter) {
    auto* const dial = new chorale::ParameterDial(parameter, dialDiameter, Colors::accent.color());
    dial->setDecimalPlaces(0);
    return makeColumn(dial, makeLabel(parameter));
}

QHBoxLayout* makeDials(const EditorParameters& parameters, std::initializer_list<Ports::Index> ports) {
    auto* const row = new QHBoxLayout;
    row->setContentsMargins({});
    row->setSpacing(0);
    for (const Ports::Index port : ports)
        row->addLayout(makeDial(parameters.parameter(port)), 1);
    return row;
}

QWidget* makePage(QHBoxLayout* row) {
    auto* const page = new QWidget;
    page->setLayout(row);
    return page;
}

QWidget* makeScalePage(const EditorParameters& parameters) {
    QHBoxLayout* const row = makeDials(parameters, {Ports::transpose, Ports::root, Ports::scale});
    auto* const keys = new ScaleView(parameters.parameter(Ports::root), parameters.parameter(Ports::scale));
    row->addLayout(makeColumn(keys, makeName(EditorView::tr("Notes"))), 1);
    return makePage(row);
}

} // namespace

EditorView::EditorView(const EditorParameters& parameters, qreal scale)
    : m_parameters(parameters), m_page(parameters.parameter(Ports::page)) {
    platform::installWindowAccessibility();
    setWindowTitle(QStringLiteral("Noteloft"));
    auto* const place = new QVBoxLayout(this);
    place->setContentsMargins({});
    // So that no control shows a focus ring before the user asks for one.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
    connect(m_page.get(), &AudioParameter::valueChanged, this, &EditorView::showPage);
    connect(&m_update, &platform::KnownUpdate::changed, this, &EditorView::showUpdate);
    setScale(scale);
}

void EditorView::setScale(qreal scale) {
    constexpr int width = 700;
    const chorale::ViewScale scope(scale);
    delete m_content;
    m_content = makeContent();
    layout()->addWidget(m_content);
    setFixedSize(scaled(width), m_content->sizeHint().height());
    showPage();
    showUpdate();
}

QWidget* EditorView::makeContent() {
    auto* const content = new QWidget;
    auto* const stack = new QVBoxLayout(content);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    m_header = new chorale::PluginHeaderView(chorale::MakerLinks::website(), QStringLiteral(NOTELOFT_VERSION),
                                             m_page, std::nullopt, [] { return new MenuButton; });
    stack->addWidget(m_header);
    m_pages = new QStackedWidget;
    m_pages->addWidget(makeScalePage(m_parameters));
    m_pages->addWidget(
        makePage(makeDials(m_parameters, {Ports::chord, Ports::inversion, Ports::strum, Ports::direction})));
    m_pages->addWidget(
        makePage(makeDials(m_parameters, {Ports::velocity, Ports::dynamics, Ports::timing, Ports::chance})));
    const Parameter& hold = m_parameters.parameter(Ports::hold);
    auto* const body = new QHBoxLayout;
    body->setContentsMargins(0, scaled(28), 0, scaled(20));
    body->setSpacing(0);
    body->addWidget(m_pages, 4);
    body->addLayout(makeColumn(new chorale::ParameterHoldButton(hold, Images::hold, Images::holdDown),
                               makeName(hold->name())),
                    1);
    stack->addLayout(body);
    return content;
}

void EditorView::showUpdate() {
    const QString newer = platform::KnownUpdate::versionAbove(QStringLiteral(NOTELOFT_VERSION));
    std::optional<chorale::UpdateAvailableDetails> details;
    if (!newer.isEmpty())
        details = {newer};
    m_header->setUpdateDetails(details);
}

void EditorView::showPage() {
    m_pages->setCurrentIndex(qRound(m_page->value()));
}

bool EditorView::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && focusWidget() == nullptr)
        setFocus();
    return QWidget::event(event);
}

void EditorView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), Colors::ground.color());
}

} // namespace noteloft::plugin
