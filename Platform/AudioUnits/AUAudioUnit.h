#pragma once

#include "Platform/AudioUnits/AUParameterTree.h"

#include <memory>
#include <utility>

namespace platform {

/// The base of an audio unit: who has parameters. Shared; hold it weakly where it may go away.
class AUAudioUnit {
public:
    AUAudioUnit() = default;
    virtual ~AUAudioUnit() = default;
    AUAudioUnit(const AUAudioUnit&) = delete;
    AUAudioUnit& operator=(const AUAudioUnit&) = delete;

    /// Null for none. Main thread.
    const std::shared_ptr<AUParameterTree>& parameterTree() const { return m_parameterTree; }

    void setParameterTree(std::shared_ptr<AUParameterTree> tree) { m_parameterTree = std::move(tree); }

private:
    std::shared_ptr<AUParameterTree> m_parameterTree;
};

} // namespace platform
