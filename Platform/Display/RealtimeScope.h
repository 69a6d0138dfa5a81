#pragma once

namespace platform {

/// While one exists, its thread renders audio: nothing may allocate, lock, block or make a system call there.
/// Scopes nest.
class RealtimeScope {
public:
    RealtimeScope();
    ~RealtimeScope();
    RealtimeScope(const RealtimeScope&) = delete;
    RealtimeScope& operator=(const RealtimeScope&) = delete;

    /// Whether this thread is in a scope.
    static bool isActive();
};

} // namespace platform
