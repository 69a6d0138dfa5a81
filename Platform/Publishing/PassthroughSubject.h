#pragma once

#include "Platform/Publishing/Publisher.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

/// Sends on what it is given, to everybody who is subscribed at that moment. Who has not asked for a value
/// does not get it later. Any thread; no lock is held while a subscriber runs, so a subscriber may send,
/// subscribe or cancel.
template <typename T>
class PassthroughSubject : public Publisher<T> {
public:
    void receive(std::shared_ptr<Subscriber<T>> subscriber) override {
        const auto conduit = std::make_shared<Conduit>(std::move(subscriber));
        std::optional<Completion> end;
        {
            const std::lock_guard lock(m_mutex);
            std::erase_if(m_conduits, [](const auto& known) { return known->isCancelled(); });
            end = m_completion;
            if (!end)
                m_conduits.push_back(conduit);
        }
        conduit->begin();
        if (end)
            conduit->end(*end);
    }

    void send(const T& value) {
        for (const auto& conduit : conduits())
            conduit->offer(value);
    }

    /// Ends the stream; what is sent afterwards is dropped, and who subscribes afterwards gets the end at
    /// once.
    void send(const Completion& completion) {
        std::vector<std::shared_ptr<Conduit>> ending;
        {
            const std::lock_guard lock(m_mutex);
            if (m_completion)
                return;
            m_completion = completion;
            ending.swap(m_conduits);
        }
        for (const auto& conduit : ending)
            conduit->end(completion);
    }

private:
    /// One subscriber, and what it still wants.
    class Conduit : public Subscription, public std::enable_shared_from_this<Conduit> {
    public:
        explicit Conduit(std::shared_ptr<Subscriber<T>> subscriber) : m_subscriber(std::move(subscriber)) {}

        void begin() {
            if (const auto subscriber = current())
                subscriber->receive(this->shared_from_this());
        }

        void offer(const T& value) {
            std::shared_ptr<Subscriber<T>> subscriber;
            {
                const std::lock_guard lock(m_mutex);
                if (m_demand.isNone())
                    return;
                m_demand = m_demand.next();
                subscriber = m_subscriber;
            }
            if (subscriber)
                request(subscriber->receive(value));
        }

        void end(const Completion& completion) {
            if (const auto subscriber = take())
                subscriber->receive(completion);
        }

        void request(Demand demand) override {
            const std::lock_guard lock(m_mutex);
            m_demand = m_demand + demand;
        }

        void cancel() override { take(); }

        bool isCancelled() { return current() == nullptr; }

    private:
        std::shared_ptr<Subscriber<T>> current() {
            const std::lock_guard lock(m_mutex);
            return m_subscriber;
        }

        /// The result is destroyed by the caller, outside the lock.
        std::shared_ptr<Subscriber<T>> take() {
            const std::lock_guard lock(m_mutex);
            return std::exchange(m_subscriber, nullptr);
        }

        std::mutex m_mutex; // guards what follows, on any thread
        std::shared_ptr<Subscriber<T>> m_subscriber;
        Demand m_demand = Demand::none();
    };

    std::vector<std::shared_ptr<Conduit>> conduits() {
        const std::lock_guard lock(m_mutex);
        return m_conduits;
    }

    std::mutex m_mutex; // guards what follows, on any thread
    std::vector<std::shared_ptr<Conduit>> m_conduits;
    std::optional<Completion> m_completion;
};

} // namespace platform
