#include "Platform/Gpu/RenderPipeline.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Gpu/GpuLibrary.h"
#include "tests/support/GpuPicture.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using platform::Bundle;
using platform::GpuDevice;
using platform::GpuError;
using platform::RenderPipelineDescriptor;
using testing::HasSubstr;

namespace {

class RenderPipelineTest : public testing::Test {
protected:
    void SetUp() override {
        NOTELOFT_REQUIRE_GPU();
        QDir(m_root.path()).mkdir(QStringLiteral("Shaders"));
    }

    void write(const char* name, const QByteArray& content) const {
        QFile file(m_root.filePath(u"Shaders/" + QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void writeLibrary() const {
        write("Shaders.json", R"({"quad": {"file": "quad.vert"}, "white": {"file": "white.frag"},
            "broken": {"file": "broken.frag"}, "unfit": {"file": "unfit.frag"}, "lost": {"file": "lost.frag"}})");
        write("quad.vert", "#version 330 core\nout vec2 place;\n"
                           "void main() { gl_Position = vec4(0.0); place = vec2(0.0); }\n");
        write("white.frag", "#version 330 core\nout vec4 color;\nvoid main() { color = vec4(1.0); }\n");
        write("broken.frag", "#version 330 core\nout vec4 color;\nvoid main() { color = nothing; }\n");
        write("unfit.frag", "#version 330 core\nin vec3 place;\nout vec4 color;\n"
                            "void main() { color = vec4(place, 1.0); }\n");
    }

    RenderPipelineDescriptor descriptor(const char* fragment) const {
        const auto library = m_device->makeDefaultLibrary(Bundle(m_root.path()));
        return {.label = QStringLiteral("Test Pipeline"),
                .vertexFunction = library->function(QStringLiteral("quad")),
                .fragmentFunction = library->function(QString::fromLatin1(fragment))};
    }

    /// The message of the error, or "none".
    std::string error(const char* fragment) const {
        try {
            m_device->makeRenderPipelineState(descriptor(fragment));
            return "none";
        } catch (const GpuError& error) {
            return error.what();
        }
    }

    std::shared_ptr<GpuDevice> m_device = GpuDevice::systemDefault();
    QTemporaryDir m_root;
};

} // namespace

TEST_F(RenderPipelineTest, ErrorsSayWhatIsWrong) {
    writeLibrary();
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_THAT(error("broken"), HasSubstr("broken: "));
        EXPECT_THAT(error("broken"), HasSubstr("nothing")) << "the compiler's words";
        EXPECT_THAT(error("unfit"), HasSubstr("Test Pipeline: "));
        EXPECT_EQ(error("absent"), "Test Pipeline: a function is not in the library");
        EXPECT_EQ(error("lost"), "Test Pipeline: a function is not in the library") << "its file is missing";
    }
    EXPECT_EQ(error("white"), "none") << "an error leaves the device usable";
    GpuPicture picture(GpuPicture::pipeline("color = vec4(1.0);"), {4, 4});
    EXPECT_EQ(picture.draw().pixel(2, 2), qRgb(255, 255, 255));
}

TEST_F(RenderPipelineTest, LibraryMustBeReadable) {
    EXPECT_THROW(m_device->makeDefaultLibrary(Bundle(m_root.path())), GpuError);
    write("Shaders.json", "[");
    EXPECT_THROW(m_device->makeDefaultLibrary(Bundle(m_root.path())), GpuError);
    write("Shaders.json", "{}");
    EXPECT_EQ(m_device->makeDefaultLibrary(Bundle(m_root.path()))->function(QStringLiteral("quad")),
              std::nullopt);
}
