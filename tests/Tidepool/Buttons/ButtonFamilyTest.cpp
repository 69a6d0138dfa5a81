#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Buttons/BackButton.h"
#include "Tidepool/Buttons/CornerButton.h"
#include "Tidepool/Buttons/CursorButton.h"
#include "Tidepool/Buttons/FavouriteCheckBox.h"
#include "Tidepool/Buttons/PopUpCyclingButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Buttons/ToolButton.h"
#include "Tidepool/Menus/PopUpContextMenu.h"
#include "Tidepool/Palette/TPImages.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QEventLoop>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace tidepool;
using platform::ControlState;

namespace {

void show(QWidget& widget) {
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
}

bool isHighlighted(const platform::PushButton& button) {
    return button.context().state.contains(StyledControlState::highlighted);
}

/// A menu with one item; where it opened last.
class SpiedMenu : public QMenu {
public:
    SpiedMenu() { addAction(QStringLiteral("Item")); }

    QPoint openedAt(const QWidget& view) const { return view.mapFromGlobal(pos()); }
};

} // namespace

TEST(BackButton, ItsAlphaValueShowsAndHidesItAndMakesNoWindowOfIt) {
    BackButton button(QStringLiteral("Back"));
    button.setAlphaValue(0.4);
    EXPECT_FALSE(button.isVisible());
    QWidget window;
    button.setAlphaValue(0);
    button.setParent(&window);
    show(window);
    EXPECT_TRUE(button.isHidden()) << "since before its window was shown";
    button.setAlphaValue(0.4);
    EXPECT_TRUE(button.isVisible());
    button.setParent(nullptr);
}

TEST(BackButton, PointsToWhereLinesBegin) {
    BackButton button;
    button.resize(60, 28);
    const QImage leftToRight = picture(button);
    button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LE(difference(picture(button), leftToRight.mirrored(true, false)), 1);
    EXPECT_GT(difference(picture(button), leftToRight), 30);
}

TEST(CornerButton, OpensItsMenuUnderItself) {
    SpiedMenu menu;
    CornerButton button;
    ActionCounter target;
    button.setAction(ActionCounter::first, &target);
    button.resize(40, 24);
    show(button);
    button.setAlternateMenu(&menu);
    const auto opens = [&](const std::function<void()>& gesture) {
        gesture();
        const bool isOpen = menu.isVisible() && menu.openedAt(button) == QPoint(0, 28);
        EXPECT_EQ(isHighlighted(button), menu.isVisible());
        menu.close();
        EXPECT_FALSE(isHighlighted(button));
        return isOpen;
    };
    EXPECT_TRUE(opens([&] { QTest::mousePress(&button, Qt::LeftButton); }));
    EXPECT_TRUE(opens([&] { QTest::mousePress(&button, Qt::RightButton); }));
    EXPECT_TRUE(opens([&] { QTest::mousePress(&button, Qt::LeftButton, Qt::ControlModifier); }));
    EXPECT_TRUE(opens([&] { QTest::keyClick(&button, Qt::Key_Space); }));
    EXPECT_TRUE(opens([&] { QTest::keyClick(&button, Qt::Key_Return); }));
    EXPECT_TRUE(opens([&] { button.click(); })) << "as its mnemonic and assistive technology do";
    EXPECT_EQ(target.count, 0);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    EXPECT_FALSE(opens([&] { QApplication::sendEvent(&button, &repeated); })) << "a key that is still held";
    button.setEnabled(false);
    menu.setEnabled(false);
    EXPECT_FALSE(opens([&] { popUpContextMenu(button); }));
    button.setEnabled(true);
    button.setAlternateMenu(nullptr);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(target.count, 1);
}

TEST(CursorButton, ShowsItsPointerWhileThePointerIsOverIt) {
    QWidget window;
    CursorButton button(&window);
    button.resize(40, 40);
    show(window);
    EXPECT_TRUE(button.acceptsFirstMouse());
    const auto enter = [&] {
        QEnterEvent event({5, 5}, {5, 5}, {5, 5});
        QApplication::sendEvent(&button, &event);
    };
    const auto leave = [&] {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&button, &event);
    };
    enter();
    EXPECT_EQ(button.cursor().shape(), Qt::ArrowCursor) << "without an image";
    button.setCursorImage(TPImagesAK::cursorTrackingSlider.image());
    button.setCursorHotSpot({3, 4});
    enter();
    EXPECT_EQ(button.cursor().shape(), Qt::BitmapCursor);
    EXPECT_EQ(button.cursor().hotSpot(), QPoint(3, 4));
    leave();
    EXPECT_EQ(button.cursor().shape(), Qt::ArrowCursor);

    button.setCursor(Qt::PointingHandCursor);
    enter();
    leave();
    EXPECT_EQ(button.cursor().shape(), Qt::PointingHandCursor) << "what a client has set is there again";
    enter();
    button.setCursor(Qt::BusyCursor);
    leave();
    EXPECT_EQ(button.cursor().shape(), Qt::BusyCursor) << "also what it has set meanwhile";
    enter();
    button.setCursorImage({});
    EXPECT_EQ(button.cursor().shape(), Qt::BusyCursor);
}

