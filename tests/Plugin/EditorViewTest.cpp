// The editor's view without a host: what keyboard and screen reader find on each page.
#include "Plugin/Editor/EditorView.h"
#include "Chorale/ChoiceLabel.h"
#include "Chorale/MakerLinks.h"
#include "Platform/Controls/Menu.h"
#include "Plugin/Editor/EditorParameters.h"
#include "Plugin/Editor/EmbeddedAccessibility.h"
#include "Plugin/Editor/MenuButton.h"
#include "Plugin/Editor/QtSession.h"
#include "Plugin/Editor/ScaleView.h"
#include "tests/support/Browser.h"
#include "tests/support/Find.h"

#include <QAccessible>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace noteloft::plugin;
using testing::ElementsAre;

namespace {

class EditorViewTest : public testing::Test {
protected:
    void set(Ports::Index port, float value) {
        m_parameters.receive(port, value);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// The accessible names in the order of the Tab key, from the first to where it begins again.
    std::vector<std::string> reachedByTab() {
        std::vector<std::string> names;
        m_view.setFocus();
        QWidget* first = nullptr;
        for (;;) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget* const focus = QApplication::focusWidget();
            if (focus == first)
                return names;
            if (first == nullptr)
                first = focus;
            names.push_back(
                QAccessible::queryAccessibleInterface(focus)->text(QAccessible::Name).toStdString());
        }
    }

    HostConnection m_host{[](auto, auto, auto, auto, auto) {}, nullptr, nullptr};
    EditorParameters m_parameters{m_host};
    EditorView m_view{m_parameters};
};

} // namespace

TEST_F(EditorViewTest, IsFoundInsideOfAnotherProgramsWindow) {
    EmbeddedAccessibility::install();
    QWidget own; // stands for the host's window, which is none of the application's
    m_view.setParent(&own);
    const auto* const application = QAccessible::queryAccessibleInterface(qApp);
    const int before = application->childCount();
    {
        const EmbeddedAccessibility embedded(m_view);
        ASSERT_EQ(application->childCount(), before + 1);
        const auto* const found = application->child(before);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->object(), &m_view);
        EXPECT_EQ(application->indexOfChild(found), before);
    }
    EXPECT_EQ(application->childCount(), before);
    m_view.setParent(nullptr);
}

TEST_F(EditorViewTest, TabGoesThroughTheControlsOfThePage) {
    m_view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));
    EXPECT_TRUE(m_view.hasFocus()) << "no ring before somebody asks for one";
    EXPECT_THAT(reachedByTab(),
                ElementsAre("Website of the maker", "Scale tab", "Chord tab", "Feel tab", "Menu", "Transpose",
                            "Transpose value", "Root", "Root choice", "Scale", "Scale choice", "Hold"))
        << "each name once";
    const auto* const window = QAccessible::queryAccessibleInterface(&m_view);
    EXPECT_EQ(window->role(), QAccessible::Window);
    EXPECT_EQ(window->text(QAccessible::Name), QStringLiteral("Noteloft"));
    EXPECT_NE(QAccessible::queryAccessibleInterface(m_view.findChild<ScaleView*>())->role(),
              QAccessible::Window)
        << "it was made before it was put into one";
    set(Ports::page, 2);
    EXPECT_THAT(reachedByTab(),
                ElementsAre("Website of the maker", "Scale tab", "Chord tab", "Feel tab", "Menu", "Velocity",
                            "Velocity value", "Dynamics", "Dynamics value", "Timing", "Timing value",
                            "Chance", "Chance value", "Hold"));
}

TEST_F(EditorViewTest, AnUpdateThatIsFoundLaterShowsWithItsLink) {
    const auto update = [&] {
        return withText(m_view.findChildren<QAbstractButton*>(), QStringLiteral("9.1 AVAILABLE"));
    };
    m_view.show();
    EXPECT_EQ(update(), nullptr);
    platform::KnownUpdate::store(QStringLiteral("9.1"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return update() != nullptr; }));
    const Browser browser;
    update()->click();
    EXPECT_THAT(browser.opened, ElementsAre(chorale::MakerLinks::website()));
    platform::KnownUpdate::store(QStringLiteral("0.9"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return update() == nullptr; })) << "it is older than this one";
}

TEST_F(EditorViewTest, TheMenuLeadsToTheMakersPagesAndToTheUpdates) {
    m_view.show();
    const Browser browser;
    m_view.findChild<MenuButton*>()->click();
    auto* const menu = qobject_cast<platform::Menu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    // What the desktop starts for other addresses: it writes down what it is given.
    const QTemporaryDir folder;
    const auto script = [&](const char* name, const QByteArray& line) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + line + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ':' + path);
    script("xdg-mime", "echo \"$3.desktop\"");
    QFile opened(folder.filePath(QStringLiteral("opened")));
    script("xdg-open", "echo \"$1\" > " + opened.fileName().toUtf8());
    for (platform::MenuItem* const item : menu->items())
        item->trigger();
    EXPECT_THAT(browser.opened,
                ElementsAre(chorale::MakerLinks::website(), chorale::MakerLinks::socialProfile(),
                            chorale::MakerLinks::contactPage()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened.exists() && opened.size() > 10; }));
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly));
    EXPECT_EQ(opened.readAll(), "noteloft://openAndUpdate\n") << "the application takes no other letters";
    qputenv("PATH", path);
    menu->close();
}

TEST(QtSession, NoEditorInAHostOfAnotherWindowSystem) {
    EXPECT_FALSE(QtSession::begin()) << "this application has no X11 windows";
}

TEST_F(EditorViewTest, AValueBetweenTwoNamesIsShownAsTheOneThatIsHeard) {
    set(Ports::scale, 1.6F);
    const auto labels = m_view.findChildren<chorale::ChoiceLabel*>();
    const auto label = std::find_if(labels.begin(), labels.end(), [this](const auto* candidate) {
        return candidate->parameter() == m_parameters.parameter(Ports::scale);
    });
    ASSERT_NE(label, labels.end());
    EXPECT_EQ((*label)->valueText(), QStringLiteral("Minor"));
    EXPECT_EQ(m_view.findChild<ScaleView*>()->accessibleName(),
              QStringLiteral("Notes of the scale: C, D, D#, F, G, G#, A#"));
}
