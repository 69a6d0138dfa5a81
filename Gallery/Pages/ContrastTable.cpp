#include "Gallery/Pages/ContrastTable.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Pages/Contrast.h"
#include "Gallery/Pages/KitAssets.h"
#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Palette/TPColors.h"

#include <QPainter>

namespace gallery {

namespace {

constexpr int headingHeight = 26;
constexpr int rowHeight = 34;
constexpr int nameWidth = 132;
constexpr int cellWidth = 118;
constexpr int appearanceGap = 24;

struct Cell {
    QRect place;
    QColor text;
    QColor ground;
    /// Of the ratio, which must be legible where the text is not.
    QColor note;
};

void paintCell(QPainter& painter, const Cell& cell) {
    painter.fillRect(cell.place, cell.ground);
    painter.setPen(cell.text);
    const QRect inside = cell.place.adjusted(12, 0, -12, 0);
    painter.setFont(platform::systemFont(14, QFont::Medium));
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Text"));
    painter.setPen(cell.note);
    painter.setFont(textFont(TextRole::caption));
    painter.drawText(inside, Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(contrastRatio(cell.text, cell.ground), 'f', 1));
}

} // namespace

ContrastTable::ContrastTable(const QStringList& texts, const QStringList& grounds, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_grounds(grounds) {
    const auto columns = static_cast<int>(grounds.size());
    setFixedSize(nameWidth + 2 * columns * cellWidth + appearanceGap,
                 headingHeight + rowHeight * static_cast<int>(texts.size()));
    setAccessibleName(tr("Contrast of text on its grounds"));
}

void ContrastTable::paintRow(QPainter& painter, int y, const QString& text) const {
    painter.setPen(textColor(TextRole::body));
    painter.setFont(textFont(TextRole::body));
    painter.drawText(QRect(0, y, nameWidth, rowHeight), Qt::AlignLeft | Qt::AlignVCenter, text);
    const QString note = QStringLiteral("Grey 60%");
    int x = nameWidth;
    for (const QString& ground : m_grounds) {
        paintCell(painter,
                  {{x, y, cellWidth, rowHeight}, darkColor(text), darkColor(ground), darkColor(note)});
        x += cellWidth;
    }
    x += appearanceGap;
    for (const QString& ground : m_grounds) {
        paintCell(painter,
                  {{x, y, cellWidth, rowHeight}, lightColor(text), lightColor(ground), lightColor(note)});
        x += cellWidth;
    }
}

void ContrastTable::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(textColor(TextRole::caption));
    painter.setFont(textFont(TextRole::caption));
    const auto columns = static_cast<int>(m_grounds.size());
    for (int column = 0; column < 2 * columns; ++column) {
        const int x = nameWidth + column * cellWidth + (column >= columns ? appearanceGap : 0);
        const QString appearance = column < columns ? tr("Dark") : tr("Light");
        const QString ground = m_grounds[column % columns].section(u'/', -1);
        painter.drawText(QRect(x + 12, 0, cellWidth, headingHeight - 8), Qt::AlignLeft | Qt::AlignVCenter,
                         appearance + u" · " + ground);
    }
    for (int row = 0; row < m_texts.size(); ++row)
        paintRow(painter, headingHeight + row * rowHeight, m_texts[row]);
}

} // namespace gallery
