#include "Platform/Core/MainQueue.h"
#include "Platform/Core/MainThread.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using platform::MainQueue;

TEST(MainQueue, RunsWorkLaterInOrderOnTheMainThread) {
    std::vector<int> order;
    std::thread([&order] {
        for (int i = 0; i < 100; ++i)
            MainQueue::async([&order, i] {
                platform::requireMainThread();
                order.push_back(i);
            });
    }).join();
    MainQueue::async([&order] {
        MainQueue::async([&order] { order.push_back(101); });
        order.push_back(100);
    });
    EXPECT_TRUE(order.empty()) << "nothing runs before the loop turns";
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    ASSERT_EQ(order.size(), 102U);
    for (int i = 0; i < 102; ++i)
        EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
}

TEST(MainThread, IsRequired) {
    EXPECT_DEATH(std::thread([] { platform::requireMainThread(); }).join(),
                 "^This must run on the main thread\n$");
}
