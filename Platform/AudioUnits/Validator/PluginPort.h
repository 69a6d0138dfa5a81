#pragma once

#include <lilv/lilv.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// A port as the plug-in's data describe it.
struct PluginPort {
    enum class Kind { control, audio, cv, sequence, unconnected };

    std::uint32_t index = 0;
    std::string symbol;
    Kind kind = Kind::unconnected;
    bool isInput = false;
    bool takesMidi = false;
    float minimum = 0;
    float maximum = 1;
    float defaultValue = 0;

    bool isControlInput() const { return kind == Kind::control && isInput; }

    /// Nothing for a port that is neither known nor optional.
    static std::optional<PluginPort> read(LilvWorld& world, const LilvPlugin& plugin, std::uint32_t index);
};

} // namespace platform
