#include "Tidepool/Text/SimpleTextViewPopover.h"

#include "Tidepool/Styles/StyleReference.h"
#include "Tidepool/Styles/WindowStyle.h"

#include <QEvent>
#include <QVBoxLayout>

namespace tidepool {

namespace {

constexpr int margin = 12;
constexpr int widest = 320; // then the text breaks into lines

} // namespace

SimpleTextViewPopover::SimpleTextViewPopover(QObject* parent) : Popover(parent), m_text(new QLabel) {
    auto* const container = new QWidget;
    auto* const layout = new QVBoxLayout(container);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_text);
    m_text->setTextFormat(Qt::PlainText);
    layout->setAlignment(m_text, Qt::AlignCenter);
    setContentView(container);
}

void SimpleTextViewPopover::takeLook(const QWidget& view) {
    const auto& style = StyleReference().get<PopoverStyle>(&view);
    m_text->setFont(style.font());
    QPalette palette = m_text->palette();
    palette.setColor(QPalette::WindowText, style.textColor());
    m_text->setPalette(palette);
    setColors(style.backgroundColor(), TPColors::grey30);
}

/// As wide as its lines, which are broken where they would get too long; a longer word is left whole.
void SimpleTextViewPopover::fitText() {
    m_text->setWordWrap(false);
    m_text->setMinimumSize(0, 0);
    m_text->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QSize size = m_text->sizeHint();
    if (size.width() > widest) {
        m_text->setWordWrap(true);
        const QRect lines = m_text->fontMetrics().boundingRect({0, 0, widest, QWIDGETSIZE_MAX},
                                                               Qt::TextWordWrap, m_text->text());
        const int width = lines.width() + 1; // what lies between two points
        size = {width, m_text->heightForWidth(width)};
    }
    m_text->setFixedSize(size);
}

void SimpleTextViewPopover::showMessage(const std::optional<QString>& message, QWidget& view,
                                        platform::RectEdge edge) {
    takeLook(view);
    m_text->setText(message.value_or(QString()));
    setAccessibleText(m_text->text());
    fitText();
    const QSizeF padding = StyleReference().get<PopoverStyle>(&view).padding();
    setContentSize((QSizeF(m_text->size()) + 2 * padding).toSize());
    show({}, view, edge);
}

void SimpleTextViewPopover::show(const QRect& rect, QWidget& view, platform::RectEdge preferredEdge) {
    m_currentPositioningView = &view;
    Popover::show(rect, view, preferredEdge);
}

void SimpleTextViewPopover::close() {
    m_currentPositioningView = nullptr;
    Popover::close();
}

bool SimpleTextViewPopover::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_currentPositioningView && event->type() == QEvent::StyleChange)
        takeLook(*m_currentPositioningView);
    return Popover::eventFilter(watched, event);
}

SimpleTextViewPopover& SimpleTextViewPopoverController::popover() {
    if (!m_popover)
        m_popover = std::make_unique<SimpleTextViewPopover>();
    return *m_popover;
}

void SimpleTextViewPopoverController::update(const std::optional<QString>& message, QWidget& view) {
    if (message)
        popover().showMessage(message, view, platform::RectEdge::maxY);
    else if (m_popover)
        m_popover->close();
}

} // namespace tidepool
