#include "Platform/Gpu/RenderPipeline.h"

#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/OpenGL.h"

#include <array>
#include <utility>

namespace platform {

namespace {

/// A shader object that lives while its program is linked.
class Shader {
public:
    Shader(unsigned stage, const GpuFunction& function, const QByteArray& source) {
        m_name = glCreateShader(stage);
        const char* text = source.constData();
        glShaderSource(m_name, 1, &text, nullptr);
        glCompileShader(m_name);
        int compiled = 0;
        glGetShaderiv(m_name, GL_COMPILE_STATUS, &compiled);
        if (compiled != 0)
            return;
        std::array<char, 2048> log{};
        glGetShaderInfoLog(m_name, log.size(), nullptr, log.data());
        glDeleteShader(m_name);
        throw GpuError(function.name.toStdString() + ": " + log.data());
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

GpuProgram::GpuProgram(const RenderPipelineDescriptor& descriptor, ColorSpace space) {
    if (!descriptor.vertexFunction || !descriptor.fragmentFunction)
        throw GpuError(descriptor.label.toStdString() + ": a function is not in the library");
    const auto& vertexFunction = *descriptor.vertexFunction;
    const auto& fragmentFunction = *descriptor.fragmentFunction;
    const Shader vertex(GL_VERTEX_SHADER, vertexFunction, uprightVertexSource(vertexFunction.source));
    const Shader fragment(GL_FRAGMENT_SHADER, fragmentFunction,
                          encodedFragmentSource(fragmentFunction.source, space));
    link(vertex.name(), fragment.name(), descriptor.label);
    for (const auto& name : fragmentFunction.bytes)
        m_locations.push_back(glGetUniformLocation(m_name, name.c_str()));
}

GpuProgram::~GpuProgram() {
    glDeleteProgram(m_name);
}

void GpuProgram::link(unsigned vertex, unsigned fragment, const QString& label) {
    m_name = glCreateProgram();
    glAttachShader(m_name, vertex);
    glAttachShader(m_name, fragment);
    glLinkProgram(m_name);
    int linked = 0;
    glGetProgramiv(m_name, GL_LINK_STATUS, &linked);
    if (linked != 0)
        return;
    std::array<char, 2048> log{};
    glGetProgramInfoLog(m_name, log.size(), nullptr, log.data());
    glDeleteProgram(m_name);
    throw GpuError(label.toStdString() + ": " + log.data());
}

RenderPipelineState::RenderPipelineState(GpuContext& context, RenderPipelineDescriptor descriptor)
    : m_context(context), m_descriptor(std::move(descriptor)) {
    const GpuContext::Scope scope(m_context);
    program(ColorSpace::extendedLinearSRGB);
}

RenderPipelineState::~RenderPipelineState() {
    const GpuContext::Scope scope(m_context);
    m_programs.clear();
}

const GpuProgram& RenderPipelineState::program(ColorSpace space) const {
    const auto known = m_programs.find(space);
    return known != m_programs.end() ? known->second
                                     : m_programs.try_emplace(space, m_descriptor, space).first->second;
}

} // namespace platform
