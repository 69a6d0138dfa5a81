#include "Chorale/ParameterSettings.h"

#include "Chorale/ParameterText.h"
#include "Platform/Core/Bundle.h"

#include <utility>

namespace chorale {

QString ParameterSettings::pluginVersion() const {
    const QString version = platform::Bundle::main().information(QStringLiteral("version"));
    return version.isNull() ? QStringLiteral("Unknown") : version;
}

std::shared_ptr<ChoraleAudioUnit> ParameterSettings::audioUnit() const {
    return m_audioUnit.read([](const auto& audioUnit) { return audioUnit.lock(); });
}

void ParameterSettings::setAudioUnit(const std::shared_ptr<ChoraleAudioUnit>& audioUnit) {
    m_audioUnit.replace(audioUnit);
}

void ParameterSettings::setupParameters(QList<std::shared_ptr<AudioParameter>> parameters) {
    m_parameters = std::move(parameters);
    m_byAddress.clear();
    for (const auto& parameter : std::as_const(m_parameters))
        m_byAddress.try_emplace(parameter->address(), parameter.get());
}

void ParameterSettings::configureAudioUnit(const std::shared_ptr<ChoraleAudioUnit>& audioUnit) {
    setAudioUnit(audioUnit);
    QList<std::shared_ptr<platform::AUParameter>> hostParameters;
    for (const auto& parameter : std::as_const(m_parameters))
        hostParameters.append(parameter->auParameter());
    audioUnit->setParameterTree(platform::AUParameterTree::createTree(std::move(hostParameters)));
    for (const auto& parameter : std::as_const(m_parameters))
        audioUnit->applyParameterValue(parameter->address(), parameter->value());
}

void ParameterSettings::setupParameterTreeListeners() {
    const auto unit = audioUnit();
    const auto tree = unit ? unit->parameterTree() : nullptr;
    if (!tree)
        return;
    tree->setImplementorValueObserver(
        [weakSelf = weak_from_this()](const platform::AUParameter& parameter, float value) {
            if (const auto self = weakSelf.lock())
                self->setValue(value, parameter.address(), ParameterEditor::parameterObserver);
        });
    tree->setImplementorStringFromValueCallback(
        [](const platform::AUParameter& parameter, std::optional<float> value) {
            return hostText(value, parameter.valueStrings());
        });
    tree->setImplementorValueFromStringCallback(
        [](const platform::AUParameter&, const QString& text) { return decimalNumber(text).value_or(0); });
}

void ParameterSettings::setValue(float value, std::uint64_t forAddress, ParameterEditor source) {
    if (const auto found = m_byAddress.find(forAddress); found != m_byAddress.end()) {
        AudioParameter& parameter = *found->second;
        parameter.setValue(value, source, ParameterEditorState::change);
        const auto& dependents = parameter.dependentParameterAddresses();
        if (dependents && !dependents->isEmpty())
            updateDependentValues(forAddress, value);
    }
    if (const auto unit = audioUnit())
        unit->applyParameterValue(forAddress, value);
}

void ParameterSettings::updateDependentValues(std::uint64_t, float) {}

} // namespace chorale
