#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Events/ActionTrampoline.h"
#include "Tidepool/Events/ControlPublishers.h"
#include "Tidepool/Events/FocusOnOutput.h"

#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <thread>

using namespace tidepool;
using platform::ControlState;

TEST(ActionTrampoline, MayBeReplacedByItsOwnHandlerAndGoesWithItsControl) {
    const auto alive = std::make_shared<int>(0);
    {
        StyledCheckBox box;
        setActionHandler(box, [&, alive](StyledCheckBox& sender) {
            setActionHandler(sender, [alive](StyledCheckBox&) { *alive += 10; });
            *alive += 1;
        });
        box.click();
        box.click();
        EXPECT_EQ(*alive, 11);
    }
    EXPECT_EQ(alive.use_count(), 1);
}

TEST(ActionTrampolineDeathTest, ASenderOfAnotherTypeStopsTheProgram) {
    StyledCheckBox box;
    setActionHandler(box, [](StyledCheckBox&) {});
    platform::PushButton other;
    EXPECT_DEATH(other.Control::sendAction(box.action(), box.target()), "sender of an action");
}

TEST(NSControlPublisher, IsOneForEachControlAndEndsWithIt) {
    auto box = std::make_unique<StyledCheckBox>();
    EXPECT_EQ(publisher(*box), publisher(*box));
    std::vector<ControlState> states;
    std::vector<double> values;
    int ends = 0;
    const auto end = [&](const platform::Completion& completion) { ends += completion.isFinished() ? 1 : 0; };
    const auto byState =
        statePublisher(*box)->sink([&](ControlState state) { states.push_back(state); }, end);
    const auto byValue =
        doubleValuePublisher(*box)->sink([&](double value) { values.push_back(value); }, end);
    box->click();
    box->Control::sendAction(); // changes nothing, and is sent all the same
    box->click();
    EXPECT_EQ(states, (std::vector{ControlState::on, ControlState::on, ControlState::off}));
    EXPECT_EQ(values, (std::vector{1.0, 1.0, 0.0}));
    EXPECT_EQ(ends, 0);
    const auto kept = publisher(*box);
    box.reset();
    EXPECT_EQ(ends, 2);
    EXPECT_EQ(kept->control(), nullptr);
}

TEST(NSControlPublisher, ItsSubscriberMayDestroyTheControl) {
    auto box = std::make_unique<StyledCheckBox>();
    int ends = 0;
    const auto token = publisher(*box)->sink([&](StyledCheckBox* const&) { box.reset(); },
                                             [&](const platform::Completion&) { ++ends; });
    box->Control::sendAction();
    EXPECT_EQ(box, nullptr);
    EXPECT_EQ(ends, 1);
}

TEST(FocusOnOutput, GivesTheKeyboardToAViewThatIsShown) {
    QWidget window;
    QLineEdit first(&window);
    auto second = std::make_unique<QLineEdit>(&window);
    const auto subject = std::make_shared<platform::PassthroughSubject<int>>();
    const auto token = focusOnOutput(*subject, *second);
    first.setFocus();
    subject->send(1);
    EXPECT_EQ(window.focusWidget(), &first) << "there is no window yet";
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    subject->send(2);
    EXPECT_TRUE(second->hasFocus());

    first.setFocus();
    std::thread([&] { subject->send(3); }).join();
    EXPECT_TRUE(first.hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([&] { return second->hasFocus(); }));

    second.reset();
    subject->send(4);
    EXPECT_FALSE(first.isHidden());
}

TEST(NSControlPublisher, IsOneWhateverTypeItsControlIsKnownBy) {
    StyledCheckBox box;
    int published = 0;
    const auto former = statePublisher(box)->sink([&](ControlState) { published += 1; });
    const auto general =
        publisher<platform::PushButton>(box)->sink([&](platform::PushButton* const&) { published += 10; });
    box.click();
    EXPECT_EQ(published, 11);
    const auto made = std::make_shared<NSControlPublisher<StyledCheckBox>>(box);
    const auto latest = made->sink([&](StyledCheckBox* const&) { published += 100; });
    box.click();
    EXPECT_EQ(published, 111) << "one that is made directly takes the place of the others";
}
