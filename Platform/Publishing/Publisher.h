#pragma once

#include "Platform/Publishing/Cancellable.h"
#include "Platform/Publishing/Subscriber.h"

#include <functional>
#include <memory>

namespace platform {

/// Sends values to whoever subscribes. Kept by shared pointers: an operator keeps its upstream.
template <typename T>
class Publisher : public std::enable_shared_from_this<Publisher<T>> {
public:
    using Output = T;

    virtual ~Publisher() = default;

    /// Attaches a subscriber, which gets its subscription before this returns unless an operator says
    /// otherwise.
    virtual void receive(std::shared_ptr<Subscriber<T>> subscriber) = 0;

    /// Calls the functions for every value and for the end, until the result is cancelled or destroyed.
    AnyCancellable sink(std::function<void(const T&)> receiveValue,
                        std::function<void(const Completion&)> receiveCompletion = {});

    /// What `transform` makes of each value, at the moment it arrives.
    template <typename Transform>
    auto map(Transform transform);
};

template <typename T>
using AnyPublisher = std::shared_ptr<Publisher<T>>;

} // namespace platform

#include "Platform/Publishing/Map.h"
#include "Platform/Publishing/Sink.h"
