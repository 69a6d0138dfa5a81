#include "Tidepool/Choices/StyledSegmentedControl.h"

#include "Platform/Controls/Menu.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using namespace tidepool;
using State = StyledControlState;

namespace {

class StyledSegmentedControlTest : public testing::Test {
protected:
    StyledSegmentedControlTest() : m_field(&m_window) {
        m_field.move(0, 60);
        m_control->setAction(ActionCounter::first, &m_target);
        m_control->move(20, 10);
        m_window.resize(400, 100);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
        fit();
    }

    StyledSegmentedCell& cell() { return m_control->cell(); }

    void fit() { m_control->resize(m_control->sizeHint()); }

    QPoint middle(int segment) { return m_control->segmentFrame(segment).center().toPoint(); }

    void press(int segment) { QTest::mousePress(m_control, Qt::LeftButton, {}, middle(segment)); }

    void release(int segment) { QTest::mouseRelease(m_control, Qt::LeftButton, {}, middle(segment)); }

    void click(int segment) { QTest::mouseClick(m_control, Qt::LeftButton, {}, middle(segment)); }

    void move(QPoint position) { // Qt's own test moves carry no button
        QMouseEvent event(QEvent::MouseMove, QPointF(position), m_control->mapToGlobal(QPointF(position)),
                          Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(m_control, &event);
    }

    QString selected() {
        QString states;
        for (int i = 0; i < cell().segmentCount(); ++i)
            states += cell().isSelected(i) ? u'x' : u'-';
        return states;
    }

    State stateOf(int segment) { return cell().segmentState(segment, m_control->context()); }

    QImage pictureOf(int segment) {
        return picture(*m_control).copy(m_control->segmentFrame(segment).toRect());
    }

    QWidget m_window;
    QLineEdit m_field;
    ActionCounter m_target;
    QPointer<StyledSegmentedControl> m_control = new StyledSegmentedControl(
        {QStringLiteral("Keys"), QStringLiteral("List"), QStringLiteral("R&B")}, &m_window);
};

} // namespace

TEST_F(StyledSegmentedControlTest, AClickSelectsByTheTrackingMode) {
    click(0);
    click(1);
    click(1);
    EXPECT_EQ(selected(), QStringLiteral("-x-"));
    EXPECT_EQ(m_target.count, 3) << "also where nothing changes";
    EXPECT_TRUE(m_field.hasFocus()) << "a click leaves the keyboard where it is";
    cell().setTrackingMode(SegmentTracking::selectAny);
    click(2);
    EXPECT_EQ(selected(), QStringLiteral("-xx"));
    click(1);
    EXPECT_EQ(selected(), QStringLiteral("--x"));
    EXPECT_EQ(m_control->selectedSegment(), 2);
    cell().setTrackingMode(SegmentTracking::momentary);
    click(1);
    EXPECT_EQ(selected(), QStringLiteral("---"));
    EXPECT_EQ(m_control->selectedSegment(), 1) << "which tells what was pressed";
    m_control->setSelectedSegment(-1);
    cell().setSegmentCount(1);
    EXPECT_EQ(m_target.count, 6) << "what the program sets sends nothing";
}

TEST_F(StyledSegmentedControlTest, APressHoldsItsSegmentAlone) {
    press(1);
    EXPECT_TRUE(stateOf(1).contains(State::highlighted));
    move(middle(0));
    EXPECT_FALSE(stateOf(1).contains(State::highlighted));
    EXPECT_FALSE(stateOf(0).contains(State::highlighted));
    move(middle(1));
    EXPECT_TRUE(stateOf(1).contains(State::highlighted));
    release(0);
    EXPECT_EQ(m_target.count, 0) << "released elsewhere";
    const std::function<void()> ends[]{
        [this] { QTest::keyClick(&m_field, Qt::Key_Escape); },
        [this] {
            m_control->setEnabled(false);
            m_control->setEnabled(true);
        },
        [this] {
            cell().setEnabled(false, 1);
            move(middle(1));
        },
        [this] { cell().setSegmentCount(1); },
    };
    for (const auto& end : ends) {
        press(1);
        end();
        EXPECT_EQ(cell().highlightedSegment(), -1);
        QTest::mouseRelease(m_control, Qt::LeftButton, {}, {80, 10});
        cell().setEnabled(true, std::min(1, cell().segmentCount() - 1));
    }
    EXPECT_EQ(m_target.count, 0);
    click(0);
    EXPECT_EQ(m_target.count, 1) << "the next one counts";
}

TEST_F(StyledSegmentedControlTest, KeysGoToASegmentAndPressIt) {
    m_control->setSelectedSegment(1);
    m_control->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(cell().keySegment(), 1);
    QTest::keyClick(m_control, Qt::Key_Left);
    QTest::keyClick(m_control, Qt::Key_Left);
    EXPECT_EQ(cell().keySegment(), 0) << "no further than the first";
    cell().setEnabled(false, 1);
    QTest::keyClick(m_control, Qt::Key_Right);
    EXPECT_EQ(cell().keySegment(), 2) << "past what is disabled";
    QTest::keyPress(m_control, Qt::Key_Space);
    EXPECT_TRUE(stateOf(2).contains(State::highlighted));
    QTest::keyClick(m_control, Qt::Key_Home);
    QTest::keyRelease(m_control, Qt::Key_Space);
    EXPECT_EQ(m_control->selectedSegment(), 2);
    QTest::keyClick(m_control, Qt::Key_Home);
    QTest::keyClick(m_control, Qt::Key_Return);
    EXPECT_EQ(m_control->selectedSegment(), 0);
    QTest::keyPress(m_control, Qt::Key_Space);
    m_field.setFocus();
    EXPECT_EQ(cell().highlightedSegment(), -1);
    m_control->setFocus();
    m_control->setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(middle(0).x(), middle(2).x());
    QTest::keyClick(m_control, Qt::Key_Left);
    EXPECT_EQ(cell().keySegment(), 2) << "the keys go the way they point";
    EXPECT_EQ(m_target.count, 2);
    click(0);
    EXPECT_EQ(m_target.count, 3) << "and the pointer hits what it sees";
}

TEST_F(StyledSegmentedControlTest, MayBeDestroyedByItsClick) {
    QObject::connect(m_control, &StyledSegmentedControl::segmentClicked, m_control,
                     [this] { delete m_control; });
    click(1);
    EXPECT_EQ(m_control, nullptr);
    EXPECT_EQ(m_target.count, 0);
}

TEST_F(StyledSegmentedControlTest, SizesFollowTheLabelsAndTheBezel) {
    const qreal label =
        std::ceil(QFontMetricsF(cell().style().font()).horizontalAdvance(QStringLiteral("Keys")));
    cell().setWidth(10, 0);
    EXPECT_EQ(cell().segment(0).width, label + 42) << "a label decides, whatever is asked for";
    cell().setLabel({}, 1);
    cell().setWidth(10, 1);
    fit();
    EXPECT_EQ(m_control->height(), 24);
    EXPECT_EQ(m_control->segmentFrame(1), QRectF(label + 42, 0, 10, 24));
    EXPECT_EQ(m_control->focusRingMaskBounds(), QRectF()) << "nothing is cached without a key segment";
    cell().setKeySegment(1);
    m_control->resize(300, 41);
    picture(*m_control);
    EXPECT_EQ(cell().cachedSegmentFrames().at(1).height(), 41);
    EXPECT_EQ(m_control->focusRingMaskBounds(), QRectF(label + 42, 8, 10, 24));
    EXPECT_EQ(m_control->segmentFrame(2).right(), 300) << "the rest goes to widths that are not set";
    m_control->resize(61, 24);
    EXPECT_EQ(m_control->segmentFrame(2).right(), 61);
    EXPECT_EQ(m_control->segmentFrame(1), m_control->segmentFrame(1).toRect()) << "on whole points";
    cell().setSegmentCount(1);
    cell().setLabel({}, 0);
    cell().setWidth(10, 0);
    EXPECT_EQ(m_control->sizeHint(), QSize(40, 24)) << "not narrower than the bezel";
}

TEST_F(StyledSegmentedControlTest, EachStateLooksDifferentAndHiddenLikeNone) {
    const QImage plain = pictureOf(0);
    cell().setHighlightedSegment(0);
    const QImage pressed = pictureOf(0);
    m_control->setSelectedSegment(0);
    const QImage both = pictureOf(0);
    cell().setHighlightedSegment(-1);
    const QImage selected = pictureOf(0);
    cell().setKeySegment(0);
    m_control->setFocus();
    const QImage focused = pictureOf(0);
    m_field.setFocus();
    m_control->setEnabled(false);
    const QImage disabled = pictureOf(0);
    m_control->setEnabled(true);
    const QList<QImage> all{plain, pressed, both, selected, focused, disabled};
    for (qsizetype i = 0; i < all.size(); ++i)
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_GT(difference(all[i], all[j]), 20) << i << " and " << j;
    cell().setHideSelection(true);
    EXPECT_EQ(difference(pictureOf(0), plain), 0);
    EXPECT_TRUE(cell().isSelected(0));
    cell().setSegmentCount(2); // as labels do not look the same in a mirror
    cell().setLabel({}, 0);
    cell().setLabel({}, 1);
    cell().setWidth(20, 0);
    QMenu menu;
    cell().setMenu(&menu, 1);
    const QImage leftToRight = picture(*m_control);
    m_control->setLayoutDirection(Qt::RightToLeft);
    EXPECT_LE(difference(picture(*m_control), leftToRight.mirrored(true, false)), 1);
}

TEST_F(StyledSegmentedControlTest, EdgesAreSharpAtAnyScale) {
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QImage image((QSizeF(m_control->size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        m_control->render(&image, {}, {}, QWidget::RenderFlags());
        const QRectF frame = m_control->segmentFrame(1);
        const platform::Image* const bezel = cell().style().bezelImage(State::defaultState);
        const int left = qRound(frame.left() * scale);
        const int width = qRound(frame.right() * scale) - left;
        const QImage drawn = bezel->bitmap(QSizeF(width, image.height()) / scale, scale);
        const int edge = qRound(8 * scale); // beyond it stands the label
        for (int x = 0; x < edge; ++x)
            EXPECT_LE(
                difference(image.pixel(left + x, image.height() / 2), drawn.pixel(x, image.height() / 2)), 1)
                << x << " at " << scale;
    }
}

TEST_F(StyledSegmentedControlTest, MenusOpenWhenHeldAndAtOnceWhereThereIsNothingElse) {
    platform::Menu menu;
    menu.addItem(QStringLiteral("Item"));
    cell().setMenu(&menu, 1);
    click(1);
    EXPECT_EQ(m_target.count, 1);
    EXPECT_FALSE(menu.isVisible());
    press(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }, 3000));
    EXPECT_TRUE(stateOf(1).contains(State::highlighted));
    menu.close();
    EXPECT_EQ(cell().highlightedSegment(), -1);
    release(1);
    EXPECT_EQ(m_target.count, 1);
    QTest::mousePress(m_control, Qt::RightButton, {}, middle(1));
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    m_control->setAction({});
    cell().setTrackingMode(SegmentTracking::momentary);
    press(1);
    EXPECT_TRUE(menu.isVisible());
    delete m_control;
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(StyledSegmentedControlTest, AssistiveTechnologySeesEachSegment) {
    QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(m_control);
    ASSERT_EQ(control->childCount(), 3);
    QAccessibleInterface* const segment = control->child(2);
    EXPECT_EQ(segment->parent(), control);
    EXPECT_EQ(control->indexOfChild(segment), 2);
    EXPECT_EQ(segment->role(), QAccessible::RadioButton);
    EXPECT_EQ(segment->text(QAccessible::Name), QStringLiteral("R&B"));
    EXPECT_EQ(control->childAt(segment->rect().center().x(), segment->rect().center().y()), segment);
    segment->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(m_target.count, 1);
    EXPECT_TRUE(segment->state().checked);
    m_control->setFocus();
    cell().setKeySegment(2);
    EXPECT_EQ(control->focusChild(), segment);
    cell().setTrackingMode(SegmentTracking::selectAny);
    EXPECT_EQ(segment->role(), QAccessible::CheckBox);
    cell().setTrackingMode(SegmentTracking::momentary);
    EXPECT_EQ(segment->role(), QAccessible::Button);
    EXPECT_FALSE(segment->state().checkable);
    cell().setEnabled(false, 2);
    EXPECT_TRUE(segment->state().disabled);
    EXPECT_TRUE(segment->actionInterface()->actionNames().isEmpty());
    cell().setSegmentCount(2);
    EXPECT_FALSE(segment->isValid());
    EXPECT_EQ(control->childCount(), 2);
}
