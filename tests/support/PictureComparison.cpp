#include "tests/support/PictureComparison.h"

#include "tests/support/Pixels.h"

#include <QPainter>

PictureComparison::PictureComparison(const QImage& actual, const QImage& expected, PictureTolerance tolerance)
    : m_actual(actual.convertToFormat(QImage::Format_RGB32)),
      m_expected(expected.convertToFormat(QImage::Format_RGB32)),
      m_covered(actual.size().expandedTo(expected.size())),
      m_tolerance(tolerance) {
    for (int y = 0; y < m_covered.height(); ++y)
        for (int x = 0; x < m_covered.width(); ++x)
            m_differing += differsAt(x, y) ? 1 : 0;
}

bool PictureComparison::differsAt(int x, int y) const {
    if (!m_actual.valid(x, y) || !m_expected.valid(x, y))
        return true;
    return difference(m_actual.pixel(x, y), m_expected.pixel(x, y)) > m_tolerance.channel;
}

QImage PictureComparison::sideBySide() const {
    constexpr int gap = 16;
    QImage marked(m_covered, QImage::Format_RGB32);
    marked.fill(Qt::black);
    QPainter dimmer(&marked);
    dimmer.setOpacity(0.35);
    dimmer.drawImage(0, 0, m_actual);
    dimmer.end();
    for (int y = 0; y < m_covered.height(); ++y)
        for (int x = 0; x < m_covered.width(); ++x)
            if (differsAt(x, y))
                marked.setPixelColor(x, y, Qt::magenta);
    QImage sheet(3 * m_covered.width() + 2 * gap, m_covered.height(), QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    painter.drawImage(0, 0, m_actual);
    painter.drawImage(m_covered.width() + gap, 0, m_expected);
    painter.drawImage(2 * (m_covered.width() + gap), 0, marked);
    return sheet;
}
