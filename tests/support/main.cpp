#include "Platform/Core/Bundle.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

// Qt keeps one state of the pointer: a button that a test leaves pressed would be pressed in the next.
class PointerRelease : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            return;
        QWindow window;
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
            if (QGuiApplication::mouseButtons().testFlag(button))
                QTest::mouseRelease(&window, button);
    }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Threads of the application would make a plain fork unsafe.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // A machine without a browser shows the address of a link instead.
    qputenv("BROWSER", "true");
    // Tests run side by side: what one process stores, no other may find.
    const QTemporaryDir home;
    for (const char* const variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toUtf8());
    const QApplication application(argc, argv);
#ifdef NOTELOFT_MAIN_BUNDLE
    platform::Bundle::setMainDirectory(QStringLiteral(NOTELOFT_MAIN_BUNDLE));
#endif
    testing::UnitTest::GetInstance()->listeners().Append(new PointerRelease);
    return RUN_ALL_TESTS();
}
