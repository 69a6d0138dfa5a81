#include "Gallery/PagePicture.h"

#include "Gallery/Layout/PageView.h"
#include "Gallery/StyleSet.h"

namespace gallery {

QImage pagePicture(const GalleryPage& page, const GallerySettings& settings) {
    useAppearance(settings.styleSet);
    PageView view(page, settings);
    QImage picture((QSizeF(view.size()) * settings.scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(settings.scale);
    picture.fill(Qt::transparent);
    view.render(&picture);
    picture.setDevicePixelRatio(1);
    return picture.convertToFormat(QImage::Format_RGB888);
}

const std::vector<GallerySettings>& pictureSettings() {
    static const std::vector<GallerySettings> all{{},
                                                  {.styleSet = GallerySettings::StyleSet::light},
                                                  {.scale = 1.5},
                                                  {.scale = 2},
                                                  {.isRightToLeft = true}};
    return all;
}

QString pictureName(const GalleryPage& page, const GallerySettings& settings) {
    QString name = page.title;
    if (settings.styleSet == GallerySettings::StyleSet::light)
        name += u" light";
    if (settings.isRightToLeft)
        name += u" right to left";
    return settings.scale == 1 ? name + u".png" : QStringLiteral("%1@%2x.png").arg(name).arg(settings.scale);
}

} // namespace gallery
