#include "Platform/AudioUnits/Validator/PortBuffer.h"

#include "Platform/AudioUnits/Validator/HostFeatures.h"

#include <lv2/atom/util.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t sequenceSize = 65536;
constexpr std::uint32_t sequenceCapacity = sequenceSize - sizeof(LV2_Atom);
constexpr std::size_t marginWords = 32;
constexpr std::uint64_t marginPattern = 0xA5A5A5A55A5A5A5A;

std::size_t size(PluginPort::Kind kind) {
    switch (kind) {
    case PluginPort::Kind::control:
        return sizeof(float) * 2; // A whole word, so that the margin follows.
    case PluginPort::Kind::audio:
    case PluginPort::Kind::cv:
        return sizeof(float) * HostFeatures::maximumBlockLength;
    case PluginPort::Kind::sequence:
        return sequenceSize;
    case PluginPort::Kind::unconnected:
        break;
    }
    return 0;
}

} // namespace

PortBuffer::PortBuffer(const PluginPort& port)
    : m_port(port), m_size(size(port.kind)), m_words(m_size / sizeof(std::uint64_t) + marginWords) {
    std::fill(m_words.end() - marginWords, m_words.end(), marginPattern);
    if (m_port.kind == PluginPort::Kind::control)
        setValue(m_port.defaultValue);
}

float PortBuffer::value() const {
    float value = 0;
    std::memcpy(&value, m_words.data(), sizeof value);
    return value;
}

void PortBuffer::setValue(float value) {
    std::memcpy(m_words.data(), &value, sizeof value);
}

void PortBuffer::prepare(const SequenceTypes& types, LV2_URID chunkType) {
    if (m_port.kind != PluginPort::Kind::sequence)
        return;
    if (m_port.isInput) {
        sequence().atom.type = types.sequence;
        sequence().body = {};
        lv2_atom_sequence_clear(&sequence());
    } else {
        sequence().atom = {sequenceCapacity, chunkType};
    }
}

void PortBuffer::add(std::uint32_t frame, std::span<const std::uint8_t> bytes, const SequenceTypes& types) {
    auto* event = lv2_atom_sequence_end(&sequence().body, sequence().atom.size);
    event->time.frames = frame;
    event->body = {static_cast<std::uint32_t>(bytes.size()), types.midiEvent};
    std::memcpy(event + 1, bytes.data(), bytes.size());
    sequence().atom.size +=
        static_cast<std::uint32_t>(sizeof(LV2_Atom_Event)) + lv2_atom_pad_size(event->body.size);
}

std::string PortBuffer::outputFault(std::uint32_t frameCount, const SequenceTypes& types,
                                    int& midiCount) const {
    using Kind = PluginPort::Kind;
    if (m_port.isInput || m_port.kind == Kind::unconnected)
        return {};
    if (m_port.kind == Kind::sequence)
        return sequenceFault(sequence(), sequenceCapacity, frameCount, types, midiCount);
    const auto* samples = reinterpret_cast<const float*>(m_words.data());
    const std::size_t count = m_port.kind == Kind::control ? 1 : frameCount;
    const bool isFinite =
        std::all_of(samples, samples + count, [](float sample) { return std::isfinite(sample); });
    return isFinite ? "" : "a value of port \"" + m_port.symbol + "\" that is not a finite number";
}

bool PortBuffer::isOverrun() const {
    return std::any_of(m_words.end() - marginWords, m_words.end(),
                       [](std::uint64_t word) { return word != marginPattern; });
}

} // namespace platform
