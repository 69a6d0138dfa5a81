#include "Platform/Core/CodeLocation.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <link.h>

namespace platform {

namespace {

/// The file that is mapped at `address`, by proc(5). Unlike the loader, which repeats the name that it was
/// given, the kernel knows the path however the working directory has changed since.
QString mappedFile(const void* address) {
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        return {};
    const auto place = reinterpret_cast<quintptr>(address);
    // "<first>-<end> <permissions> <offset> <device> <inode>   <path>"
    for (QByteArray line = maps.readLine(); !line.isEmpty(); line = maps.readLine()) {
        const auto dash = line.indexOf('-');
        const auto space = line.indexOf(' ');
        const auto path = line.indexOf('/');
        if (path >= 0 && place >= line.left(dash).toULongLong(nullptr, 16) &&
            place < line.mid(dash + 1, space - dash - 1).toULongLong(nullptr, 16))
            return QFile::decodeName(line.mid(path).chopped(1));
    }
    return {};
}

} // namespace

QString programPath() {
    static const QString path = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    return path;
}

QString codePath(const void* address) {
    Dl_info information{};
    link_map* map = nullptr;
    if (dladdr1(address, &information, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) == 0 ||
        map == nullptr)
        return {};
    const bool isProgram = map->l_name[0] == '\0';
    return isProgram ? programPath() : QFileInfo(mappedFile(address)).canonicalFilePath();
}

} // namespace platform
