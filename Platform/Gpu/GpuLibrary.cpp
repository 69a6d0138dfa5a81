#include "Platform/Gpu/GpuLibrary.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Gpu/GpuDevice.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace platform {

GpuLibrary::GpuLibrary(const Bundle& bundle) {
    QFile file(bundle.path(QStringLiteral("Shaders/Shaders.json")));
    const auto document =
        file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
    if (!document.isObject())
        throw GpuError("no shader library in " + bundle.directory().toStdString());
    const auto functions = document.object();
    for (auto function = functions.begin(); function != functions.end(); ++function) {
        const auto description = function->toObject();
        Entry entry{bundle.path(u"Shaders/" + description[u"file"].toString()), {}};
        const auto names = description[u"bytes"].toArray();
        for (const auto& name : names)
            entry.bytes.push_back(name.toString().toStdString());
        m_entries.insert(function.key(), entry);
    }
}

std::optional<GpuFunction> GpuLibrary::function(const QString& name) const {
    const auto entry = m_entries.find(name);
    if (entry == m_entries.end())
        return std::nullopt;
    QFile file(entry->file);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return GpuFunction{name, file.readAll(), entry->bytes};
}

} // namespace platform
