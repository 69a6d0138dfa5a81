#include "Gallery/Pages/ImageSpecimen.h"

#include "Gallery/Layout/Text.h"
#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/TPColors.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace gallery {

using tidepool::TPColorsAK;

namespace {

constexpr int specimenWidth = 864;
constexpr int padding = 12;

// Where the columns begin.
constexpr int naturalColumn = 392;
constexpr int firstPixelsColumn = 464;
constexpr int secondPixelsColumn = 572;
constexpr int stretchedColumn = 680;
constexpr int stretchedWidth = specimenWidth - stretchedColumn;

/// How much the pixels are enlarged: one of 2x is then one point.
constexpr int enlargement = 2;

} // namespace

ImageSpecimen::ImageSpecimen(KitAsset asset, QWidget* parent)
    : QWidget(parent), m_asset(std::move(asset)), m_image(kitImage(m_asset.name)) {
    constexpr int textHeight = 36;
    const int enlarged = enlargement * static_cast<int>(m_image.size().height());
    setFixedSize(specimenWidth, std::max(textHeight, enlarged) + 2 * padding);
    setAccessibleName(m_asset.name);
    setAccessibleDescription(m_asset.comment);
}

QWidget* ImageSpecimen::makeHeadings() {
    auto* const headings = new QWidget;
    headings->setFixedSize(specimenWidth, 16);
    const auto add = [&](int x, const QString& text) {
        auto* const label = makeText(text, TextRole::caption);
        label->setParent(headings);
        label->adjustSize();
        label->move(x, 0);
    };
    add(0, tr("Name"));
    add(naturalColumn, tr("Natural"));
    add(firstPixelsColumn, tr("Pixels at 1×"));
    add(secondPixelsColumn, tr("Pixels at 2×"));
    add(stretchedColumn, tr("In use"));
    return headings;
}

QString ImageSpecimen::facts() const {
    const auto size = m_image.size();
    const auto caps = m_image.capInsets();
    const QString text = QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
    if (!caps.isNull())
        return text + tr(" · caps %1 %2 %3 %4")
                          .arg(caps.top())
                          .arg(caps.left())
                          .arg(caps.bottom())
                          .arg(caps.right());
    return m_image.isTemplate() ? text + tr(" · template") : text;
}

void ImageSpecimen::paintText(QPainter& painter) const {
    const QFont nameFont = platform::systemFont(13, QFont::Medium);
    const QFont captionFont = textFont(TextRole::caption);
    const QRect name(0, height() / 2 - 19, naturalColumn - 24, 18);
    painter.setPen(textColor(TextRole::heading));
    painter.setFont(nameFont);
    painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter, m_asset.name);
    painter.setPen(textColor(TextRole::caption));
    painter.setFont(captionFont);
    painter.drawText(name, Qt::AlignRight | Qt::AlignVCenter, facts());
    painter.drawText(name.translated(0, 20), Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(captionFont).elidedText(m_asset.comment, Qt::ElideRight, name.width()));
}

void ImageSpecimen::paintPixels(QPainter& painter, int x, int scale) const {
    const QImage pixels = m_image.tinted(TPColorsAK::grey85).bitmap(m_image.size(), scale);
    const QSizeF size = m_image.size() * enlargement;
    painter.drawImage(QRectF(QPointF(x, (height() - size.height()) / 2), size), pixels, pixels.rect());
}

void ImageSpecimen::paintStretched(QPainter& painter) const {
    const QSizeF size = m_image.size();
    const qreal top = (height() - size.height()) / 2;
    if (m_image.isTemplate()) {
        qreal x = stretchedColumn;
        for (const QColor& tint : {TPColorsAK::Vantor::lightBlue.color(), TPColorsAK::Vantor::aqua.color(),
                                   TPColorsAK::Vantor::orange.color(), TPColorsAK::Vantor::purple.color()}) {
            m_image.tinted(tint).draw(painter, QRectF(QPointF(x, top), size));
            x += size.width() + 16;
        }
    } else if (m_image.resizingMode() == platform::Image::ResizingMode::tile) {
        m_image.draw(painter, QRectF(stretchedColumn, padding, stretchedWidth, height() - 2 * padding));
    } else if (!m_image.capInsets().isNull()) {
        m_image.draw(painter, QRectF(stretchedColumn, top, stretchedWidth, size.height()));
    }
}

void ImageSpecimen::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, TPColorsAK::grey20);
    paintText(painter);
    const qreal top = (height() - m_image.size().height()) / 2;
    m_image.tinted(TPColorsAK::grey85).draw(painter, QRectF(QPointF(naturalColumn, top), m_image.size()));
    paintPixels(painter, firstPixelsColumn, 1);
    paintPixels(painter, secondPixelsColumn, 2);
    paintStretched(painter);
}

} // namespace gallery
