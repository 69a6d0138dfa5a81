#include "Platform/Controls/Popover.h"
#include "Platform/Controls/PopoverWindow.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using platform::Popover;
using platform::PopoverPlacement;
using platform::PopoverWindow;
using platform::RectEdge;

namespace {

/// A field in a scrolling window, with a popover.
class PopoverTest : public testing::Test {
protected:
    PopoverTest() {
        auto* const content = new QWidget;
        content->setFixedSize(200, 1000);
        field = new QLineEdit(content);
        field->setGeometry(20, 20, 100, 24);
        area.setWidget(content);
        area.resize(240, 200);
        area.move(100, 100);
        area.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
        field->setFocus();
        popover->setContentView(new QLabel(QStringLiteral("A preset needs a name")));
        popover->setContentSize({150, 30});
    }

    static PopoverWindow* window() {
        for (QWidget* const widget : QApplication::topLevelWidgets())
            if (auto* const found = qobject_cast<PopoverWindow*>(widget))
                return found;
        return nullptr;
    }

    static bool isSeen() { return window() != nullptr && window()->isVisible(); }

    static bool goes() {
        return QTest::qWaitFor([] { return !isSeen(); });
    }

    /// Of the bubble's middle below that of the field.
    int distance() {
        return window()->geometry().center().y() - field->mapToGlobal(field->rect().center()).y();
    }

    QScrollArea area;
    QPointer<QLineEdit> field;
    std::unique_ptr<Popover> popover = std::make_unique<Popover>();
};

} // namespace

TEST(PopoverPlacement, FlipsAndStaysOnTheScreen) {
    const QRect screen(0, 0, 1000, 800);
    const QSize bubble(200, 60);
    const auto at = [&](const QRect& anchor, RectEdge edge) {
        return PopoverPlacement::beside(anchor, bubble, edge, screen);
    };
    const QRect middle(400, 300, 100, 20);
    const PopoverPlacement below = at(middle, RectEdge::maxY);
    EXPECT_EQ(below.tip, QPointF(450, 320));
    EXPECT_EQ(below.bubble, QRect(350, 320 + PopoverPlacement::arrowLength, 200, 60));
    EXPECT_EQ(at(middle, RectEdge::minX).bubble.right(), 400 - PopoverPlacement::arrowLength - 1);
    EXPECT_EQ(at({400, 770, 100, 20}, RectEdge::maxY).edge, RectEdge::minY);
    EXPECT_EQ(at({400, 10, 100, 20}, RectEdge::minY).edge, RectEdge::maxY);
    EXPECT_EQ(at({900, 300, 90, 20}, RectEdge::maxX).edge, RectEdge::minX);
    const PopoverPlacement corner = at({0, 300, 20, 20}, RectEdge::maxY);
    EXPECT_EQ(corner.bubble.left(), 0);
    EXPECT_GE(corner.tip.x(), PopoverPlacement::cornerRadius) << "the arrow is not on the round corner";
    for (const auto edge : {RectEdge::minX, RectEdge::minY, RectEdge::maxX, RectEdge::maxY}) {
        const PopoverPlacement placed = at(middle, edge);
        EXPECT_TRUE(placed.outline().contains(QRectF(placed.bubble).center()));
        EXPECT_TRUE(placed.outline().boundingRect().adjusted(-2, -2, 2, 2).contains(placed.tip));
        EXPECT_FALSE(placed.outline().contains(QRectF(middle).center()));
    }
}

TEST_F(PopoverTest, FollowsItsViewAndNeverTakesTheKeyboard) {
    popover->show({}, *field, RectEdge::maxY);
    ASSERT_TRUE(isSeen());
    EXPECT_TRUE(field->hasFocus());
    EXPECT_TRUE(area.isActiveWindow());
    const int before = distance();
    EXPECT_GT(before, 0);
    area.move(200, 150);
    EXPECT_EQ(distance(), before);
    area.verticalScrollBar()->setValue(15);
    EXPECT_EQ(distance(), before);
    field->move(40, 60);
    EXPECT_EQ(distance(), before);
    area.verticalScrollBar()->setValue(500);
    EXPECT_TRUE(goes()) << "scrolled out of sight";
    EXPECT_TRUE(popover->isShown());
    area.verticalScrollBar()->setValue(0);
    EXPECT_TRUE(isSeen());
    area.move(200, area.screen()->availableGeometry().bottom() - 120);
    EXPECT_LT(distance(), 0) << "no room below";
}

