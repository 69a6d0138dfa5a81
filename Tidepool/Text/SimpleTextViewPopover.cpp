#include "Tidepool/Text/SimpleTextViewPopover.h"

#include "Tidepool/Styles/StyleReference.h"
#include "Tidepool/Styles/WindowStyle.h"

#include <QVBoxLayout>

#include <algorithm>

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
    m_text->setAlignment(Qt::AlignCenter);
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

void SimpleTextViewPopover::showMessage(const std::optional<QString>& message, QWidget& view,
                                        platform::RectEdge edge) {
    takeLook(view);
    m_text->setWordWrap(false);
    m_text->setMinimumWidth(0);
    m_text->setText(message.value_or(QString()));
    if (m_text->sizeHint().width() > widest) {
        m_text->setWordWrap(true);
        m_text->setMinimumWidth(widest);
    }
    setAccessibleText(m_text->text());
    const QSizeF padding = StyleReference().get<PopoverStyle>(&view).padding();
    const QSize text =
        m_text->wordWrap() ? QSize(widest, m_text->heightForWidth(widest)) : m_text->sizeHint();
    setContentSize((QSizeF(text) + 2 * padding).toSize().expandedTo(text + QSize(2 * margin, 2 * margin)));
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
