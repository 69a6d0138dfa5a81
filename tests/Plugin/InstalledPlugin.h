#pragma once

#include "Plugin/NoteloftPlugin.h"

#include <lilv/lilv.h>

#include <memory>

template <auto free>
struct Free {
    void operator()(auto* pointer) const { free(pointer); }
};

using World = std::unique_ptr<LilvWorld, Free<lilv_world_free>>;
using Node = std::unique_ptr<LilvNode, Free<lilv_node_free>>;
using Nodes = std::unique_ptr<LilvNodes, Free<lilv_nodes_free>>;

/// The plug-in of the build tree, as a host finds it.
class InstalledPlugin {
public:
    InstalledPlugin() {
        const Node bundle(lilv_new_file_uri(world.get(), nullptr, NOTELOFT_BUNDLE "/"));
        lilv_world_load_bundle(world.get(), bundle.get());
        lilv_world_load_specifications(world.get());
        const Node uri(lilv_new_uri(world.get(), noteloft::plugin::NoteloftPlugin::uri));
        plugin = lilv_plugins_get_by_uri(lilv_world_get_all_plugins(world.get()), uri.get());
    }

    const World world{lilv_world_new()};
    const LilvPlugin* plugin = nullptr; ///< Null if it is not found.
};
