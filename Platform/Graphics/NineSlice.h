#pragma once

#include <QImage>
#include <QMargins>

namespace platform {

/// `source` at another size, all in pixels. The corners given by `caps` keep their size; the edges and the
/// middle are repeated if `tile`, else stretched. Caps that do not fit in `size` shrink in proportion.
/// Premultiplied ARGB.
QImage drawNineSlice(const QImage& source, const QMargins& caps, const QSize& size, bool tile);

} // namespace platform
