#pragma once

#include "Chorale/ParameterSettings.h"
#include "Plugin/ControlPorts.h"
#include "Plugin/Editor/HostConnection.h"

#include <QDeadlineTimer>
#include <QObject>

#include <map>
#include <memory>
#include <optional>

namespace noteloft::plugin {

/// The models of the plug-in's control ports, tied to the host: what the user changes is written to it, what
/// it changes is shown. An address is the index of its port. Main thread.
class EditorParameters {
public:
    explicit EditorParameters(HostConnection& host);
    ~EditorParameters();
    EditorParameters(const EditorParameters&) = delete;
    EditorParameters& operator=(const EditorParameters&) = delete;

    /// `port` is that of a control that the editor shows: all but `enabled`.
    const std::shared_ptr<chorale::AudioParameter>& parameter(Ports::Index port) const {
        return m_parameters.at(port);
    }

    /// The host's value of a port; ports that the editor does not show are ignored. While the user holds the
    /// port, and for half a second after, it may be an echo of what the user did before: the last one waits.
    void receive(std::uint32_t port, float value);

private:
    /// What a host answers to the user's changes of a port.
    struct Answer {
        bool isOwnTouch = false;      // the touch is no gesture's
        QDeadlineTimer untilEcho;     // what comes before may be an echo
        std::optional<float> waiting; // the last value that came meanwhile
    };

    /// Tells the host. A change without a gesture gets a touch and a release of its own, for hosts that
    /// record what is touched.
    void send(const platform::AUParameterAutomationEvent& event);
    void release(std::uint32_t port);
    void showAnswer(std::uint32_t port);
    void show(std::uint32_t port, float value);

    HostConnection& m_host;
    const std::map<std::uint32_t, std::shared_ptr<chorale::AudioParameter>> m_parameters;
    const std::shared_ptr<chorale::ChoraleAudioUnit> m_audioUnit;
    const std::shared_ptr<chorale::ParameterSettings> m_settings;
    platform::AUParameterObserverToken m_token{};
    QObject m_later; // what is called later is dropped with it
    std::map<std::uint32_t, Answer> m_answers;
};

} // namespace noteloft::plugin
