#include "Tidepool/Choices/StyledPopUpButton.h"
#include "Tidepool/Choices/StyledPopDownButton.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <functional>

using namespace tidepool;

namespace {

class StyledPopUpButtonTest : public testing::Test {
protected:
    StyledPopUpButtonTest() : m_field(&m_window) {
        m_window.resize(400, 300);
        m_field.move(0, 200);
        m_button->move(20, 100);
        m_pullDown->move(200, 100);
        for (const char* const title : {"Sine", "Square", "Noise"}) {
            m_button->addItem(QString::fromLatin1(title));
            m_pullDown->addItem(QString::fromLatin1(title));
        }
        fit(*m_button);
        fit(*m_pullDown);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
    }

    static void fit(QWidget& button) { button.resize(button.sizeHint()); }

    /// The columns of the picture in which `color` is seen, to a few steps of each channel.
    static std::pair<int, int> columnsOf(const QImage& image, const QColor& color) {
        std::pair<int, int> columns{image.width(), -1};
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (difference(image.pixel(x, y), color.rgba()) < 20)
                    columns = {std::min(columns.first, x), std::max(columns.second, x)};
        return columns;
    }

    QWidget m_window;
    QLineEdit m_field;
    ActionCounter m_target;
    QPointer<StyledPopUpButton> m_button = new StyledPopUpButton(false, &m_window);
    QPointer<StyledPopDownButton> m_pullDown = new StyledPopDownButton(&m_window);
};

} // namespace

TEST_F(StyledPopUpButtonTest, IsAsWideAsItsLongestTitleOrAsItIsTold) {
    const QSizeF natural = m_button->intrinsicContentSize();
    m_button->selectItem(1);
    EXPECT_EQ(m_button->intrinsicContentSize(), natural) << "whatever is chosen";
    EXPECT_EQ(natural.height(), 18) << "of the bezel without its margins";
    m_button->addItem(QStringLiteral("Triangle, rounded"));
    EXPECT_GT(m_button->intrinsicContentSize().width(), natural.width());
    const double unlabelled = m_button->intrinsicContentSize().width();
    m_button->setLabel(QStringLiteral("Wave"));
    EXPECT_GT(m_button->intrinsicContentSize().width(), unlabelled + 20);
    m_button->setFixedWidth(72);
    EXPECT_EQ(m_button->intrinsicContentSize().width(), 72);
    EXPECT_EQ(m_button->sizeHint().width(), 76) << "with the margins of its drawing";
    m_button->setFixedWidth(std::nullopt);
    EXPECT_GT(m_button->intrinsicContentSize().width(), unlabelled);
    ToolPopUpButton tool;
    EXPECT_EQ(tool.sizeHint().height(), 20);
    EXPECT_TRUE(tool.alignmentRectInsets().isNull());
}

TEST_F(StyledPopUpButtonTest, PutsTheTitleIntoALineThatEndsBeforeTheArrows) {
    const QRectF bounds(0, 0, 101, 25);
    const auto title = [&] { return m_button->cell().titleRect(bounds, m_button->context()); };
    EXPECT_EQ(title(), QRectF(10, 5, 77, 14));
    m_button->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(title(), QRectF(14, 5, 77, 14));
    m_button->cell().setImagePosition(platform::ImagePosition::imageOnly);
    EXPECT_EQ(title(), QRectF());
    m_button->cell().setImagePosition(platform::ImagePosition::noImage);
    m_button->selectItem(-1);
    EXPECT_EQ(title(), QRectF());
    const QImage empty = picture(*m_button);
    m_button->setLabel(QStringLiteral("Wave"));
    EXPECT_EQ(picture(*m_button), empty) << "without a title there is no label";
}

TEST_F(StyledPopUpButtonTest, ALabelPrecedesTheTitleInItsOwnColour) {
    m_button->resize(160, 24);
    const QColor label(0xff, 0, 0);
    const QColor title(0, 0xff, 0);
    const auto style = std::make_shared<PopUpButtonCellStyle>();
    style->setLabelTextColor(label);
    style->setTextColor(title);
    m_button->cell().setStyle(style);
    const auto titleAlone = columnsOf(picture(*m_button), title);
    EXPECT_EQ(columnsOf(picture(*m_button), label).second, -1);
    EXPECT_EQ(m_button->context().title.font().weight(), QFont::Normal);
    m_button->setLabel(QStringLiteral("Wave"));
    EXPECT_EQ(m_button->context().title.font().weight(), QFont::Medium);
    const auto columns = [&](const QColor& color) { return columnsOf(picture(*m_button), color); };
    EXPECT_NEAR(columns(label).first, titleAlone.first, 2);
    EXPECT_GT(columns(title).first, columns(label).second + 2) << "a space between them";
    m_button->setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(columns(label).first, columns(title).second + 2);
    m_button->setLayoutDirection(Qt::LeftToRight);
    m_button->resize(60, 24);
    EXPECT_LE(columns(title).second, 60 - 14) << "what is too long ends before the arrows";
    auto* const spoken = QAccessible::queryAccessibleInterface(m_button);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Wave"));
    EXPECT_EQ(spoken->text(QAccessible::Value), QStringLiteral("Sine"));
    m_button->setAccessibleName(QStringLiteral("Oscillator 1"));
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Oscillator 1"));
}

