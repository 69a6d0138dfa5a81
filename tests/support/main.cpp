#include "Platform/Core/Bundle.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Threads of the application would make a plain fork unsafe.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt warns on standard error, which death tests compare, where a machine has no run-time directory.
    const QTemporaryDir runtimeDirectory;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toUtf8());
    const QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
#ifdef NOTELOFT_MAIN_BUNDLE
    platform::Bundle::setMainDirectory(QStringLiteral(NOTELOFT_MAIN_BUNDLE));
#endif
    return RUN_ALL_TESTS();
}
