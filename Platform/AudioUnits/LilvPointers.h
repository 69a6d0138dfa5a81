#pragma once

#include <lilv/lilv.h>

#include <memory>

namespace platform {

/// Calls a function of the C library to release an object.
template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const {
        release(object);
    }
};

using WorldPointer = std::unique_ptr<LilvWorld, Release<lilv_world_free>>;
using NodePointer = std::unique_ptr<LilvNode, Release<lilv_node_free>>;
using NodesPointer = std::unique_ptr<LilvNodes, Release<lilv_nodes_free>>;
using InstancePointer = std::unique_ptr<LilvInstance, Release<lilv_instance_free>>;
using StatePointer = std::unique_ptr<LilvState, Release<lilv_state_free>>;

inline NodePointer uriNode(LilvWorld& world, const char* uri) {
    return NodePointer(lilv_new_uri(&world, uri));
}

} // namespace platform
