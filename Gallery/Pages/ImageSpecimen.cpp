#include "Gallery/Pages/ImageSpecimen.h"

#include "Gallery/Layout/Text.h"
#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Palette/TPColors.h"

#include <QPainter>
#include <QStyle>

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

/// A place in a row of `widget`, whose columns run from the right where lines do.
QRectF mirrored(const QWidget& widget, QRectF place) {
    if (widget.isRightToLeft())
        place.moveLeft(widget.width() - place.right());
    return place;
}

/// Text flags for a line in the middle of its row.
int aligned(const QWidget& widget, Qt::Alignment alignment) {
    return static_cast<int>(QStyle::visualAlignment(widget.layoutDirection(), alignment) | Qt::AlignVCenter);
}

/// The names of the columns.
class Headings : public QWidget {
public:
    Headings() { setFixedSize(specimenWidth, 16); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(textColor(TextRole::caption));
        painter.setFont(textFont(TextRole::caption));
        for (const auto& [x, title] : {std::pair{0, ImageSpecimen::tr("Name")},
                                       {naturalColumn, ImageSpecimen::tr("Natural")},
                                       {firstPixelsColumn, ImageSpecimen::tr("Pixels at 1×")},
                                       {secondPixelsColumn, ImageSpecimen::tr("Pixels at 2×")},
                                       {stretchedColumn, ImageSpecimen::tr("In use")}})
            painter.drawText(mirrored(*this, QRectF(x, 0, 100, height())), aligned(*this, Qt::AlignLeft),
                             title);
    }
};

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
    return new Headings;
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
    const QFont captionFont = textFont(TextRole::caption);
    const QRectF name = mirrored(*this, {0, height() / 2.0 - 19, naturalColumn - 24, 18});
    painter.setPen(textColor(TextRole::heading));
    painter.setFont(platform::systemFont(13, QFont::Medium));
    painter.drawText(name, aligned(*this, Qt::AlignLeft), m_asset.name);
    painter.setPen(textColor(TextRole::caption));
    painter.setFont(captionFont);
    painter.drawText(name, aligned(*this, Qt::AlignRight), facts());
    painter.drawText(name.translated(0, 20), aligned(*this, Qt::AlignLeft),
                     QFontMetricsF(captionFont).elidedText(m_asset.comment, Qt::ElideRight, name.width()));
}

QRectF ImageSpecimen::place(qreal x, QSizeF size) const {
    return mirrored(*this, {QPointF(x, (height() - size.height()) / 2), size});
}

void ImageSpecimen::paintPixels(QPainter& painter, int x, int scale) const {
    const QImage pixels = m_image.tinted(TPColorsAK::grey85).bitmap(m_image.size(), scale);
    painter.drawImage(place(x, m_image.size() * enlargement), pixels, pixels.rect());
}

void ImageSpecimen::paintInUse(QPainter& painter) const {
    const QSizeF size = m_image.size();
    if (m_image.isTemplate()) {
        qreal x = stretchedColumn;
        for (const QColor& tint : {TPColorsAK::Vantor::lightBlue.color(), TPColorsAK::Vantor::aqua.color(),
                                   TPColorsAK::Vantor::orange.color(), TPColorsAK::Vantor::purple.color()}) {
            m_image.tinted(tint).draw(painter, place(x, size));
            x += size.width() + 16;
        }
    } else if (m_image.resizingMode() == platform::Image::ResizingMode::tile) {
        m_image.draw(painter, place(stretchedColumn, {stretchedWidth, height() - 2.0 * padding}));
    } else if (!m_image.capInsets().isNull()) {
        m_image.draw(painter, place(stretchedColumn, {stretchedWidth, size.height()}));
    }
}

void ImageSpecimen::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, TPColorsAK::grey20);
    paintText(painter);
    m_image.tinted(TPColorsAK::grey85).draw(painter, place(naturalColumn, m_image.size()));
    paintPixels(painter, firstPixelsColumn, 1);
    paintPixels(painter, secondPixelsColumn, 2);
    paintInUse(painter);
}

} // namespace gallery