TEST(PopUpCyclingButton, StepsItsPopUpButtonAndTreatsOthersAsUsual) {
    platform::PopUpButton popUp;
    for (const char16_t* const title : {u"A", u"B", u"C"})
        popUp.addItem(QString::fromUtf16(title));
    PopUpCyclingButton button;
    button.resize(20, 20);
    show(button);
    button.setAction(ActionCounter::first, &popUp);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(popUp.titleOfSelectedItem(), QStringLiteral("B"));
    QTest::mouseClick(&button, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(popUp.titleOfSelectedItem(), QStringLiteral("A"));
    const auto pressReturn = [&](Qt::KeyboardModifiers then, Qt::KeyboardModifiers later) {
        const QString before = popUp.titleOfSelectedItem();
        QTest::keyPress(&button, Qt::Key_Return, then);
        QTest::keyRelease(&button, Qt::Key_Return, later);
        EXPECT_TRUE(QTest::qWaitFor([&] { return popUp.titleOfSelectedItem() != before; }));
        return popUp.titleOfSelectedItem();
    };
    EXPECT_EQ(pressReturn({}, Qt::ShiftModifier), QStringLiteral("B")) << "Shift came after the key";
    EXPECT_EQ(pressReturn(Qt::ShiftModifier, {}), QStringLiteral("A")) << "Shift has gone since";
    const auto stepsOnAfter = [&](auto&& click) {
        QEventLoop loop; // which blocks: the event with Shift is over
        QTimer::singleShot(1, &loop, &QEventLoop::quit);
        loop.exec();
        popUp.selectItem(0);
        click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return popUp.indexOfSelectedItem() != 0; }));
        return popUp.indexOfSelectedItem() == 1;
    };
    EXPECT_TRUE(stepsOnAfter([&] { button.animateClick(); })) << "a mnemonic's click";
    QTest::mouseClick(&button, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_TRUE(stepsOnAfter([&] { button.click(); }));
    popUp.selectItem(0);
    QTest::mousePress(&button, Qt::LeftButton, Qt::ShiftModifier);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(popUp.titleOfSelectedItem(), QStringLiteral("B")) << "the release is the click";
    ActionCounter other;
    button.setTarget(&other);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(other.count, 1);
}

TEST(ButtonCells, KeepTheRoomOfTheirTitlesOnTheSideWhereLinesBegin) {
    BackButton back(QStringLiteral("Back"));
    StyledCheckBox box(QStringLiteral("A box"));
    for (platform::PushButton* const button : std::initializer_list<platform::PushButton*>{&back, &box})
        for (const qreal width : {90, 30}) { // more than the title needs, and less
            SCOPED_TRACE(button->metaObject()->className());
            const QRectF bounds(0, 0, width, 31);
            const auto rects = [&](Qt::LayoutDirection direction) {
                button->setLayoutDirection(direction);
                const platform::ButtonCell& cell = button->cell();
                const platform::CellContext context = button->context();
                const QRectF inner = cell.drawingRect(bounds, context);
                return std::pair(cell.titleRect(inner, context), cell.imageRect(inner, context));
            };
            const auto [title, image] = rects(Qt::LeftToRight);
            const auto [otherTitle, otherImage] = rects(Qt::RightToLeft);
            EXPECT_NEAR(otherTitle.left(), width - title.right(), 1);
            EXPECT_NEAR(otherTitle.right(), width - title.left(), 1);
            EXPECT_NEAR(otherImage.left(), width - image.right(), 1);
            EXPECT_NE(title.left(), width - title.right()) << "there is something to mirror";
        }
}

TEST(StyledCheckBox, ClicksAlternateAndNeverMix) {
    StyledCheckBox box(QStringLiteral("Box"));
    box.setState(ControlState::mixed);
    for (const ControlState expected : {ControlState::on, ControlState::off, ControlState::on}) {
        box.click();
        EXPECT_EQ(box.state(), expected);
    }
}

