#include "Platform/Updates/Appcast.h"

#include "Platform/Updates/AppcastReader.h"
#include "Platform/Updates/VersionComparison.h"

namespace platform {

Appcast Appcast::read(const QByteArray& data) {
    if (data.size() > maximumSize)
        return {{}, QStringLiteral("the feed is too long")};
    AppcastReader reader(data);
    auto items = reader.read();
    return reader.error().isEmpty() ? Appcast{std::move(items), {}} : Appcast{{}, reader.error()};
}

const AppcastItem* Appcast::newestAbove(const QString& runningVersion, const QString& systemVersion) const {
    const auto isOffered = [&](const AppcastItem& item) {
        return item.channel.isEmpty() &&
               (item.operatingSystem.isEmpty() || item.operatingSystem == QStringLiteral("linux")) &&
               compareVersions(item.minimumSystemVersion, systemVersion) <= 0;
    };
    const AppcastItem* newest = nullptr;
    for (const AppcastItem& item : items)
        if (compareVersions(item.version, newest != nullptr ? newest->version : runningVersion) > 0 &&
            isOffered(item))
            newest = &item;
    return newest;
}

} // namespace platform
