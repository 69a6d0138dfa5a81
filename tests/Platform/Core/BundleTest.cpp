#include "Platform/Core/Bundle.h"
#include "Platform/Core/CodeLocation.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <dlfcn.h>

using platform::Bundle;

namespace {

const int marker = 0;

class BundleTest : public testing::Test {
protected:
    ~BundleTest() override { Bundle::setMainDirectory(m_mainDirectory); }

    QString make(const QString& relative) const {
        QDir(m_root.path()).mkpath(relative);
        return m_root.filePath(relative);
    }

    const QString m_mainDirectory = Bundle::main().directory();
    QTemporaryDir m_root;
};

} // namespace

TEST_F(BundleTest, ModuleIsTakenFromTheFirstPlaceThatHasIt) {
    Bundle::setMainDirectory(make(QStringLiteral("app")));
    const QString name = QStringLiteral("Kit_Kit");
    EXPECT_DEATH(Bundle::module(name, &marker), "^unable to find bundle named Kit_Kit\n$");

    const QString beside = make(QStringLiteral("app/Kit_Kit.bundle"));
    EXPECT_EQ(Bundle::module(name, &marker).directory(), beside);

    const QString inside = make(QStringLiteral("app/Resources/Kit_Kit.bundle"));
    Bundle::setMainDirectory(m_root.filePath(QStringLiteral("app")));
    EXPECT_EQ(Bundle::module(name, &marker).directory(), inside);
}

TEST_F(BundleTest, ModuleIsFoundBesideItsLoadedCodeFromAnyFolder) {
    Bundle::setMainDirectory(make(QStringLiteral("app")));
    const QString beside = make(QStringLiteral("plugin/Kit_Kit.bundle"));
    ASSERT_TRUE(
        QFile::copy(QStringLiteral(NOTELOFT_LOADED_CODE), m_root.filePath(QStringLiteral("plugin/code.so"))));
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_root.path());
    void* const code = dlopen("plugin/code.so", RTLD_NOW);
    ASSERT_NE(code, nullptr) << dlerror();
    QDir::setCurrent(QStringLiteral("/"));
    EXPECT_EQ(Bundle::module(QStringLiteral("Kit_Kit"), dlsym(code, "marker")).directory(),
              QFileInfo(beside).canonicalFilePath());
    const QString inside = make(QStringLiteral("app/Kit_Kit.bundle"));
    Bundle::setMainDirectory(m_root.filePath(QStringLiteral("app")));
    EXPECT_EQ(Bundle::module(QStringLiteral("Kit_Kit"), dlsym(code, "marker")).directory(), inside)
        << "the program's own comes first";
    QDir::setCurrent(before);
    dlclose(code);
}

TEST(CodeLocation, TellsTheProgramFromItsLibraries) {
    EXPECT_EQ(platform::codePath(&marker), platform::programPath());
    const auto library = platform::codePath(reinterpret_cast<const void*>(&qVersion));
    EXPECT_TRUE(library.contains(QStringLiteral("Qt6Core"))) << library.toStdString();
    EXPECT_EQ(Bundle::containing(reinterpret_cast<const void*>(&qVersion)).directory(),
              QFileInfo(library).absolutePath());
    const int local = 0;
    EXPECT_EQ(platform::codePath(&local), QString()) << "a stack address belongs to no code";
}
