#include "Platform/Core/CodeLocation.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace platform {

QString programPath() {
    static const QString path = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    return path;
}

QString codePath(const void* address) {
    Dl_info information{};
    if (dladdr(address, &information) == 0 || information.dli_fname == nullptr)
        return {};
    // The program itself is reported as it was started, which may be a relative path of another directory.
    const QFileInfo file(QFile::decodeName(information.dli_fname));
    return file.exists() ? file.canonicalFilePath() : programPath();
}

} // namespace platform
