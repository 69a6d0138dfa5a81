#include "Gallery/Layout/Text.h"

#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Palette/TPColors.h"

#include <QEvent>
#include <QLabel>

namespace gallery {

using platform::systemFont;
using tidepool::TPColorsAK;

namespace {

/// Lies at the side where its line begins. A plain label goes by the language of its text instead.
class TextLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::LayoutDirectionChange)
            setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                         Qt::AlignVCenter);
        QLabel::changeEvent(event);
    }
};

} // namespace

QFont textFont(TextRole role) {
    switch (role) {
    case TextRole::title:
        return systemFont(30, QFont::DemiBold);
    case TextRole::heading:
        return systemFont(16, QFont::DemiBold);
    case TextRole::body:
        return systemFont(13);
    case TextRole::caption:
        break;
    }
    return systemFont(11);
}

QColor textColor(TextRole role) {
    switch (role) {
    case TextRole::title:
        return TPColorsAK::grey100;
    case TextRole::heading:
        return TPColorsAK::grey85;
    case TextRole::body:
        return TPColorsAK::grey70;
    case TextRole::caption:
        break;
    }
    return TPColorsAK::grey60;
}

QLabel* makeText(const QString& text, TextRole role) {
    auto* const label = new TextLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setFont(textFont(role));
    label->setWordWrap(role == TextRole::title || role == TextRole::body);
    QPalette palette;
    palette.setColor(QPalette::WindowText, textColor(role));
    label->setPalette(palette);
    return label;
}

} // namespace gallery
