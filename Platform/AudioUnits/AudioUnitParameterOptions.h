#pragma once

#include <cstdint>

namespace platform {

/// Flags of a parameter, to be or-ed.
using AudioUnitParameterOptions = std::uint32_t;

constexpr AudioUnitParameterOptions audioUnitParameterFlagHasClump = 0x0010'0000;
constexpr AudioUnitParameterOptions audioUnitParameterFlagValuesHaveStrings = 0x0020'0000;
constexpr AudioUnitParameterOptions audioUnitParameterFlagCanRamp = 0x0200'0000;
/// Other parameters follow from this one, in the whole unit.
constexpr AudioUnitParameterOptions audioUnitParameterFlagIsGlobalMeta = 0x1000'0000;
constexpr AudioUnitParameterOptions audioUnitParameterFlagIsReadable = 0x4000'0000;
constexpr AudioUnitParameterOptions audioUnitParameterFlagIsWritable = 0x8000'0000;

} // namespace platform
