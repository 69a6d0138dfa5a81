#include "Platform/Core/MainThreadShared.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <optional>
#include <thread>
#include <utility>

namespace {

class MainThreadSharedTest : public testing::Test {
protected:
    struct Mortal {
        ~Mortal() { isOnMainThread = platform::isMainThread(); }

        std::optional<bool>& isOnMainThread;
    };

    /// Lets go of the only owner on another thread.
    void letGoElsewhere() {
        auto object = platform::makeMainThreadShared<Mortal>(m_diedOnMainThread);
        std::thread([held = std::move(object)]() mutable { held.reset(); }).join();
        EXPECT_FALSE(m_diedOnMainThread);
    }

    std::optional<bool> m_diedOnMainThread;
};

} // namespace

TEST_F(MainThreadSharedTest, DiesOnTheMainThread) {
    letGoElsewhere();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_diedOnMainThread, true);
}

TEST_F(MainThreadSharedTest, DiesWithTheLoopAtTheLatest) {
    letGoElsewhere();
    // As the application does when it goes away.
    QCoreApplication::removePostedEvents(QCoreApplication::instance());
    EXPECT_EQ(m_diedOnMainThread, true);
}
