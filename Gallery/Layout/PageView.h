#pragma once

#include "Gallery/GalleryPage.h"

#include <QWidget>

namespace gallery {

/// A whole page: its title, its summary and what it shows, on its ground. The appearance that goes with the
/// settings must have been set before.
class PageView : public QWidget {
    Q_OBJECT

public:
    /// Of every page, in points.
    static constexpr int pageWidth = 960;

    PageView(const GalleryPage& page, const GallerySettings& settings);

    /// The page's own height, in points. The page has it, and takes another when its content changes.
    int pageHeight() const;

protected:
    bool event(QEvent* event) override;
};

} // namespace gallery