TEST(FavouriteCheckBox, ShowsItsStarAndDimsWhileHeld) {
    FavouriteCheckBox star;
    star.resize(star.sizeHint());
    show(star);
    const QImage empty = picture(star);
    QTest::mousePress(&star, Qt::LeftButton);
    EXPECT_EQ(star.alphaValue(), 0.5);
    QTest::keyClick(&star, Qt::Key_Escape);
    EXPECT_EQ(star.alphaValue(), 1) << "whatever ends the press";
    QTest::mousePress(&star, Qt::LeftButton);
    QTest::mouseRelease(&star, Qt::LeftButton);
    EXPECT_EQ(star.alphaValue(), 1);
    EXPECT_EQ(star.state(), ControlState::on);
    EXPECT_GT(difference(empty, picture(star)), 100);
    const QImage full = picture(star);
    QTest::keyPress(&star, Qt::Key_Space);
    EXPECT_GT(difference(full, picture(star)), 60) << "the keyboard's press shows, too";
    QTest::keyRelease(&star, Qt::Key_Space);
    EXPECT_LE(difference(empty, picture(star)), 1);
}

class ToolButtonTest : public testing::Test {
protected:
    ToolButtonTest() {
        m_button.setAction(ActionCounter::first, &m_target);
        m_button.setSecondaryAction(ActionCounter::second);
        m_button.setSecondaryTarget(&m_target);
        m_button.resize(30, 24);
        show(m_button);
        QApplication::setDoubleClickInterval(60);
    }

    ~ToolButtonTest() override { QApplication::setDoubleClickInterval(400); }

    bool holdIsSent() {
        return QTest::qWaitFor([this] { return m_target.secondCount > 0; }, 300);
    }

    ActionCounter m_target;
    ToolButton m_button;
};

TEST_F(ToolButtonTest, QuickClickSendsTheActionAndHoldTheSecondOne) {
    QTest::mouseClick(&m_button, Qt::LeftButton);
    EXPECT_EQ(m_target.count, 1);
    EXPECT_FALSE(holdIsSent());
    QTest::mousePress(&m_button, Qt::LeftButton);
    EXPECT_TRUE(holdIsSent());
    EXPECT_FALSE(m_button.isDown());
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    EXPECT_EQ(m_target.count, 1);
    EXPECT_EQ(m_target.secondCount, 1);
}

TEST_F(ToolButtonTest, NoHoldWithoutAnActionAfterAnEndOrOnADoubleClick) {
    QTest::mousePress(&m_button, Qt::LeftButton);
    m_button.setEnabled(false);
    EXPECT_FALSE(holdIsSent());
    m_button.setEnabled(true);

    QTest::mouseClick(&m_button, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonDblClick, {5, 5}, {5, 5}, Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&m_button, &second);
    EXPECT_FALSE(holdIsSent());
    QTest::mouseRelease(&m_button, Qt::LeftButton, {}, {5, 5});

    m_button.setSecondaryAction(std::nullopt);
    QTest::mousePress(&m_button, Qt::LeftButton);
    EXPECT_FALSE(holdIsSent());
    EXPECT_TRUE(m_button.isDown());
}

TEST_F(ToolButtonTest, MenuKeyReachesWhatHoldingDoes) {
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&m_button, &key);
    EXPECT_EQ(m_target.secondCount, 1);
    QAccessible::queryAccessibleInterface(&m_button)->actionInterface()->doAction(
        QAccessibleActionInterface::showMenuAction());
    EXPECT_EQ(m_target.secondCount, 2) << "so does assistive technology";
    SpiedMenu menu;
    m_button.setMenu(&menu);
    QTest::mousePress(&m_button, Qt::RightButton);
    EXPECT_EQ(menu.openedAt(m_button), QPoint(0, 28));
}

TEST_F(ToolButtonTest, MarkOfMoreStandsInTheCornerWhereLinesEndWithOrWithoutABorder) {
    for (const bool isBordered : {true, false}) {
        m_button.setBordered(isBordered);
        const auto mark = [this](Qt::LayoutDirection direction) {
            m_button.setLayoutDirection(direction);
            m_button.setShowMoreIcon(false);
            const QImage without = picture(m_button);
            m_button.setShowMoreIcon(true);
            const QImage with = picture(m_button);
            QImage changed(with.size(), QImage::Format_RGB32);
            for (int y = 0; y < with.height(); ++y)
                for (int x = 0; x < with.width(); ++x)
                    changed.setPixel(x, y,
                                     difference(with.pixel(x, y), without.pixel(x, y)) > 12 ? 0xffffff : 0);
            return changed;
        };
        const QImage leftToRight = mark(Qt::LeftToRight);
        const auto isMarked = [&](int from, int to) {
            for (int y = 12; y < 24; ++y)
                for (int x = from; x < to; ++x)
                    if ((leftToRight.pixel(x, y) & 0xff) != 0)
                        return true;
            return false;
        };
        EXPECT_TRUE(isMarked(15, 30)) << isBordered;
        EXPECT_FALSE(isMarked(0, 15)) << isBordered;
        EXPECT_EQ(difference(mark(Qt::RightToLeft), leftToRight.mirrored(true, false)), 0) << isBordered;
    }
}
