#include "Platform/Gpu/RenderPipeline.h"

#include "Platform/Gpu/GpuDevice.h"

#include <epoxy/gl.h>

#include <array>

namespace platform {

namespace {

/// A shader object that lives while its program is linked.
class Shader {
public:
    Shader(unsigned stage, const std::optional<GpuFunction>& function, const QString& label) {
        if (!function)
            throw GpuError(label.toStdString() + ": a function is not in the library");
        m_name = glCreateShader(stage);
        const char* source = function->source.constData();
        glShaderSource(m_name, 1, &source, nullptr);
        glCompileShader(m_name);
        int compiled = 0;
        glGetShaderiv(m_name, GL_COMPILE_STATUS, &compiled);
        if (compiled != 0)
            return;
        std::array<char, 2048> log{};
        glGetShaderInfoLog(m_name, log.size(), nullptr, log.data());
        glDeleteShader(m_name);
        throw GpuError(function->name.toStdString() + ": " + log.data());
    }

    ~Shader() { glDeleteShader(m_name); }

    Shader(const Shader&) = delete;
    Shader& operator=(const Shader&) = delete;

    unsigned name() const { return m_name; }

private:
    unsigned m_name = 0;
};

} // namespace

std::string RenderPipelineDescriptor::key() const {
    const auto part = [](const std::optional<GpuFunction>& function) {
        return function ? function->source.toStdString() : std::string();
    };
    return part(vertexFunction) + '\0' + part(fragmentFunction);
}

RenderPipelineState::RenderPipelineState(GpuContext& context, const RenderPipelineDescriptor& descriptor)
    : m_context(context) {
    const GpuContext::Scope scope(m_context);
    const Shader vertex(GL_VERTEX_SHADER, descriptor.vertexFunction, descriptor.label);
    const Shader fragment(GL_FRAGMENT_SHADER, descriptor.fragmentFunction, descriptor.label);
    link(vertex.name(), fragment.name(), descriptor.label);
    for (const auto& name : descriptor.fragmentFunction->bytes)
        m_locations.push_back(glGetUniformLocation(m_program, name.c_str()));
}

void RenderPipelineState::link(unsigned vertex, unsigned fragment, const QString& label) {
    m_program = glCreateProgram();
    glAttachShader(m_program, vertex);
    glAttachShader(m_program, fragment);
    glLinkProgram(m_program);
    int linked = 0;
    glGetProgramiv(m_program, GL_LINK_STATUS, &linked);
    if (linked != 0)
        return;
    std::array<char, 2048> log{};
    glGetProgramInfoLog(m_program, log.size(), nullptr, log.data());
    glDeleteProgram(m_program);
    throw GpuError(label.toStdString() + ": " + log.data());
}

RenderPipelineState::~RenderPipelineState() {
    const GpuContext::Scope scope(m_context);
    glDeleteProgram(m_program);
}

} // namespace platform
