#pragma once

#include <QImage>

/// What may differ between two pictures that count as the same. A colour that is off by more than `channel`
/// in one channel, of 255, counts as another one; `pixels` may have one. Rounding passes, however much of
/// it there is; a shift by a pixel does not, even of a small drawing.
struct PictureTolerance {
    int channel = 4;
    int pixels = 8;
};

/// Two pictures side by side. Pictures of different sizes are never the same.
class PictureComparison {
public:
    PictureComparison(const QImage& actual, const QImage& expected, PictureTolerance tolerance = {});

    bool isSame() const { return m_actual.size() == m_expected.size() && m_differing <= m_tolerance.pixels; }

    /// The pixels with another colour; what only one of the pictures covers counts.
    int differing() const { return m_differing; }

    /// The actual picture, the expected one, and the actual one dimmed with the differences in magenta.
    QImage sideBySide() const;

private:
    bool differsAt(int x, int y) const;

    QImage m_actual;
    QImage m_expected;
    QSize m_covered;
    PictureTolerance m_tolerance;
    int m_differing = 0;
};
