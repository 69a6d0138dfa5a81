// plain-window VERTEX FRAGMENT: the least that shows the waveform. A window without a toolkit and, in its
// header, a child window with an OpenGL loop of 60 frames a second. The shaders write linear light; OpenGL
// encodes it as it stores a pixel (GL_FRAMEBUFFER_SRGB), which costs no pass and no copy.
#define GL_GLEXT_PROTOTYPES
#include <GL/glx.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

namespace {

constexpr int width = 400;
constexpr int height = 572;
constexpr int headerHeight = 300;
constexpr auto frame = std::chrono::nanoseconds(1'000'000'000 / 60);

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "plain-window: %s\n", what);
    std::exit(1);
}

GLuint shader(GLenum stage, const char* file) {
    std::ifstream stream(file);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    const char* source = text.c_str();
    const GLuint name = glCreateShader(stage);
    glShaderSource(name, 1, &source, nullptr);
    glCompileShader(name);
    return name;
}

GLuint program(const char* vertex, const char* fragment) {
    const GLuint name = glCreateProgram();
    glAttachShader(name, shader(GL_VERTEX_SHADER, vertex));
    glAttachShader(name, shader(GL_FRAGMENT_SHADER, fragment));
    glLinkProgram(name);
    GLint linked = 0;
    glGetProgramiv(name, GL_LINK_STATUS, &linked);
    if (linked == 0)
        fail("the shaders cannot be linked");
    return name;
}

GLXFBConfig chooseConfiguration(Display* display) {
    const std::array attributes{GLX_DOUBLEBUFFER,
                                True,
                                GLX_RED_SIZE,
                                8,
                                GLX_GREEN_SIZE,
                                8,
                                GLX_BLUE_SIZE,
                                8,
                                GLX_X_VISUAL_TYPE,
                                GLX_TRUE_COLOR,
                                GLX_FRAMEBUFFER_SRGB_CAPABLE_ARB,
                                True,
                                static_cast<int>(None)};
    int count = 0;
    GLXFBConfig* const found = glXChooseFBConfig(display, DefaultScreen(display), attributes.data(), &count);
    if (found == nullptr || count == 0)
        fail("no configuration that encodes sRGB");
    return found[0];
}

GLXContext makeContext(Display* display, GLXFBConfig configuration) {
    const std::array attributes{GLX_CONTEXT_MAJOR_VERSION_ARB, 3,
                                GLX_CONTEXT_MINOR_VERSION_ARB, 3,
                                GLX_CONTEXT_PROFILE_MASK_ARB,  GLX_CONTEXT_CORE_PROFILE_BIT_ARB,
                                static_cast<int>(None)};
    const auto create = reinterpret_cast<PFNGLXCREATECONTEXTATTRIBSARBPROC>(
        glXGetProcAddress(reinterpret_cast<const GLubyte*>("glXCreateContextAttribsARB")));
    return create != nullptr ? create(display, configuration, nullptr, True, attributes.data()) : nullptr;
}

/// Without a frame, as the application's window is.
Window makeWindow(Display* display) {
    const Window window =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, width, height, 0, 0, 0x0f0e1c);
    const Atom hints = XInternAtom(display, "_MOTIF_WM_HINTS", False);
    const std::array<long, 5> noDecorations{2, 0, 0, 0, 0};
    XChangeProperty(display, window, hints, hints, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(noDecorations.data()), noDecorations.size());
    XMapWindow(display, window);
    return window;
}

Window makeHeader(Display* display, Window parent, GLXFBConfig configuration) {
    XVisualInfo* const visual = glXGetVisualFromFBConfig(display, configuration);
    XSetWindowAttributes attributes{};
    attributes.colormap = XCreateColormap(display, parent, visual->visual, AllocNone);
    const Window header = XCreateWindow(display, parent, 0, 0, width, headerHeight, 0, visual->depth,
                                        InputOutput, visual->visual, CWColormap | CWBorderPixel, &attributes);
    XMapWindow(display, header);
    return header;
}

void makeQuad() {
    constexpr std::array<float, 8> corners{-1, -1, -1, 1, 1, -1, 1, 1};
    GLuint array = 0;
    GLuint buffer = 0;
    glGenVertexArrays(1, &array);
    glBindVertexArray(array);
    glGenBuffers(1, &buffer);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glBufferData(GL_ARRAY_BUFFER, sizeof corners, corners.data(), GL_STATIC_DRAW);
    glEnableVertexAttribArray(0);
    glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        fail("expects the files of a vertex and a fragment shader");
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr)
        fail("no display");
    const GLXFBConfig configuration = chooseConfiguration(display);
    const Window header = makeHeader(display, makeWindow(display), configuration);
    const GLXContext context = makeContext(display, configuration);
    if (context == nullptr || glXMakeCurrent(display, header, context) == False)
        fail("no OpenGL 3.3");
    const GLuint pipeline = program(argv[1], argv[2]);
    makeQuad();
    glUseProgram(pipeline);
    glUniform2f(glGetUniformLocation(pipeline, "viewSize"), width, headerHeight);
    glUniform1ui(glGetUniformLocation(pipeline, "seed"), 12345);
    const GLint time = glGetUniformLocation(pipeline, "time");
    glEnable(GL_FRAMEBUFFER_SRGB);

    const auto start = std::chrono::steady_clock::now();
    for (auto next = start;; next += frame) {
        glUniform1f(time, std::chrono::duration<float>(std::chrono::steady_clock::now() - start).count());
        glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
        glXSwapBuffers(display, header);
        std::this_thread::sleep_until(next + frame);
    }
}
