#pragma once

#include <QColor>

namespace gallery {

/// How well one opaque colour stands out from another, from 1 to 21: the contrast ratio of WCAG 2.1, section
/// 1.4.3, which asks for 4.5 of text and 3 of large text and controls.
double contrastRatio(const QColor& a, const QColor& b);

} // namespace gallery
