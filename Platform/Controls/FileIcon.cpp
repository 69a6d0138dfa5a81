#include "Platform/Controls/FileIcon.h"

#include <QApplication>
#include <QMimeDatabase>
#include <QPixmap>
#include <QStyle>

namespace platform {

namespace {

QIcon typeIcon(const QString& path) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    const QIcon plain = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName(), plain));
}

} // namespace

QIcon fileIcon(const QString& path) {
    constexpr QSize size(16, 16);
    const QIcon all = typeIcon(path);
    QIcon icon;
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        icon.addPixmap(all.pixmap(size, scale));
    return icon;
}

} // namespace platform
