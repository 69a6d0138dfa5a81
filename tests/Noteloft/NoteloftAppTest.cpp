#include "Noteloft/NoteloftApp.h"

#include "Noteloft/ContentView.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"
#include "tests/support/Find.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
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

    QAction* action(const QString& text) { return withText(m_app.window().actions(), text); }

    NoteloftApp m_app{LaunchOptions{}};
};

} // namespace

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
