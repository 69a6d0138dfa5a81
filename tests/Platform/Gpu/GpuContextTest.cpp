#include "Platform/Gpu/GpuContext.h"

#include <EGL/egl.h>
#include <gtest/gtest.h>

#include <thread>

using platform::GpuContext;

// A host's own context must never be replaced behind its back, and an application's need not be taken up
// anew.
TEST(GpuContextTest, StaysCurrentOnlyIfItIsKept) {
    const auto context = GpuContext::make();
    if (!context)
        GTEST_SKIP() << "no graphics device";
    const auto use = [&] {
        const GpuContext::Scope scope(*context);
        return eglGetCurrentContext();
    };
    EXPECT_NE(use(), EGL_NO_CONTEXT);
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
    GpuContext::setKeptCurrent(true);
    auto* const kept = use();
    EXPECT_EQ(eglGetCurrentContext(), kept);
    EXPECT_EQ(use(), kept);
    std::thread([&] {
        const auto other = GpuContext::make();
        { const GpuContext::Scope scope(*other); }
        EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT) << "another thread's";
    }).join();
    GpuContext::setKeptCurrent(false);
    EXPECT_EQ(use(), kept);
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
}
