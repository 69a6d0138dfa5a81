#pragma once

#include "Chorale/AudioParameter.h"

#include <QCoreApplication>

#include <functional>
#include <string>
#include <vector>

/// A parameter, from 0 to 100 unless told otherwise, and what the host hears of it: "touch 5", "value 6",
/// "release 6".
class HostWatch {
public:
    explicit HostWatch(platform::AudioUnitParameterUnit unit = platform::AudioUnitParameterUnit::generic,
                       float upperBound = 100, float value = 5, std::optional<QStringList> names = {},
                       float lowerBound = 0)
        : parameter(std::make_shared<chorale::AudioParameter>(
              1, QStringLiteral("level"), QStringLiteral("Level"), unit,
              chorale::ClosedRange<float>(lowerBound, upperBound), value, std::move(names))) {
        m_token =
            parameter->auParameter()->tokenByAddingParameterAutomationObserver([this](const auto& event) {
                constexpr const char* events[] = {"value", "touch", "release"};
                heard.push_back(std::string(events[static_cast<int>(event.eventType)]) + ' ' +
                                QString::number(event.value).toStdString());
                if (echo)
                    parameter->setValue(echo(event.value), chorale::ParameterEditor::parameterObserver,
                                        chorale::ParameterEditorState::change);
            });
    }

    ~HostWatch() { parameter->auParameter()->removeParameterObserver(m_token); }

    HostWatch(const HostWatch&) = delete;
    HostWatch& operator=(const HostWatch&) = delete;

    /// What was heard since the last call, after all that is on its way to the screen has arrived.
    std::vector<std::string> take() {
        turn();
        return std::exchange(heard, {});
    }

    /// The host's own change.
    void send(float value) {
        parameter->setValue(value, chorale::ParameterEditor::parameterObserver,
                            chorale::ParameterEditorState::change);
        turn();
    }

    static void turn() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    std::shared_ptr<chorale::AudioParameter> parameter;
    std::vector<std::string> heard;
    std::function<float(float)> echo; ///< What the host makes of a value, and sends back; empty for nothing.

private:
    platform::AUParameterObserverToken m_token{};
};
