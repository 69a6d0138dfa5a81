#pragma once

#include "Platform/Publishing/Publisher.h"

#include <mutex>
#include <utility>

namespace platform {

/// The subscriber that `Publisher::sink` attaches: it asks for everything.
template <typename T>
class Sink : public Subscriber<T> {
public:
    Sink(std::function<void(const T&)> receiveValue, std::function<void(const Completion&)> receiveCompletion)
        : m_receiveValue(std::move(receiveValue)), m_receiveCompletion(std::move(receiveCompletion)) {}

    void receive(std::shared_ptr<Subscription> subscription) override {
        {
            const std::lock_guard lock(m_mutex);
            if (!m_isCancelled)
                m_subscription = subscription;
        }
        if (isCancelled())
            subscription->cancel();
        else
            subscription->request(Demand::unlimited());
    }

    Demand receive(const T& value) override {
        if (!isCancelled())
            m_receiveValue(value);
        return Demand::none();
    }

    void receive(const Completion& completion) override {
        if (!isCancelled() && m_receiveCompletion)
            m_receiveCompletion(completion);
        end();
    }

    void cancel() {
        if (const auto subscription = end())
            subscription->cancel();
    }

private:
    bool isCancelled() {
        const std::lock_guard lock(m_mutex);
        return m_isCancelled;
    }

    std::shared_ptr<Subscription> end() {
        const std::lock_guard lock(m_mutex);
        m_isCancelled = true;
        return std::exchange(m_subscription, nullptr);
    }

    const std::function<void(const T&)> m_receiveValue;
    const std::function<void(const Completion&)> m_receiveCompletion;
    std::mutex m_mutex;                           // guards what follows, on any thread
    std::shared_ptr<Subscription> m_subscription; // null before and after
    bool m_isCancelled = false;
};

template <typename T>
AnyCancellable Publisher<T>::sink(std::function<void(const T&)> receiveValue,
                                  std::function<void(const Completion&)> receiveCompletion) {
    const auto sink = std::make_shared<Sink<T>>(std::move(receiveValue), std::move(receiveCompletion));
    receive(sink);
    return AnyCancellable([sink] { sink->cancel(); });
}

} // namespace platform
