#pragma once

#include "Platform/Graphics/Image.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

namespace gallery {

/// An asset of the kit, as its manifest describes it.
struct KitAsset {
    QString name;
    QString comment;

    bool nameBeginsWithOneOf(const QStringList& prefixes) const;
};

/// In the manifest's order.
const QList<KitAsset>& kitColors();
const QList<KitAsset>& kitImages();

QColor darkColor(const QString& name);
QColor lightColor(const QString& name);

/// In the current appearance.
const platform::Image& kitImage(const QString& name);

/// The name of the kit's colour that is `color` in the current appearance; "clear" for a transparent one,
/// else its value.
QString colorName(const QColor& color);

} // namespace gallery
