#include "Platform/Gpu/ScreenEncoding.h"

#include <QStringBuilder>

namespace platform {

namespace {

constexpr auto sameGamut = R"(
vec3 platformToSRGB(vec3 linear) { return linear; }
)";

// CSS Color 4, section 10.9: linear Display P3 to linear sRGB, both D65.
constexpr auto displayP3 = R"(
vec3 platformToSRGB(vec3 linear) {
    return mat3(1.2249402, -0.0420569, -0.0196376,
               -0.2249402, 1.0420569, -0.0786361,
                0.0, 0.0, 1.0982737) * linear;
}
)";

// IEC 61966-2-1 gives the encoding; its power is replaced by a polynomial of the root, a fifth of an 8-bit
// step off at most and exact at 1, which is much less work for a processor. Interleaved gradient noise (J.
// Jimenez, 2014) spreads the rounding of dark gradients over their neighbours. Blue comes first because that
// is how the picture's words lie in memory.
constexpr auto fragmentMain = R"(
void main() {
    platformDrawLinear();
    vec3 linear = clamp(platformToSRGB(color.rgb), 0.0, 1.0);
    vec3 root = sqrt(linear);
    vec3 power =
        ((-0.286377124 * root + 0.800982269) * root - 0.921064076) * linear + 1.443226353 * root - 0.036767421;
    vec3 encoded = mix(12.92 * linear, power, greaterThan(linear, vec3(0.0031308)));
    float noise = fract(52.9829189 * fract(dot(gl_FragCoord.xy, vec2(0.06711056, 0.00583715))));
    color = vec4(encoded + (noise - 0.5) / 255.0, 1.0).bgra;
}
)";

constexpr auto vertexMain = R"(
void main() {
    platformPlace();
    gl_Position.y = -gl_Position.y;
}
)";

/// The source with another name for its main function and `head` behind its first line; the compiler still
/// reports the lines of the source.
QByteArray wrapped(const QByteArray& source, const QByteArray& head, const QByteArray& name) {
    const auto body = source.indexOf('\n') + 1;
    return source.left(body) + head + "#define main " + name + "\n#line 2\n" + source.mid(body) +
           "\n#undef main\n";
}

} // namespace

QByteArray uprightVertexSource(const QByteArray& source) {
    return wrapped(source, {}, "platformPlace") + vertexMain;
}

QByteArray encodedFragmentSource(const QByteArray& source, ColorSpace space) {
    const char* gamut = space == ColorSpace::extendedLinearDisplayP3 ? displayP3 : sameGamut;
    return wrapped(source, "layout(origin_upper_left) in vec4 gl_FragCoord;\n", "platformDrawLinear") +
           gamut + fragmentMain;
}

} // namespace platform
