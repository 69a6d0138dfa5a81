#include "Gallery/PagePicture.h"

#include "Gallery/Layout/PageView.h"
#include "Gallery/StyleSet.h"

namespace gallery {

QImage pagePicture(const GalleryPage& page, const GallerySettings& settings) {
    useAppearance(settings.styleSet);
    PageView view(page, settings);
    QImage picture(view.size() * settings.scale, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(settings.scale);
    picture.fill(Qt::transparent);
    view.render(&picture);
    picture.setDevicePixelRatio(1);
    return picture.convertToFormat(QImage::Format_RGB888);
}

QString pictureName(const GalleryPage& page, int scale) {
    return scale == 1 ? page.title + u".png" : QStringLiteral("%1@%2x.png").arg(page.title).arg(scale);
}

} // namespace gallery
