#include "Noteloft/NoteloftApp.h"

#include "Noteloft/ContentView.h"
#include "Platform/Core/SingleInstance.h"
#include "Platform/Graphics/Appearance.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QTest>

#include <gtest/gtest.h>

using noteloft::LaunchOptions;
using noteloft::NoteloftApp;

namespace {

class NoteloftAppTest : public testing::Test {
protected:
    NoteloftAppTest() { QApplication::setQuitOnLastWindowClosed(false); }

    static QList<QDialog*> dialogs() {
        QList<QDialog*> dialogs;
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* widget : widgets)
            if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isVisible())
                dialogs << dialog;
        return dialogs;
    }

    QAction* action(const QString& text) {
        const auto actions = m_app.window().actions();
        for (QAction* each : actions)
            if (each->text() == text)
                return each;
        return nullptr;
    }

    NoteloftApp m_app{LaunchOptions{}};
};

} // namespace

TEST_F(NoteloftAppTest, MenuBeginsWithAboutAndUpdates) {
    const auto actions = m_app.window().actions();
    ASSERT_GE(actions.size(), 3);
    EXPECT_EQ(actions[0]->text(), QStringLiteral("About"));
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->text(), QStringLiteral("Check for Updates\u2026"));
}

TEST_F(NoteloftAppTest, LaunchShowsTheOneWindow) {
    platform::setAppearance(platform::Appearance::light);
    EXPECT_FALSE(m_app.window().isVisible());
    m_app.finishLaunching();
    EXPECT_EQ(platform::currentAppearance(), platform::Appearance::dark);
    EXPECT_TRUE(m_app.window().isVisible());
    EXPECT_EQ(m_app.window().windowTitle(), QStringLiteral("Noteloft"));
    EXPECT_EQ(m_app.window().objectName(), QStringLiteral("main"));
    EXPECT_EQ(m_app.window().size(), QSize(400, 572));
    EXPECT_EQ(m_app.contentView().geometry(), QRect(0, 0, 400, 572));
    m_app.window().close();
    m_app.reopen({.arguments = {QStringLiteral("noteloft://other")}});
    EXPECT_TRUE(m_app.window().isVisible());
    EXPECT_TRUE(dialogs().isEmpty());
}

TEST_F(NoteloftAppTest, AboutPanelIsShownOnce) {
    m_app.finishLaunching();
    action(QStringLiteral("About"))->trigger();
    action(QStringLiteral("About"))->trigger();
    ASSERT_EQ(dialogs().size(), 1);
    const auto labels = dialogs().constFirst()->findChildren<QLabel*>();
    QStringList texts;
    for (const QLabel* label : labels)
        texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("Noteloft")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Version 1.0.0 (1)"))) << texts.join(u'\n').toStdString();
    QTest::keyClick(dialogs().constFirst(), Qt::Key_Escape);
    EXPECT_TRUE(dialogs().isEmpty());
}

TEST_F(NoteloftAppTest, UpdatesAreCheckedFromTheMenuAndByAddress) {
    m_app.finishLaunching();
    action(QStringLiteral("Check for Updates…"))->trigger();
    ASSERT_EQ(dialogs().size(), 1);
    EXPECT_NE(qobject_cast<QMessageBox*>(dialogs().constFirst()), nullptr);
    m_app.reopen({.arguments = {QStringLiteral("noteloft://openAndUpdate")}});
    EXPECT_EQ(dialogs().size(), 1) << "the check that runs is shown again";
    dialogs().constFirst()->close();
    EXPECT_TRUE(dialogs().isEmpty());
    m_app.reopen({.arguments = {QStringLiteral("noteloft://openAndUpdate")}});
    EXPECT_EQ(dialogs().size(), 1);
    dialogs().constFirst()->close();
}
