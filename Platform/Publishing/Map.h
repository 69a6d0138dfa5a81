#pragma once

#include "Platform/Publishing/Publisher.h"

#include <type_traits>
#include <utility>

namespace platform {

/// The publisher that `Publisher::map` makes.
template <typename T, typename Transform>
class Map : public Publisher<std::invoke_result_t<Transform, const T&>> {
public:
    using Result = std::invoke_result_t<Transform, const T&>;

    Map(AnyPublisher<T> upstream, Transform transform)
        : m_upstream(std::move(upstream)), m_transform(std::move(transform)) {}

    void receive(std::shared_ptr<Subscriber<Result>> subscriber) override {
        m_upstream->receive(std::make_shared<Inner>(std::move(subscriber), m_transform));
    }

private:
    class Inner : public Subscriber<T> {
    public:
        Inner(std::shared_ptr<Subscriber<Result>> downstream, Transform transform)
            : m_downstream(std::move(downstream)), m_transform(std::move(transform)) {}

        void receive(std::shared_ptr<Subscription> subscription) override {
            m_downstream->receive(std::move(subscription));
        }

        Demand receive(const T& value) override { return m_downstream->receive(m_transform(value)); }

        void receive(const Completion& completion) override { m_downstream->receive(completion); }

    private:
        std::shared_ptr<Subscriber<Result>> m_downstream;
        Transform m_transform;
    };

    AnyPublisher<T> m_upstream;
    Transform m_transform;
};

template <typename T>
template <typename Transform>
auto Publisher<T>::map(Transform transform) {
    using Result = typename Map<T, Transform>::Result;
    return AnyPublisher<Result>(
        std::make_shared<Map<T, Transform>>(this->shared_from_this(), std::move(transform)));
}

} // namespace platform
