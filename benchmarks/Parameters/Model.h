#pragma once

#include "Chorale/ParameterSettings.h"
#include "Platform/Core/MainThreadShared.h"

#include <QList>

#include <cstdint>
#include <memory>

namespace benchmark {

class QuietUnit : public chorale::ChoraleAudioUnit {
public:
    void applyParameterValue(platform::AUParameterAddress, float) override {}
};

/// Parameters with all that a plug-in ties to them.
struct Model {
    explicit Model(int count) {
        for (int index = 0; index < count; ++index)
            parameters.append(platform::makeMainThreadShared<chorale::AudioParameter>(
                addressOf(index), QStringLiteral("parameter%1").arg(index),
                QStringLiteral("Parameter %1").arg(index), platform::AudioUnitParameterUnit::generic,
                chorale::ClosedRange<float>(0, 1), 0.F));
        settings->setupParameters(parameters);
        settings->configureAudioUnit(unit);
        settings->setupParameterTreeListeners();
    }

    // Spread as hosts' addresses are, not in a row.
    static std::uint64_t addressOf(int index) { return std::uint64_t(index) * 0x9E37'79B9'7F4A'7C15U; }

    std::shared_ptr<QuietUnit> unit = std::make_shared<QuietUnit>();
    std::shared_ptr<chorale::ParameterSettings> settings = std::make_shared<chorale::ParameterSettings>();
    QList<std::shared_ptr<chorale::AudioParameter>> parameters;
};

} // namespace benchmark
