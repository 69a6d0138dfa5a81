#pragma once

#include <memory>

namespace platform {

/// An OpenGL 3.3 core context without a window. It may be used by one thread at a time, inside a `Scope`.
class GpuContext {
public:
    /// Null where the machine cannot make one.
    static std::unique_ptr<GpuContext> make();

    virtual ~GpuContext() = default;

    /// True if a processor, not a graphics card, does the drawing.
    virtual bool isSoftware() const = 0;

    /// Whether a context stays current on the main thread once it was, so that the driver need not take it up
    /// again for each frame. False at first. For an application, before it makes a context: a plug-in's host
    /// needs its thread as it was, and no other thread can use the context any more. Main thread.
    static void setKeptCurrent(bool isKept);

    /// Makes the context current while it lives. None is current afterwards unless it is kept. Scopes do not
    /// nest.
    class Scope {
    public:
        explicit Scope(GpuContext& context) : m_context(context) { m_context.makeCurrent(); }

        ~Scope() {
            if (!isKeptCurrent())
                m_context.doneCurrent();
        }

        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        GpuContext& m_context;
    };

protected:
    GpuContext() = default;
    virtual void makeCurrent() = 0;
    virtual void doneCurrent() = 0;

private:
    static bool isKeptCurrent();
};

} // namespace platform
