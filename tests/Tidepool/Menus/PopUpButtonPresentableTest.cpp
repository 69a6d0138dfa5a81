#include "Tidepool/Menus/PopUpButtonPresentable.h"

#include "Platform/Publishing/PassthroughSubject.h"
#include "tests/Tidepool/Menus/MenuChoices.h"

#include <QTest>

#include <gtest/gtest.h>

#include <thread>

using namespace tidepool;
using platform::MenuItem;
using platform::PassthroughSubject;
using platform::PopUpButton;

namespace {

class BoundPopUpTest : public testing::Test {
protected:
    BoundPopUpTest() {
        bindMenu<Waveform>(m_button, Waveform::sine, m_subject, m_cancellables, [this](Waveform value) {
            m_reported.push_back(value);
            m_subject->send(value); // as a model does
        });
    }

    void choose(const QString& title) {
        for (MenuItem* item : m_button.itemArray())
            if (item->title() == title)
                item->trigger();
    }

    std::optional<Waveform> selected() const { return selectedRawRepresentableValue<Waveform>(m_button); }

    PopUpButton m_button;
    std::shared_ptr<PassthroughSubject<Waveform>> m_subject =
        std::make_shared<PassthroughSubject<Waveform>>();
    std::vector<platform::AnyCancellable> m_cancellables;
    std::vector<Waveform> m_reported;
};

} // namespace

TEST(PopUpButtonPresentable, FillsAButtonAndSelectsTheValue) {
    PopUpButton button;
    button.addItem(QStringLiteral("Former"));
    configure(button, Waveform::noise);
    ASSERT_EQ(button.itemArray().size(), 3);
    EXPECT_EQ(button.itemArray()[0]->title(), QStringLiteral("Square"));
    EXPECT_EQ(button.itemArray()[0]->tag, static_cast<int>(Waveform::square));
    EXPECT_TRUE(button.itemArray()[0]->icon().isNull());
    EXPECT_FALSE(button.itemArray()[2]->icon().isNull());
    EXPECT_EQ(button.title(), QStringLiteral("Noise"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("Waveform"));
}

TEST(PopUpButtonPresentable, KeepsTheArrangementOfTheMaker) {
    PopUpButton button;
    configure(button, Scale{QStringLiteral("dorian")});
    const auto items = button.itemArray();
    ASSERT_EQ(items.size(), 5);
    EXPECT_TRUE(items[0]->isSectionHeader());
    EXPECT_TRUE(items[3]->isSeparator());
    ASSERT_NE(items[4]->submenu(), nullptr);
    EXPECT_EQ(button.title(), QStringLiteral("DORIAN")) << "which is in a submenu";
    EXPECT_EQ(selectedRawRepresentableValue<Scale>(button), Scale{QStringLiteral("dorian")});
}

TEST_F(BoundPopUpTest, ReportsWhatTheUserChangesOnce) {
    EXPECT_EQ(selected(), Waveform::sine);
    choose(QStringLiteral("Sine"));
    EXPECT_TRUE(m_reported.empty()) << "that is no change";
    choose(QStringLiteral("Noise"));
    EXPECT_EQ(m_reported, std::vector{Waveform::noise});
    m_button.selectPreviousItem();
    EXPECT_EQ(m_reported, (std::vector{Waveform::noise, Waveform::sine}));
    m_button.selectItem(0);
    EXPECT_EQ(m_reported.size(), 2U) << "the program's own selection";
}

TEST_F(BoundPopUpTest, FollowsThePublisherWithoutReporting) {
    m_subject->send(Waveform::square);
    EXPECT_EQ(selected(), Waveform::square);
    std::thread([this] { m_subject->send(Waveform::noise); }).join();
    EXPECT_TRUE(QTest::qWaitFor([this] { return selected() == Waveform::noise; }));
    EXPECT_TRUE(m_reported.empty());
    choose(QStringLiteral("Sine"));
    EXPECT_EQ(m_reported, std::vector{Waveform::sine}) << "compared with what was published";
}

TEST_F(BoundPopUpTest, AModelMayRefuse) {
    m_cancellables.clear();
    bindMenu<Waveform>(m_button, Waveform::sine, m_subject, m_cancellables, [this](Waveform value) {
        m_reported.push_back(value);
        m_subject->send(Waveform::sine);
    });
    for (int i = 0; i < 2; ++i)
        choose(QStringLiteral("Noise"));
    EXPECT_EQ(selected(), Waveform::sine);
    EXPECT_EQ(m_reported, (std::vector{Waveform::noise, Waveform::noise}));
}

TEST_F(BoundPopUpTest, EndsWhenItIsCancelled) {
    m_cancellables.clear();
    m_subject->send(Waveform::noise);
    EXPECT_EQ(selected(), Waveform::sine);
    choose(QStringLiteral("Square"));
    EXPECT_TRUE(m_reported.empty());
}
