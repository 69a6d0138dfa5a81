#include "Platform/Publishing/PassthroughSubject.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace platform;

namespace {

/// Asks for some values and writes down what comes.
class Notebook : public Subscriber<int> {
public:
    Notebook(Demand first, Demand each) : m_first(first), m_each(each) {}

    void receive(std::shared_ptr<Subscription> given) override {
        subscription = std::move(given);
        subscription->request(m_first);
    }

    Demand receive(const int& value) override {
        values.push_back(value);
        return m_each;
    }

    void receive(const Completion&) override { ++completions; }

    std::shared_ptr<Subscription> subscription;
    std::vector<int> values;
    int completions = 0;

private:
    Demand m_first;
    Demand m_each;
};

using Subject = PassthroughSubject<int>;

} // namespace

TEST(PassthroughSubject, SendsNoMoreThanIsWanted) {
    const auto subject = std::make_shared<Subject>();
    const auto patient = std::make_shared<Notebook>(Demand::max(2), Demand::none());
    const auto greedy = std::make_shared<Notebook>(Demand::max(1), Demand::max(1));
    subject->receive(patient);
    subject->receive(greedy);
    for (int i = 1; i <= 3; ++i)
        subject->send(i);
    EXPECT_EQ(patient->values, (std::vector{1, 2}));
    EXPECT_EQ(greedy->values, (std::vector{1, 2, 3}));
    patient->subscription->request(Demand::max(1));
    subject->send(4);
    EXPECT_EQ(patient->values, (std::vector{1, 2, 4})) << "what nobody asked for is gone";
    subject->send(Completion{}); // until then subscriber and subscription hold one another
}

TEST(PassthroughSubject, EndsOnceForEverybody) {
    const auto subject = std::make_shared<Subject>();
    const auto early = std::make_shared<Notebook>(Demand::unlimited(), Demand::none());
    const auto gone = std::make_shared<Notebook>(Demand::unlimited(), Demand::none());
    subject->receive(early);
    subject->receive(gone);
    gone->subscription->cancel();
    gone->subscription->cancel();
    subject->send(Completion{std::make_exception_ptr(std::runtime_error("x"))});
    subject->send(Completion{});
    subject->send(1);
    EXPECT_EQ(early->completions, 1);
    bool hasFailed = false;
    const auto token =
        subject->sink([](int) {}, [&](const Completion& end) { hasFailed = !end.isFinished(); });
    EXPECT_TRUE(hasFailed) << "who comes late hears the first end";
    EXPECT_EQ(gone->completions, 0);
    EXPECT_TRUE(early->values.empty());
}

TEST(Sink, LastsAsLongAsItsToken) {
    const auto subject = std::make_shared<Subject>();
    std::vector<int> doubled;
    bool finished = false;
    {
        const auto token = subject->map([](int value) { return 2.0 * value; })->sink([&](double value) {
            doubled.push_back(static_cast<int>(value));
        });
        subject->send(1);
        subject->send(2);
    }
    subject->send(3);
    EXPECT_EQ(doubled, (std::vector{2, 4}));

    auto token = subject->sink([](int) {}, [&](const Completion& end) { finished = end.isFinished(); });
    auto moved = std::move(token);
    token.cancel();
    subject->send(Completion{});
    EXPECT_TRUE(finished) << "the tie moved with its token";
}

TEST(Sink, MayCancelSubscribeAndSendWhileItReceives) {
    const auto subject = std::make_shared<Subject>();
    int received = 0;
    AnyCancellable inner;
    AnyCancellable outer = subject->sink([&](int value) {
        ++received;
        if (value == 1) {
            inner = subject->sink([&](int) { ++received; });
            subject->send(2);
            outer.cancel();
        }
    });
    subject->send(1);
    EXPECT_EQ(received, 3) << "1 to the outer, 2 to both";
    subject->send(4);
    EXPECT_EQ(received, 4);
}

TEST(PassthroughSubject, TakesSendersAndSubscribersFromManyThreads) {
    const auto subject = std::make_shared<Subject>();
    std::atomic<int> received = 0;
    const auto token = subject->sink([&](int) { ++received; });
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i)
        threads.emplace_back([&] {
            for (int n = 0; n < 500; ++n) {
                subject->send(n);
                const auto passing = subject->sink([](int) {});
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(received, 1500);
}
