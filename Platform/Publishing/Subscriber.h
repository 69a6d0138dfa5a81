#pragma once

#include "Platform/Publishing/Demand.h"

#include <exception>
#include <memory>

namespace platform {

/// The end of a stream: finished, or failed for a reason.
struct Completion {
    std::exception_ptr failure;

    bool isFinished() const { return !failure; }
};

/// The tie between a subscriber and a publisher. Any thread.
class Subscription {
public:
    virtual ~Subscription() = default;

    /// Asks for more values, on top of those asked for before.
    virtual void request(Demand demand) = 0;

    /// Ends the tie; nothing arrives that was not on its way already. More than once is harmless.
    virtual void cancel() = 0;
};

/// Receives a stream: the subscription first, then values, no more than it asked for, then at most one
/// completion. On whatever thread the publisher sends.
template <typename T>
class Subscriber {
public:
    virtual ~Subscriber() = default;

    virtual void receive(std::shared_ptr<Subscription> subscription) = 0;

    /// Returns how many values more are wanted.
    virtual Demand receive(const T& value) = 0;

    virtual void receive(const Completion& completion) = 0;
};

} // namespace platform
