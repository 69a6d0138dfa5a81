#include "Platform/Windows/ViewController.h"

#include <QApplication>
#include <QHideEvent>
#include <QShowEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace {

class Recorder : public platform::ViewController {
public:
    using ViewController::ViewController;

    void viewWillAppear() override {
        calls += 'w';
        EXPECT_NE(view(), nullptr);
    }

    void viewDidAppear() override { calls += 'a'; }

    void viewDidDisappear() override { calls += 'd'; }

    std::string calls;
};

} // namespace

TEST(ViewController, LearnsWhenItsViewComesAndGoes) {
    QWidget window;
    QWidget view(&window);
    Recorder controller(&view);
    EXPECT_EQ(controller.calls, "");
    window.show();
    EXPECT_EQ(controller.calls, "wa") << "a view appears with its window";
    view.hide();
    EXPECT_EQ(controller.calls, "wad");
    window.hide();
    window.show();
    EXPECT_EQ(controller.calls, "wad") << "a view that is hidden itself stays away";
    view.show();
    window.hide();
    EXPECT_EQ(controller.calls, "wadwad");
}

TEST(ViewController, IsNotTouchedByMinimising) {
    QWidget view;
    Recorder controller(&view);
    view.show();
    // The window system's events, as they come for a window that is minimised and restored.
    const auto deliver = [&view](QEvent&& event) {
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&view, &event);
    };
    deliver(QHideEvent());
    deliver(QShowEvent());
    EXPECT_EQ(controller.calls, "wa");
}
