#include "Platform/AudioUnits/AudioComponentManager.h"

#include "Platform/AudioUnits/FourCharCode.h"
#include "Platform/AudioUnits/LilvPointers.h"
#include "Platform/Core/CodeLocation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace platform {

namespace {

#define COMPONENT_VOCABULARY "http://quillfen.example/ns/component#"

// Asks the manifests only; asking the plug-in would load all that is known about it.
std::uint32_t code(LilvWorld& world, const LilvPlugin& plugin, const char* property) {
    const NodePointer predicate = uriNode(world, property);
    const NodesPointer values(
        lilv_world_find_nodes(&world, lilv_plugin_get_uri(&plugin), predicate.get(), nullptr));
    if (!values || lilv_nodes_size(values.get()) != 1)
        return 0;
    const LilvNode* value = lilv_nodes_get_first(values.get());
    return lilv_node_is_string(value) ? fourCharCode(QString::fromUtf8(lilv_node_as_string(value))) : 0;
}

AudioComponentDescription description(LilvWorld& world, const LilvPlugin& plugin) {
    return {.componentType = code(world, plugin, COMPONENT_VOCABULARY "type"),
            .componentSubType = code(world, plugin, COMPONENT_VOCABULARY "subtype"),
            .componentManufacturer = code(world, plugin, COMPONENT_VOCABULARY "manufacturer")};
}

bool isComplete(const AudioComponentDescription& codes) {
    return codes.componentType != 0 && codes.componentSubType != 0 && codes.componentManufacturer != 0;
}

QString bundlePath(const LilvPlugin& plugin) {
    char* path = lilv_file_uri_parse(lilv_node_as_uri(lilv_plugin_get_bundle_uri(&plugin)), nullptr);
    QString result = QFile::decodeName(path);
    lilv_free(path);
    return result;
}

AudioComponent component(const LilvPlugin& plugin, const AudioComponentDescription& codes) {
    const NodePointer name(lilv_plugin_get_name(&plugin));
    return {.description = codes,
            .uri = QString::fromUtf8(lilv_node_as_uri(lilv_plugin_get_uri(&plugin))),
            .name = name ? QString::fromUtf8(lilv_node_as_string(name.get())) : QString(),
            .bundlePath = bundlePath(plugin)};
}

bool isLoaded(LilvWorld& world, const LilvNode& bundle) {
    const LilvPlugins* plugins = lilv_world_get_all_plugins(&world);
    LILV_FOREACH(plugins, i, plugins)
    if (lilv_node_equals(lilv_plugin_get_bundle_uri(lilv_plugins_get(plugins, i)), &bundle))
        return true;
    return false;
}

void loadBundles(LilvWorld& world, const QString& directory) {
    for (const QFileInfo& bundle : QDir(directory).entryInfoList({QStringLiteral("*.lv2")}, QDir::Dirs)) {
        const QByteArray path = QFile::encodeName(bundle.canonicalFilePath() + u'/');
        const NodePointer uri(lilv_new_file_uri(&world, nullptr, path.constData()));
        if (!isLoaded(world, *uri))
            lilv_world_load_bundle(&world, uri.get());
    }
}

} // namespace

AudioComponentManager& AudioComponentManager::shared() {
    static AudioComponentManager manager;
    return manager;
}

void AudioComponentManager::addCarriedComponents() {
    const QString programDirectory = QFileInfo(programPath()).absolutePath();
    const QString directory =
        QDir::cleanPath(programDirectory + u'/' + QStringLiteral(NOTELOFT_LV2_DIRECTORY));
    if (!m_directories.contains(directory))
        m_directories.append(directory);
}

QList<AudioComponent> AudioComponentManager::components(const AudioComponentDescription& matching) const {
    const WorldPointer world(lilv_world_new());
    lilv_world_load_all(world.get());
    for (const QString& directory : m_directories)
        loadBundles(*world, directory);

    QList<AudioComponent> found;
    const LilvPlugins* plugins = lilv_world_get_all_plugins(world.get());
    LILV_FOREACH(plugins, i, plugins) {
        const LilvPlugin& plugin = *lilv_plugins_get(plugins, i);
        const AudioComponentDescription codes = description(*world, plugin);
        if (isComplete(codes) && matching.matches(codes))
            found.append(component(plugin, codes));
    }
    return found;
}

} // namespace platform
