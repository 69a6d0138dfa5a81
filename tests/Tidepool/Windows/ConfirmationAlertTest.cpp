#include "Tidepool/Windows/ConfirmationAlert.h"
#include "tests/support/Find.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

class ConfirmationAlertTest : public testing::Test {
protected:
    void show(QWidget* parent) {
        tidepool::showConfirmationAlert(parent, QStringLiteral("Delete <b>all</b>?"),
                                        QStringLiteral("There is <i>no</i> way back."),
                                        QStringLiteral("Delete"), [this] { ++m_deletions; });
        alert = shownWindow<QMessageBox>();
        ASSERT_NE(alert, nullptr);
    }

    QAbstractButton* button(const QString& title) const { return withText(alert->buttons(), title); }

    bool isDeleted() {
        return QTest::qWaitFor([this] { return !alert; }, 1000);
    }

    QPointer<QMessageBox> alert;
    int m_deletions = 0;
};

} // namespace

TEST_F(ConfirmationAlertTest, RunsItsActionWhenConfirmed) {
    show(nullptr);
    EXPECT_TRUE(alert->isModal());
    EXPECT_EQ(alert->buttons().size(), 2);
    EXPECT_EQ(m_deletions, 0) << "the call returns at once";
    QTest::mouseClick(button(QStringLiteral("Delete")), Qt::LeftButton);
    EXPECT_EQ(m_deletions, 1);
    EXPECT_TRUE(isDeleted());
    EXPECT_EQ(m_deletions, 1);
}

TEST_F(ConfirmationAlertTest, CancelAndEscapeDoNothing) {
    QWidget window;
    window.show();
    show(&window);
    EXPECT_EQ(alert->windowModality(), Qt::WindowModal);
    QTest::mouseClick(button(QStringLiteral("Cancel")), Qt::LeftButton);
    EXPECT_TRUE(isDeleted());
    show(&window);
    QTest::keyClick(alert, Qt::Key_Escape);
    EXPECT_TRUE(isDeleted());
    show(&window);
    alert->close();
    EXPECT_TRUE(isDeleted());
    EXPECT_EQ(m_deletions, 0);
}

TEST_F(ConfirmationAlertTest, GoesWithItsParent) {
    auto window = std::make_unique<QWidget>();
    window->show();
    show(window.get());
    window.reset();
    EXPECT_TRUE(alert.isNull());
    EXPECT_EQ(m_deletions, 0);
}

TEST_F(ConfirmationAlertTest, ActionMayCloseTheParent) {
    auto window = std::make_unique<QWidget>();
    window->show();
    tidepool::showConfirmationAlert(window.get(), QStringLiteral("Close?"), {}, QStringLiteral("Close"),
                                    [&window] { window.reset(); });
    auto* const box = window->findChild<QMessageBox*>();
    QTest::mouseClick(box->buttons().constFirst(), Qt::LeftButton);
    EXPECT_EQ(window, nullptr);
}

TEST_F(ConfirmationAlertTest, ShowsTextsToTheLetter) {
    show(nullptr);
    EXPECT_EQ(alert->text(), QStringLiteral("Delete <b>all</b>?"));
    const auto labels = alert->findChildren<QLabel*>();
    for (const QLabel* label : labels)
        EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText)
            << label->text().toStdString();
    alert->close();
}
