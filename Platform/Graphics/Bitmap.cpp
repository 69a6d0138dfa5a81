#include "Platform/Graphics/Bitmap.h"

#include <QFile>

#include <png.h>

namespace platform {

QImage readBitmap(const QString& file) {
    png_image source{};
    source.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&source, QFile::encodeName(file).constData()) == 0)
        return {};
    source.format = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    QImage picture(static_cast<int>(source.width), static_cast<int>(source.height), QImage::Format_ARGB32);
    const bool isRead =
        !picture.isNull() && png_image_finish_read(&source, nullptr, picture.bits(), 0, nullptr) != 0;
    png_image_free(&source);
    return isRead ? std::move(picture).convertToFormat(QImage::Format_ARGB32_Premultiplied) : QImage();
}

} // namespace platform
