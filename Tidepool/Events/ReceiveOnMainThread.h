#pragma once

#include "Platform/Core/MainQueue.h"
#include "Platform/Core/MainThread.h"
#include "Platform/Publishing/Publisher.h"

#include <utility>

namespace tidepool {

/// Delivers what a publisher sends on the main thread: at once if it was sent there, else in a later turn of
/// the main queue. What is sent on the main thread may so overtake what is still queued. The upstream is
/// asked for everything, whatever the downstream asks for.
template <typename T>
class ReceiveOnMainThread : public platform::Publisher<T> {
public:
    explicit ReceiveOnMainThread(platform::AnyPublisher<T> upstream) : m_upstream(std::move(upstream)) {}

    void receive(std::shared_ptr<platform::Subscriber<T>> subscriber) override {
        m_upstream->receive(std::make_shared<Inner>(std::move(subscriber)));
    }

private:
    /// The upstream's subscriber, and the subscription that the downstream gets.
    class Inner : public platform::Subscriber<T>,
                  public platform::Subscription,
                  public std::enable_shared_from_this<Inner> {
    public:
        explicit Inner(std::shared_ptr<platform::Subscriber<T>> subscriber)
            : m_subscriber(std::move(subscriber)) {}

        void receive(std::shared_ptr<platform::Subscription> subscription) override {
            onMainThread([subscription = std::move(subscription)](const std::shared_ptr<Inner>& self) {
                self->m_subscription = subscription;
                self->m_subscriber->receive(std::shared_ptr<platform::Subscription>(self));
            });
        }

        platform::Demand receive(const T& value) override {
            onMainThread([value](const std::shared_ptr<Inner>& self) {
                if (self->m_subscription)
                    self->m_subscriber->receive(value);
            });
            return platform::Demand::unlimited();
        }

        void receive(const platform::Completion& completion) override {
            onMainThread([completion](const std::shared_ptr<Inner>& self) {
                if (self->m_subscription)
                    self->m_subscriber->receive(completion);
            });
        }

        void request(platform::Demand demand) override {
            onMainThread([demand](const std::shared_ptr<Inner>& self) {
                if (const auto subscription = self->m_subscription)
                    subscription->request(demand);
            });
        }

        void cancel() override {
            onMainThread([](const std::shared_ptr<Inner>& self) {
                if (const auto subscription = std::exchange(self->m_subscription, nullptr))
                    subscription->cancel();
            });
        }

    private:
        template <typename Work>
        void onMainThread(Work work) {
            if (platform::isMainThread())
                work(this->shared_from_this());
            else
                platform::MainQueue::async(
                    [work = std::move(work), self = this->shared_from_this()] { work(self); });
        }

        const std::shared_ptr<platform::Subscriber<T>> m_subscriber;
        std::shared_ptr<platform::Subscription> m_subscription; // main thread only
    };

    platform::AnyPublisher<T> m_upstream;
};

/// Of any publisher.
template <typename Upstream>
platform::AnyPublisher<typename Upstream::Output> receiveOnMainThread(std::shared_ptr<Upstream> upstream) {
    return std::make_shared<ReceiveOnMainThread<typename Upstream::Output>>(std::move(upstream));
}

} // namespace tidepool
