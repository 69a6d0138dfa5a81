#pragma once

#include "Gallery/GallerySettings.h"

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace gallery {

/// One page of the gallery, as its list has it.
struct GalleryPage {
    /// The heading that the page stands under in the list; pages of one group follow each other.
    QString group;
    /// Unique; the page's picture is named after it.
    QString title;
    /// A sentence under the title.
    QString summary;
    /// The controls on the page and other words that the search finds it by.
    QStringList keywords;
    /// Makes what stands under the title. The caller owns the widget and has set the appearance that goes
    /// with the settings; `make` applies the others except the scale and the direction.
    std::function<QWidget*(const GallerySettings&)> make;
    /// Which settings the page heeds besides the style set, the scale and the direction.
    bool hasStates = false;
    bool hasSizes = false;
};

} // namespace gallery
