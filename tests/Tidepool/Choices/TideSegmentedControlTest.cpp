#include "Tidepool/Choices/TideSegmentedControl.h"

#include "Tidepool/Choices/TideSegmentButton.h"
#include "Tidepool/Choices/TideSegmentedControlModel.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace tidepool;

namespace {

TideSegmentItemPointer item(int id, const char* title = "Item") {
    return std::make_shared<TideSegmentItem>(id, QString::fromUtf8(title));
}

class TideSegmentedControlTest : public testing::Test {
protected:
    TideSegmentedControlTest() {
        m_model->setOnSelectionChanged(
            [this](const TideSegmentItemPointer& selected) { m_told << (selected ? selected->id() : -1); });
    }

    void show() {
        m_control = new TideSegmentedControl(m_model, &m_window);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_control->adjustSize();
    }

    void layOut() {
        QCoreApplication::processEvents(); // a layout shows what is new in a later turn
        m_control->adjustSize();
    }

    TideSegmentButton* button(int index) {
        return static_cast<TideSegmentButton*>(m_control->layout()->itemAt(index)->widget());
    }

    void click(int index) { QTest::mouseClick(button(index), Qt::LeftButton); }

    QString shown() {
        QString states;
        for (int i = 0; i < m_control->layout()->count(); ++i)
            states += button(i)->state() == platform::ControlState::on ? u'x' : u'-';
        return states;
    }

    std::shared_ptr<TideSegmentedControlModel> m_model = std::make_shared<TideSegmentedControlModel>(
        TideSegmentItems{item(1, "Keys"), item(2, "List"), item(3, "R&B")});
    QList<int> m_told;
    QWidget m_window;
    QPointer<TideSegmentedControl> m_control;
};

} // namespace

TEST_F(TideSegmentedControlTest, AClickSelectsShowsOrClears) {
    const auto first = m_model->items()[0];
    m_model->itemClicked(first);
    m_model->itemClicked(item(1, "another with the same id"));
    EXPECT_EQ(m_model->selectedItem(), nullptr) << "the second click clears";
    m_model->select(2);
    m_model->setHideSelection(true);
    m_model->itemClicked(m_model->items()[1]);
    EXPECT_FALSE(m_model->hideSelection());
    EXPECT_EQ(m_model->selectedItem()->id(), 2) << "what was hidden is shown first";
    m_model->setHideSelection(true);
    m_model->itemClicked(first);
    EXPECT_FALSE(m_model->hideSelection());
    m_model->select(9);
    EXPECT_EQ(m_model->selectedItem(), first) << "nobody has this id";
    EXPECT_EQ(m_told, (QList<int>{1, -1, 2, 1})) << "only clicks are told";
    m_model->setItems({item(4), item(4)});
    m_model->select(4);
    EXPECT_EQ(m_model->selectedItem(), m_model->items()[0]) << "the first of equal ids";
}

TEST_F(TideSegmentedControlTest, OnlyRealChangesAreTold) {
    QSignalSpy items(m_model.get(), &TideSegmentedControlModel::itemsChanged);
    QSignalSpy selected(m_model.get(), &TideSegmentedControlModel::selectedItemChanged);
    QSignalSpy callbacks(m_model.get(), &TideSegmentedControlModel::onSelectionChangedChanged);
    int observed = 0;
    const auto watch = m_model->bindableSelectedItem().addNotifier([&] { ++observed; });
    const auto renamed = item(2, "Renamed");
    m_model->setItems({item(1), renamed, item(3)});
    EXPECT_EQ(items.count(), 0);
    EXPECT_EQ(m_model->items()[1], renamed);
    m_model->setItems({item(2), item(1), item(3)});
    m_model->setItems({item(2), item(1)});
    EXPECT_EQ(items.count(), 2);
    m_model->setSelectedItem(item(1));
    m_model->setSelectedItem(item(1));
    m_model->setSelectedItem(nullptr);
    m_model->setSelectedItem(nullptr);
    EXPECT_EQ(selected.count(), 2);
    EXPECT_EQ(observed, 2);
    m_model->setOnSelectionChanged({});
    m_model->setOnSelectionChanged({});
    EXPECT_EQ(callbacks.count(), 1);
    m_model->itemClicked(renamed); // told to nobody
    EXPECT_EQ(selected.count(), 3);
}

TEST_F(TideSegmentedControlTest, TheButtonsFollowTheModelAndTheKeyboardStays) {
    show();
    click(1);
    EXPECT_EQ(shown(), QStringLiteral("-x-"));
    m_model->setHideSelection(true);
    EXPECT_EQ(shown(), QStringLiteral("---"));
    click(1);
    EXPECT_EQ(shown(), QStringLiteral("-x-"));
    EXPECT_EQ(button(0)->geometry().right() + 1, button(1)->geometry().left()) << "nothing between them";
    button(1)->setFocus(Qt::TabFocusReason);
    QPointer<TideSegmentButton> kept = button(1);
    m_model->setItems({item(4), item(2, "Renamed"), item(4), item(2)});
    EXPECT_EQ(button(1), kept);
    EXPECT_TRUE(kept->hasFocus());
    EXPECT_EQ(kept->plainTitle(), QStringLiteral("Renamed"));
    EXPECT_EQ(shown(), QStringLiteral("-x-x")) << "all with the selected id are drawn selected";
    layOut();
    QTest::keyClick(button(1), Qt::Key_Right);
    EXPECT_TRUE(button(2)->hasFocus());
    QTest::keyClick(button(2), Qt::Key_Space);
    EXPECT_EQ(m_told, (QList<int>{2, 2, 4}));
    m_window.setLayoutDirection(Qt::RightToLeft);
    layOut();
    EXPECT_GT(button(0)->x(), button(1)->x());
    QTest::keyClick(button(2), Qt::Key_Right);
    EXPECT_TRUE(button(1)->hasFocus()) << "the keys go the way they point";
}

TEST_F(TideSegmentedControlTest, ACallbackMayTakeItAllAway) {
    show();
    m_model->setOnSelectionChanged([this](const auto&) { m_model->setItems({item(7)}); });
    click(0);
    EXPECT_EQ(m_control->layout()->count(), 1);
    m_model->setOnSelectionChanged([this](const auto&) {
        delete m_control;
        m_model.reset();
    });
    click(0);
    EXPECT_EQ(m_control, nullptr);
}

TEST_F(TideSegmentedControlTest, LooksAndSpeaksLikeOneOfSeveral) {
    show();
    const QImage plain = picture(*button(2));
    m_model->select(3);
    const QImage selected = picture(*button(2));
    button(2)->setDown(true);
    const QImage pressed = picture(*button(2));
    EXPECT_GT(difference(plain, selected), 20);
    EXPECT_GT(difference(selected, pressed), 20);
    m_model->setSelectedItem(nullptr);
    EXPECT_EQ(difference(picture(*button(2)), pressed), 0) << "pressed wins over selected";
    button(2)->setDown(false);
    EXPECT_EQ(difference(picture(*button(2)), plain), 0);
    m_model->select(3);
    QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(m_control);
    ASSERT_EQ(control->childCount(), 3);
    EXPECT_EQ(control->child(2)->role(), QAccessible::RadioButton);
    EXPECT_EQ(control->child(2)->text(QAccessible::Name), QStringLiteral("R&B"));
    EXPECT_TRUE(control->child(2)->state().checked);
    EXPECT_FALSE(control->child(0)->state().checked);
    control->child(2)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(m_told, QList<int>{-1});
}