TEST_F(StyledPopUpButtonTest, ShowsEachStateAndMirrorsItsBezel) {
    m_button->selectItem(-1);
    const QImage normal = picture(*m_button);
    m_button->setLayoutDirection(Qt::RightToLeft);
    EXPECT_LE(difference(picture(*m_button), normal.mirrored(true, false)), 1);
    EXPECT_GT(difference(picture(*m_button), normal), 50);
    m_button->setLayoutDirection(Qt::LeftToRight);
    QTest::mousePress(m_button, Qt::LeftButton);
    ASSERT_TRUE(m_button->menu()->isVisible());
    const QImage pressed = picture(*m_button);
    EXPECT_GT(difference(pressed, normal), 20) << "highlighted as long as the menu is open";
    m_button->menu()->close();
    EXPECT_EQ(picture(*m_button), normal);
    m_button->setFocus(Qt::TabFocusReason);
    EXPECT_GT(difference(picture(*m_button), normal), 20);
    m_field.setFocus();
    m_button->setEnabled(false);
    const QRgb face = normal.pixel(20, 12);
    const QRgb dimmed = picture(*m_button).pixel(20, 12);
    EXPECT_NEAR(qRed(dimmed), (qRed(face) + qRed(normal.pixel(0, 0))) / 2, 30);
    EXPECT_GT(difference(face, dimmed), 4);
}

TEST_F(StyledPopUpButtonTest, APullDownKeepsTheTitleThatItIsGiven) {
    EXPECT_EQ(m_pullDown->title(), QStringLiteral("Sine"));
    m_pullDown->setTitle(QStringLiteral("Add & more"));
    EXPECT_EQ(m_pullDown->plainTitle(), QStringLiteral("Add & more"));
    m_pullDown->openMenu();
    const auto items = m_pullDown->itemArray();
    EXPECT_FALSE(m_pullDown->menu()->actionGeometry(items[0]).isEmpty())
        << "the first item is one like others";
    const QPoint noise = m_pullDown->menu()->actionGeometry(items[2]).center();
    QTest::mouseMove(m_pullDown->menu(), noise);
    QTest::mouseClick(m_pullDown->menu(), Qt::LeftButton, {}, noise);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pullDown->selectedItem(), items[2]);
    delete items[0];
    EXPECT_EQ(m_pullDown->plainTitle(), QStringLiteral("Add & more"));
}

TEST_F(StyledPopUpButtonTest, AClickOnAPullDownWithAnActionSendsItAndHoldingOpensTheMenu) {
    const auto isOpen = [this] { return m_pullDown->menu()->isVisible(); };
    QTest::mousePress(m_pullDown, Qt::LeftButton);
    EXPECT_TRUE(isOpen()) << "without an action";
    m_pullDown->menu()->close();
    m_pullDown->setAction(ActionCounter::first, &m_target);
    QTest::mousePress(m_pullDown, Qt::LeftButton);
    EXPECT_EQ(m_target.count, 0);
    QTest::mouseRelease(m_pullDown, Qt::LeftButton, {}, {-5, -5});
    EXPECT_EQ(m_target.count, 0) << "released outside";
    QTest::mouseClick(m_pullDown, Qt::LeftButton);
    EXPECT_EQ(m_target.count, 1);
    EXPECT_EQ(m_target.lastSender, m_pullDown);
    EXPECT_FALSE(isOpen());
    QTest::keyClick(m_pullDown, Qt::Key_Space);
    EXPECT_EQ(m_target.count, 2);
    QTest::mousePress(m_pullDown, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor(isOpen));
    EXPECT_FALSE(m_pullDown->isDown());
    m_pullDown->menu()->close();
    const std::array<std::function<void()>, 3> openings{
        [this] { QTest::mousePress(m_pullDown, Qt::RightButton); },
        [this] { QTest::keyClick(m_pullDown, Qt::Key_F4); },
        [this] { QTest::keyClick(m_pullDown, Qt::Key_Down, Qt::AltModifier); }};
    for (const auto& open : openings) {
        open();
        EXPECT_TRUE(isOpen());
        m_pullDown->menu()->close();
    }
    QTest::mousePress(m_pullDown, Qt::LeftButton);
    m_pullDown->setEnabled(false);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_FALSE(isOpen()) << "disabled while it was held";
    QTest::mouseRelease(m_pullDown, Qt::LeftButton);
    QTest::mouseRelease(m_pullDown, Qt::RightButton);
    EXPECT_EQ(m_target.count, 2);
}