TEST_F(PopoverTest, FollowsAViewThatIsEmbeddedAndMagnified) {
    auto* const window = new QWidget;
    auto* const button = new QPushButton(window);
    button->setGeometry(20, 20, 60, 20);
    window->resize(300, 800);
    QWidget around;
    QGraphicsScene scene;
    QGraphicsView view(&scene, &around);
    scene.addWidget(window)->setScale(2);
    view.setGeometry(50, 60, 300, 200);
    around.resize(400, 300);
    around.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&around));
    popover->show({}, *button, RectEdge::maxY);
    ASSERT_TRUE(isSeen());
    const auto middle = [&] {
        return PopoverTest::window()->geometry().center() - view.viewport()->mapToGlobal(QPoint());
    };
    const QPoint before = middle();
    EXPECT_NEAR(before.x(), 2 * (20 + 30), 2);
    EXPECT_NEAR(before.y(), 2 * (20 + 20) + PopoverPlacement::arrowLength + 15, 2);
    view.verticalScrollBar()->setValue(30);
    EXPECT_EQ(middle(), before - QPoint(0, 30));
    around.move(around.pos() + QPoint(10, 0));
    EXPECT_EQ(middle(), before - QPoint(0, 30));
    view.verticalScrollBar()->setValue(300);
    EXPECT_TRUE(goes());
}

TEST_F(PopoverTest, ClosesWithItsView) {
    int closed = 0;
    QObject::connect(popover.get(), &Popover::closed, [&] { ++closed; });
    const auto show = [&] {
        popover->show({}, *field, RectEdge::maxY);
        EXPECT_TRUE(popover->isShown());
    };
    show();
    field->hide();
    EXPECT_FALSE(popover->isShown());
    field->show();
    EXPECT_TRUE(goes());
    show();
    area.hide();
    EXPECT_FALSE(popover->isShown());
    area.show();
    show();
    field->setParent(nullptr);
    EXPECT_FALSE(popover->isShown());
    field->setParent(area.widget());
    field->show();
    show();
    popover->close();
    popover->close();
    EXPECT_EQ(closed, 4);
    show();
    delete field;
    EXPECT_FALSE(popover->isShown());
    EXPECT_TRUE(goes());
    EXPECT_EQ(closed, 5);
}

TEST_F(PopoverTest, MayGoAtAnyMoment) {
    QObject::connect(popover.get(), &Popover::closed, [&] { popover.reset(); });
    popover->show({}, *field, RectEdge::maxY);
    field->hide();
    EXPECT_EQ(popover, nullptr);
    EXPECT_EQ(window(), nullptr);
    QTest::qWait(200); // nothing goes on
}

namespace {

/// A bubble with a green ground and a red edge, in place for a view above it.
class PopoverWindowTest : public testing::Test {
protected:
    PopoverWindowTest() {
        owner.show();
        window.setContent(new QLabel(QStringLiteral("A preset needs a name")));
        window.setColors(Qt::green, Qt::red);
    }

    void present(QSize size = {150, 40}) {
        window.present(PopoverPlacement::beside({400, 300, 100, 20}, size, RectEdge::maxY, screen), owner,
                       true);
    }

    bool isWhole() {
        const QImage image = picture(window);
        int green = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                green += image.pixel(x, y) == qRgb(0, 255, 0) ? 1 : 0;
        return green > 4000 && window.content()->isVisible();
    }

    bool becomesWhole() {
        return QTest::qWaitFor([this] { return isWhole(); });
    }

    const QRect screen{0, 0, 1000, 800};
    QWidget owner;
    PopoverWindow window;
};

} // namespace

TEST_F(PopoverWindowTest, AppearsAndLeavesAsAWhole) {
    window.setAttribute(Qt::WA_TranslucentBackground);
    const auto opacity = [this] { // of its ground
        return qAlpha(picture(window).pixel(window.rect().center() + QPoint(0, 14)));
    };
    present();
    ASSERT_TRUE(QTest::qWaitFor([&] { return opacity() > 0; }));
    EXPECT_FALSE(isWhole()) << "it fades in, ground and text as one";
    EXPECT_TRUE(becomesWhole());
    window.dismiss(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opacity() < 255; }));
    present();
    EXPECT_TRUE(becomesWhole()) << "turns round in the middle of its way";
    window.dismiss(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isVisible(); }));
    present();
    window.dismiss(false);
    present({200, 40}); // with another text
    EXPECT_TRUE(becomesWhole());
    EXPECT_EQ(window.content()->width(), 200);
}
