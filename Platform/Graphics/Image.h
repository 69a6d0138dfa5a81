#pragma once

#include "Platform/Graphics/Recoloring.h"

#include <QColor>
#include <QImage>
#include <QMarginsF>
#include <QSizeF>
#include <QString>

#include <map>
#include <memory>
#include <optional>

class QPainter;
class QRectF;

namespace platform {

class PreparedPicture;

/// A bitmap with several resolutions, drawn at any size: its corners keep theirs, what lies between is
/// stretched or tiled. A value whose copies share their pixels and what they have drawn. Main thread.
class Image {
public:
    enum class ResizingMode { tile, stretch };

    struct Description {
        /// Of the asset; empty for an image that has none.
        QString name{};
        QSizeF size;
        QMarginsF capInsets;
        ResizingMode resizingMode = ResizingMode::stretch;
        bool isTemplate = false;
        /// Paths of the bitmaps by their scale: pixels in a point.
        std::map<int, QString> files;
    };

    /// An image without size that draws nothing.
    Image();

    /// Files are read when they are first drawn; one that cannot be read draws nothing.
    explicit Image(Description description);

    bool isNull() const;

    /// For messages and tools; tells nothing about the pixels.
    QString name() const;

    /// In points.
    QSizeF size() const;
    QMarginsF capInsets() const;
    ResizingMode resizingMode() const;

    /// A template is a shape without a colour of its own.
    bool isTemplate() const { return m_template; }

    /// For a template, a copy in `color` that is no template; any other image unchanged.
    Image tinted(const QColor& color) const;

    /// A copy with other colours; of a template, the same.
    Image recolored(const Recoloring& recoloring) const;

    /// Fills `target`, whose edges are moved to the nearest pixels, so that nothing is blurred. It is
    /// `opacity` times as opaque, from 0 to 1.
    void draw(QPainter& painter, const QRectF& target, float opacity = 1) const;

    /// The picture of `size` points at `scale` pixels a point, kept for the next call with the same
    /// arguments. Null if the size is empty.
    QImage bitmap(QSizeF size, qreal scale) const;

private:
    struct Data;

    /// Null if there is nothing to draw. Valid until another picture is drawn.
    const PreparedPicture* picture(QSizeF size, qreal scale, float opacity) const;

    std::shared_ptr<Data> m_data;
    std::optional<QRgb> m_tint;
    std::optional<Recoloring> m_recoloring;
    bool m_template = false;
};

} // namespace platform
