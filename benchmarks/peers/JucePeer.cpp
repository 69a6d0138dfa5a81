// JUCE's parameter with an attachment, as its editors use them.
#include "benchmarks/Parameters/Changes.h"
#include "benchmarks/Parameters/Peer.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

// One turn of the message thread's loop, without the sleep of the loop's own function.
namespace juce {
extern bool dispatchNextMessageOnSystemQueue(bool returnIfNoPendingMessages);
}

namespace benchmark {

namespace {

class QuietProcessor : public juce::AudioProcessor {
public:
    const juce::String getName() const override { return "Quiet"; }

    void prepareToPlay(double, int) override {}

    void releaseResources() override {}

    void processBlock(juce::AudioBuffer<float>&, juce::MidiBuffer&) override {}

    double getTailLengthSeconds() const override { return 0; }

    bool acceptsMidi() const override { return false; }

    bool producesMidi() const override { return false; }

    juce::AudioProcessorEditor* createEditor() override { return nullptr; }

    bool hasEditor() const override { return false; }

    int getNumPrograms() override { return 1; }

    int getCurrentProgram() override { return 0; }

    void setCurrentProgram(int) override {}

    const juce::String getProgramName(int) override { return {}; }

    void changeProgramName(int, const juce::String&) override {}

    void getStateInformation(juce::MemoryBlock&) override {}

    void setStateInformation(const void*, int) override {}
};

class JucePeer : public Peer {
public:
    explicit JucePeer(int many) {
        for (int index = 0; index <= many; ++index) {
            auto* const parameter = new juce::AudioParameterFloat({"parameter" + juce::String(index), 1},
                                                                  "Parameter " + juce::String(index),
                                                                  juce::NormalisableRange<float>(0, 1), 0);
            m_processor.addParameter(parameter);
            m_parameters.push_back(parameter);
            m_attachments.push_back(
                std::make_unique<juce::ParameterAttachment>(*parameter, [this, index](float value) {
                    index == 0 ? m_value.store(value) : void(++m_manyShown);
                }));
        }
    }

    std::string name() const override { return "JUCE"; }

    void change(int index) override { m_parameters[0]->setValueNotifyingHost(valueAt(index)); }

    // Whether the last of a block has come; once.
    bool isEmpty() override { return m_value == valueAt(changesInBlock - 1) && m_value.exchange(0) != 0; }

    void drain() override { juce::dispatchNextMessageOnSystemQueue(true); }

    void changeMany() override {
        m_manyShown = 0;
        const float value = 1 - m_parameters[1]->get();
        std::thread([&] {
            for (std::size_t index = 1; index < m_parameters.size(); ++index)
                m_parameters[index]->setValueNotifyingHost(value);
        }).join();
    }

    void showMany() override {
        while (m_manyShown + 1 < m_parameters.size())
            drain();
    }

private:
    static float valueAt(int index) { return float(index) / changesInBlock; }

    const juce::ScopedJuceInitialiser_GUI m_juce;
    QuietProcessor m_processor;
    std::vector<juce::AudioParameterFloat*> m_parameters; // the processor's; the first for `change`
    std::vector<std::unique_ptr<juce::ParameterAttachment>> m_attachments;
    std::atomic<float> m_value = 0;
    std::size_t m_manyShown = 0;
};

} // namespace

std::vector<std::unique_ptr<Peer>> makePeers(int many) {
    std::vector<std::unique_ptr<Peer>> peers;
    peers.push_back(std::make_unique<JucePeer>(many));
    return peers;
}

} // namespace benchmark
