#include "Platform/Gpu/GpuContext.h"
#include "Platform/Gpu/OpenGL.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <array>
#include <string>
#include <string_view>

namespace platform {

namespace {

class EglContext final : public GpuContext {
public:
    EglContext(EGLDisplay display, EGLContext context) : m_display(display), m_context(context) {
        const Scope scope(*this);
        const auto* renderer = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
        const std::string_view name = renderer != nullptr ? renderer : "";
        m_software = name.starts_with("llvmpipe") || name.starts_with("softpipe");
    }

    ~EglContext() override { eglDestroyContext(m_display, m_context); }

    bool isSoftware() const override { return m_software; }

protected:
    void makeCurrent() override {
        if (eglGetCurrentContext() != m_context)
            eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, m_context);
    }

    void doneCurrent() override { eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT); }

private:
    EGLDisplay m_display;
    EGLContext m_context;
    bool m_software = false;
};

EGLDisplay initialized(EGLDisplay display) {
    return display != EGL_NO_DISPLAY && eglInitialize(display, nullptr, nullptr) == EGL_TRUE ? display
                                                                                             : EGL_NO_DISPLAY;
}

/// True if the machine's EGL has an extension that needs no display.
bool hasClientExtension(std::string_view extension) {
    const char* const all = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    return all != nullptr &&
           (' ' + std::string(all) + ' ').find(' ' + std::string(extension) + ' ') != std::string::npos;
}

template <typename Function>
Function extensionFunction(const char* name) {
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

EGLDisplay platformDisplay(EGLenum platform, void* native) {
    static const auto display =
        extensionFunction<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    return display != nullptr ? initialized(display(platform, native, nullptr)) : EGL_NO_DISPLAY;
}

EGLDisplay surfacelessDisplay() {
    return hasClientExtension("EGL_MESA_platform_surfaceless")
               ? platformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY)
               : EGL_NO_DISPLAY;
}

EGLDisplay deviceDisplay() {
    const auto queryDevices = extensionFunction<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    if (queryDevices == nullptr || !hasClientExtension("EGL_EXT_platform_device") ||
        !hasClientExtension("EGL_EXT_device_enumeration"))
        return EGL_NO_DISPLAY;
    std::array<EGLDeviceEXT, 8> devices{};
    EGLint count = 0;
    queryDevices(static_cast<EGLint>(devices.size()), devices.data(), &count);
    for (EGLint i = 0; i < count; ++i) {
        auto* const display = platformDisplay(EGL_PLATFORM_DEVICE_EXT, devices[static_cast<std::size_t>(i)]);
        if (display != EGL_NO_DISPLAY)
            return display;
    }
    return EGL_NO_DISPLAY;
}

EGLContext contextOf(EGLDisplay display) {
    // Asked for no surface type at all: the default one is windows, which these displays do not have.
    const std::array<EGLint, 5> attributes{EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE, 0,
                                           EGL_NONE};
    const std::array<EGLint, 7> version{EGL_CONTEXT_MAJOR_VERSION,
                                        3,
                                        EGL_CONTEXT_MINOR_VERSION,
                                        3,
                                        EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                        EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                        EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (eglBindAPI(EGL_OPENGL_API) != EGL_TRUE ||
        eglChooseConfig(display, attributes.data(), &config, 1, &count) != EGL_TRUE || count == 0)
        return EGL_NO_CONTEXT;
    return eglCreateContext(display, config, EGL_NO_CONTEXT, version.data());
}

} // namespace

std::unique_ptr<GpuContext> GpuContext::make() {
    for (auto* const makeDisplay : {surfacelessDisplay, deviceDisplay}) {
        auto* const display = makeDisplay();
        if (display == EGL_NO_DISPLAY)
            continue;
        if (auto* const context = contextOf(display); context != EGL_NO_CONTEXT)
            return std::make_unique<EglContext>(display, context);
    }
    return nullptr;
}

} // namespace platform
