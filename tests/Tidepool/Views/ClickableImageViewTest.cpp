#include "Tidepool/Views/ClickableImageView.h"

#include "Tidepool/Palette/TPImages.h"

#include <QAccessible>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

using namespace tidepool;

namespace {

class ClickableImageViewTest : public testing::Test {
protected:
    ClickableImageViewTest() {
        m_view->setParent(&m_window);
        m_view->resize(16, 16);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_token = m_view->clicked()->sink([this](std::monostate) { ++m_clicks; });
    }

    void press() { QTest::mousePress(m_view, Qt::LeftButton, {}, {8, 8}); }

    void release() { QTest::mouseRelease(m_view, Qt::LeftButton, {}, {8, 8}); }

    QWidget m_window;
    QPointer<ClickableImageView> m_view =
        new ClickableImageView(TPImages::checkboxOn.image(), QStringLiteral("Picture"));
    int m_clicks = 0;
    platform::AnyCancellable m_token;
};

} // namespace

TEST_F(ClickableImageViewTest, ClicksAndDimsOnlyWhileEnabled) {
    press();
    EXPECT_EQ(m_view->alphaValue(), 0.5);
    release();
    EXPECT_EQ(m_view->alphaValue(), 1);
    EXPECT_EQ(m_clicks, 1);
    press();
    QTest::mouseRelease(m_view, Qt::LeftButton, {}, {40, 8});
    EXPECT_EQ(m_clicks, 1);
    QTest::keyClick(m_view, Qt::Key_Space);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(m_view, &repeated);
    EXPECT_EQ(m_clicks, 2) << "a key that is held presses once";
    EXPECT_TRUE(repeated.isAccepted()) << "and is nobody else's";
    press();
    m_view->setEnabled(false);
    EXPECT_EQ(m_view->alphaValue(), 1);
    m_view->setEnabled(true);
    release();
    EXPECT_EQ(m_clicks, 2);
}

TEST_F(ClickableImageViewTest, HidingAndEscapeEndThePress) {
    press();
    m_view->hide();
    EXPECT_EQ(m_view->alphaValue(), 1);
    m_view->show();
    press();
    QTest::keyClick(&m_window, Qt::Key_Escape);
    EXPECT_EQ(m_view->alphaValue(), 1);
    release();
    EXPECT_EQ(m_clicks, 0);
}

TEST_F(ClickableImageViewTest, MayBeDestroyedByItsClick) {
    const auto destroyer = m_view->clicked()->sink([this](std::monostate) { delete m_view; });
    press();
    release();
    EXPECT_EQ(m_view, nullptr);
    EXPECT_EQ(m_clicks, 1);
}

TEST_F(ClickableImageViewTest, AssistiveTechnologyPressesIt) {
    QAccessibleInterface* const view = QAccessible::queryAccessibleInterface(m_view);
    EXPECT_EQ(view->role(), QAccessible::Button);
    EXPECT_EQ(view->text(QAccessible::Name), QStringLiteral("Picture"));
    view->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(m_clicks, 1);
}
