#include "Noteloft/ContentView.h"

#include "Chorale/MakerLinks.h"
#include "Chorale/RocketFontModifier.h"
#include "Noteloft/Assets.h"
#include "Noteloft/ContentViewModel.h"
#include "Noteloft/ContentViewShader.h"
#include "Noteloft/QuillfenButtonStyle.h"
#include "Platform/Controls/ImageView.h"
#include "Platform/Controls/PushButton.h"
#include "Platform/Controls/ShadowedLabel.h"
#include "Platform/Core/Bundle.h"
#include "Platform/Core/ConstantUrl.h"
#include "Platform/Graphics/DisplayP3.h"
#include "Platform/Graphics/SystemFont.h"
#include "Platform/Windows/Browser.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QShowEvent>
#include <QVBoxLayout>

#include <cmath>

namespace noteloft {

using platform::FontDesign;
using platform::systemFont;

namespace {

constexpr int headerHeight = 300;
constexpr int padding = 16;

QLabel* makeText(const QString& text, qreal size, QFont::Weight weight) {
    auto* const label = new QLabel(text);
    label->setFont(systemFont(size, weight, FontDesign::rounded));
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    QPalette palette;
    palette.setColor(QPalette::WindowText, Colors::buttonText);
    label->setPalette(palette);
    return label;
}

QBoxLayout* makeGroup(const QString& first, const QString& second, qreal size, QFont::Weight weight) {
    auto* const group = new QVBoxLayout;
    group->setSpacing(1);
    group->addWidget(makeText(first, size, weight));
    group->addWidget(makeText(second, size, weight));
    return group;
}

QLabel* makeTitle() {
    const auto shadow = [](float opacity) { return platform::displayP3(0.0485F, 0.0245F, 0.1257F, opacity); };
    constexpr int shadowMargin = 12;
    auto* const title = new platform::ShadowedLabel(
        QStringLiteral("Noteloft"), Qt::white,
        {{shadow(0.4F), 0, {0, 1}}, {shadow(0.4F), 1, {0, 2}}, {shadow(0.3F), 4, {0, 4}}}, shadowMargin);
    chorale::rocketFont(*title, 36);
    return title;
}

QString versionText() {
    const auto& bundle = platform::Bundle::main();
    return bundle.information(QStringLiteral("version")) + u" (" +
           bundle.information(QStringLiteral("build")) + u')';
}

} // namespace

ContentView::ContentView(ContentViewModel* model, bool debugMode, qreal buttonWidth)
    : m_model(model), m_debugMode(debugMode) {
    model->setParent(this);
    setFixedSize(400, 572);
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    stack->addWidget(makeHeader());
    stack->addStretch();
    stack->addLayout(makeInstructions());
    auto* const logo = new platform::ImageView(Images::windowQuillfen.image().tinted(Colors::buttonText),
                                               QStringLiteral("Quillfen"));
    stack->addWidget(logo, 0, Qt::AlignHCenter);
    stack->addStretch();
    stack->addLayout(makeButtonRow(buttonWidth));
    if (debugMode)
        stack->addWidget(makeStatusLine());
}

QWidget* ContentView::makeHeader() {
    auto* const header = new QWidget;
    header->setFixedHeight(headerHeight);
    auto* const depth = new QGridLayout(header);
    depth->setContentsMargins({});
    m_waveform = new ContentViewShader;
    depth->addWidget(m_waveform, 0, 0);
    depth->addWidget(makeTitle(), 0, 0, Qt::AlignCenter);
    return header;
}

QBoxLayout* ContentView::makeInstructions() {
    auto* const block = new QVBoxLayout;
    block->setContentsMargins(padding, padding, padding, padding);
    block->setSpacing(16);
    block->addLayout(makeGroup(tr("Noteloft is now available as an Audio Unit."),
                               tr("Keep this app in your applications folder."), 15, QFont::Bold));
    block->addLayout(makeGroup(tr("To use Noteloft, insert it as"),
                               tr("a MIDI plugin on an instrument track."), 12, QFont::Medium));
    block->addWidget(makeText(versionText(), 12, QFont::Medium));
    return block;
}

QBoxLayout* ContentView::makeButtonRow(qreal buttonWidth) {
    const auto makeButton = [buttonWidth](const QString& title, void (*action)()) {
        auto* const button = new platform::PushButton(title, std::make_unique<QuillfenButtonStyle>());
        button->setFixedWidth(static_cast<int>(std::ceil(buttonWidth)));
        connect(button, &platform::PushButton::clicked, button, action);
        return button;
    };
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 14);
    row->setSpacing(static_cast<int>(16 - 2 * QuillfenButtonStyle().overhang()));
    row->addStretch();
    row->addWidget(makeButton(tr("Help"), &ContentView::openHelp));
    row->addWidget(makeButton(tr("Quillfen Website"), &ContentView::openWebsite));
    row->addStretch();
    return row;
}

QLabel* ContentView::makeStatusLine() {
    m_statusLine = makeText({}, 12, QFont::Bold);
    m_statusLine->setWordWrap(true);
    m_statusLine->setContentsMargins(0, 0, 0, 6);
    connect(m_model, &ContentViewModel::statusTextChanged, this, &ContentView::showStatus);
    showStatus();
    return m_statusLine;
}

void ContentView::showStatus() {
    m_statusLine->setText(QStringLiteral("Dev Only Debugging: ") + m_model->statusText());
    m_waveform->updateController();
}

const QUrl& ContentView::helpURL() {
    static const QUrl url =
        platform::constantUrl(QStringLiteral("https://" NOTELOFT_HELP_HOST "/help/noteloft/welcome/"));
    return url;
}

void ContentView::openHelp() {
    platform::openInBrowser(helpURL());
}

void ContentView::openWebsite() {
    platform::openInBrowser(chorale::MakerLinks::website());
}

void ContentView::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), Colors::background.color());
}

void ContentView::showEvent(QShowEvent* event) {
    if (m_debugMode && !event->spontaneous())
        m_model->validatePlugin();
}

} // namespace noteloft
