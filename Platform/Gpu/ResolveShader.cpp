#include "Platform/Gpu/ResolveShader.h"

namespace platform {

namespace {

constexpr auto vertexSource = R"(#version 330 core
void main() {
    gl_Position = vec4(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0, 0.0, 1.0);
}
)";

constexpr auto fragmentHead = R"(#version 330 core
uniform sampler2D linearFrame;
uniform int height;
layout(location = 0) out vec4 result;
)";

constexpr auto sameGamut = R"(
vec3 toSRGB(vec3 linear) { return linear; }
)";

// CSS Color 4, section 10.9: linear Display P3 to linear sRGB, both D65.
constexpr auto displayP3 = R"(
vec3 toSRGB(vec3 linear) {
    return mat3(1.2249402, -0.0420569, -0.0196376,
               -0.2249402, 1.0420569, -0.0786361,
                0.0, 0.0, 1.0982737) * linear;
}
)";

// IEC 61966-2-1 gives the encoding; its power is replaced by a sum of roots, a quarter of an 8-bit step off
// at most and half as much work for a processor. Interleaved gradient noise (J. Jimenez, 2014) spreads the
// rounding of dark gradients over their neighbours. OpenGL counts rows from the bottom, pictures from the
// top; blue comes first because that is how the picture's words lie in memory.
constexpr auto fragmentBody = R"(
void main() {
    ivec2 pixel = ivec2(gl_FragCoord.xy);
    vec3 linear = clamp(toSRGB(texelFetch(linearFrame, ivec2(pixel.x, height - 1 - pixel.y), 0).rgb), 0.0, 1.0);
    vec3 root = sqrt(linear);
    vec3 root4 = sqrt(root);
    vec3 root8 = sqrt(root4);
    vec3 power = 0.662002687 * root + 0.684122060 * root4 - 0.323583601 * root8 - 0.0225411470 * linear;
    vec3 encoded = mix(12.92 * linear, power, vec3(greaterThan(linear, vec3(0.0031308))));
    float noise = fract(52.9829189 * fract(dot(gl_FragCoord.xy, vec2(0.06711056, 0.00583715))));
    result = vec4(encoded + (noise - 0.5) / 255.0, 1.0).bgra;
}
)";

} // namespace

RenderPipelineDescriptor resolvePipelineDescriptor(ColorSpace space) {
    const char* gamut = space == ColorSpace::extendedLinearDisplayP3 ? displayP3 : sameGamut;
    RenderPipelineDescriptor descriptor;
    descriptor.label = QStringLiteral("Resolve Pipeline");
    descriptor.vertexFunction = GpuFunction{QStringLiteral("resolveVertex"), vertexSource, {}};
    descriptor.fragmentFunction = GpuFunction{
        QStringLiteral("resolveFragment"), QByteArray(fragmentHead) + gamut + fragmentBody, {"height"}};
    return descriptor;
}

} // namespace platform
