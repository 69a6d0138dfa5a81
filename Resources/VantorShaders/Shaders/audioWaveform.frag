#version 330 core
// A living waveform: six strands over a dark ground, each the product of a slow envelope and a faster carrier.
// Everything is written for a processor's vector units: parabolas instead of sines, one division a strand.

uniform vec2 viewSize;
uniform uint seed;
uniform float time;

layout(location = 0) out vec4 color;

// A smooth wave of period 1 between -1 and 1, and its slope: two parabolas, within 6 % of a sine.
vec2 wave(float phase) {
    float u = 2.0 * fract(phase) - 1.0;
    return vec2(4.0 * u * (abs(u) - 1.0), 8.0 * (2.0 * abs(u) - 1.0));
}

struct Strand {
    float frequency, speed, phase, height, width;
    vec3 tint;
};

void main() {
    float aspect = viewSize.x / viewSize.y;
    vec2 p = gl_FragCoord.xy / viewSize;
    float x = (p.x - 0.5) * aspect;
    float y = p.y - 0.5;
    float s = float(seed & 0xffffu) * (1.0 / 65536.0);

    // The ground: the window's own indigo at the upper and lower edge, so that the header has no seam, lit from the
    // middle.
    float centre = max(0.0, 1.0 - 4.0 * y * y);
    float lit = centre * centre * centre;
    vec3 light = vec3(0.00478, 0.00402, 0.01444) + vec3(0.0040, 0.0012, 0.0250) * lit;

    // One breath for the whole bundle, and a window that lets it run out towards the sides.
    float breath = 0.80 + 0.20 * wave(0.11 * time + s).x;
    float edge = 2.0 * p.x - 1.0;
    float window = 1.0 - edge * edge;
    window *= window;

    const Strand strands[6] = Strand[6](
        Strand(0.95, 0.090, 0.00, 0.270, 1.4, vec3(0.07, 0.42, 0.95)),
        Strand(1.30, -0.07, 0.37, 0.230, 1.2, vec3(0.10, 0.85, 0.90)),
        Strand(1.75, 0.120, 0.61, 0.190, 1.1, vec3(0.42, 0.16, 0.95)),
        Strand(2.30, -0.10, 0.13, 0.150, 1.0, vec3(0.80, 0.18, 0.75)),
        Strand(3.10, 0.160, 0.83, 0.100, 0.9, vec3(1.00, 0.45, 0.20)),
        Strand(0.60, 0.050, 0.52, 0.320, 1.8, vec3(0.20, 0.14, 0.62)));

    // Strands are dimmer at the sides, where they run together, and behind the middle, where a title stands.
    float middle = max(0.0, 1.0 - 4.0 * edge * edge) * max(0.0, 1.0 - 64.0 * y * y);
    float strength = (0.25 + 0.75 * window) * (1.0 - 0.45 * middle) * centre;

    for (int i = 0; i < 6; ++i) {
        Strand strand = strands[i];
        vec2 carrier = wave(strand.frequency * x + strand.speed * time + strand.phase + s * float(i + 1));
        float swell = 0.65 + 0.35 * wave(0.45 * x - 0.05 * time + strand.phase * 3.0 + s).x;
        float amplitude = strand.height * breath * window * swell;
        float slope = amplitude * carrier.y * strand.frequency;
        float d = y - amplitude * carrier.x;
        // The core follows the distance to the line, not the height above it, so that steep parts stay as thin as
        // flat ones. The glow need not: it is wider than the strands are steep.
        float d2 = d * d;
        float w = strand.width * strand.width * 0.0000155;
        float core = w * (1.0 + slope * slope) / (d2 + w * (1.0 + slope * slope));
        float glow = 0.0050 / (d2 + 0.0090);
        light += strand.tint * (core * core * 0.85 + glow * glow * 0.34) * strength;
    }
    color = vec4(light, 1.0);
}
