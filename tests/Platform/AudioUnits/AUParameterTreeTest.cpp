#include "Platform/AudioUnits/AUParameterTree.h"
#include "Platform/AudioUnits/HostTime.h"

#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <thread>

using platform::AUParameter;
using platform::AUParameterAutomationEvent;
using platform::AUParameterAutomationEventType;
using platform::AUParameterObserverToken;
using platform::AUParameterTree;

namespace {

std::shared_ptr<AUParameter> parameter(const char* identifier, std::uint64_t address) {
    return AUParameterTree::createParameter(
        {.identifier = QString::fromLatin1(identifier), .address = address});
}

} // namespace

TEST(AUParameterTree, FindsTheFirstOfAnAddress) {
    const auto first = parameter("first", 7);
    const auto tree = AUParameterTree::createTree({first, parameter("second", 3), parameter("third", 7)});
    EXPECT_EQ(tree->parameterWithAddress(7), first);
    EXPECT_EQ(tree->parameterWithAddress(4), nullptr);
}

TEST(AUParameterTree, TellsTheImplementorFirstThenObserversUpwardsExceptTheOriginator) {
    const auto level = parameter("level", 5);
    const auto tree = AUParameterTree::createTree({level});
    std::string order;
    tree->setImplementorValueObserver([&](AUParameter& changed, float value) {
        EXPECT_EQ(&changed, level.get());
        EXPECT_EQ(changed.value(), value) << "the value is there before anybody hears of it";
        order += 'i';
    });
    const auto own = tree->tokenByAddingParameterObserver([&](auto, float) { order += 't'; });
    tree->tokenByAddingParameterObserver([&](auto, float) { order += 'u'; });
    level->tokenByAddingParameterObserver([&](auto, float) { order += 'p'; });

    level->setValue(0.5F);
    EXPECT_EQ(order, "iptu");
    order.clear();
    level->setValue(0.5F, own);
    EXPECT_EQ(order, "ipu") << "an equal value is told as well, but not to whom it comes from";
    order.clear();
    tree->removeParameterObserver(own);
    level->setValue(0.5F);
    EXPECT_EQ(order, "ipu");
}

TEST(AUParameterTree, NearestImplementorAnswers) {
    const auto level = parameter("level", 5);
    const auto tree = AUParameterTree::createTree({level});
    int tellings = 0;
    tree->setImplementorValueObserver([&](AUParameter&, float) { ++tellings; });
    tree->setImplementorStringFromValueCallback([](AUParameter&, std::optional<float> value) {
        return QStringLiteral("tree %1").arg(value.value_or(-1));
    });
    EXPECT_EQ(level->string({}), QStringLiteral("tree -1"));
    level->setImplementorStringFromValueCallback(
        [](AUParameter&, std::optional<float>) { return QStringLiteral("own"); });
    level->setImplementorValueObserver([](AUParameter&, float) {});
    EXPECT_EQ(level->string(2), QStringLiteral("own"));
    EXPECT_EQ(level->value(QStringLiteral("2.5")), 2.5F) << "nobody has an opinion on texts";
    level->setValue(1);
    EXPECT_EQ(tellings, 0);
    level->setImplementorValueObserver(nullptr);
    level->setValue(1);
    EXPECT_EQ(tellings, 1);
}

TEST(AUParameterTree, AutomationObserversGetTheWholeEvent) {
    const auto level = parameter("level", 5);
    std::optional<AUParameterAutomationEvent> event;
    level->tokenByAddingParameterAutomationObserver([&](const auto& seen) { event = seen; });
    level->setValue(0.25F, {}, 1234, AUParameterAutomationEventType::release);
    ASSERT_TRUE(event);
    EXPECT_EQ(event->hostTime, 1234U);
    EXPECT_EQ(event->address, 5U);
    EXPECT_EQ(event->value, 0.25F);
    EXPECT_EQ(event->eventType, AUParameterAutomationEventType::release);

    const auto before = platform::audioGetCurrentHostTime();
    level->setValueNow(0.5F, AUParameterAutomationEventType::touch);
    EXPECT_GE(event->hostTime, before);
    EXPECT_LE(event->hostTime, platform::audioGetCurrentHostTime());
    EXPECT_EQ(event->value, 0.5F);
    EXPECT_EQ(event->eventType, AUParameterAutomationEventType::touch);
}

TEST(AUParameterTree, NewTreeTakesItsParametersOver) {
    const auto level = parameter("level", 5);
    int former = 0;
    int latter = 0;
    const auto old = AUParameterTree::createTree({level});
    old->tokenByAddingParameterObserver([&](auto, float) { ++former; });
    auto tree = AUParameterTree::createTree({level});
    tree->tokenByAddingParameterObserver([&](auto, float) { ++latter; });
    level->setValue(1);
    EXPECT_EQ(former, 0);
    EXPECT_EQ(latter, 1);
    tree.reset();
    level->setValue(1);
    EXPECT_EQ(latter, 1) << "a parameter does not keep its tree";
}

TEST(AUParameterTree, AnObserverMayBeRemovedByWhoeverIsToldBeforeIt) {
    const auto level = parameter("level", 5);
    const auto tree = AUParameterTree::createTree({level});
    std::string heard;
    AUParameterObserverToken first, second, third;
    const auto observe = [&](char name, AUParameterObserverToken& removed) {
        return level->tokenByAddingParameterObserver([&heard, &level, &removed, name](auto, float) {
            level->removeParameterObserver(removed);
            heard += name;
        });
    };
    tree->setImplementorValueObserver([&](AUParameter&, float) { level->removeParameterObserver(first); });
    first = observe('1', first);
    second = observe('2', third);
    third = observe('3', third);
    const auto fourth = observe('4', second);
    level->setValue(1);
    EXPECT_EQ(heard, "24") << "the implementor removes the first, the second the third";
    level->removeParameterObserver(fourth);
    AUParameterObserverToken own;
    own = observe('o', own);
    level->setValue(2);
    level->setValue(3);
    EXPECT_EQ(heard, "24o") << "one may remove itself";
}

TEST(AUParameterTree, RemovedObserverNoLongerRunsAnywhere) {
    const auto level = parameter("level", 5);
    const auto tree = AUParameterTree::createTree({level});
    std::atomic<bool> isDone = false;
    const auto set = [&] {
        for (float value = 0; !isDone; ++value)
            level->setValue(value);
    };
    std::thread host(set);
    std::thread audio(set);
    long heard = 0;
    for (int i = 0; i < 200; ++i) {
        auto alive = std::make_unique<std::atomic<long>>(0);
        const auto token =
            tree->tokenByAddingParameterObserver([alive = alive.get()](auto, float) { ++*alive; });
        while (*alive == 0)
            std::this_thread::yield();
        tree->removeParameterObserver(token);
        heard += *alive; // Whoever still ran would count in freed memory.
    }
    isDone = true;
    host.join();
    audio.join();
    EXPECT_GE(heard, 200);
}
