#include "tests/support/RealtimeWatch.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <dlfcn.h>
#include <pthread.h>
#include <semaphore.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

#ifndef PR_SET_SYSCALL_USER_DISPATCH
#define PR_SET_SYSCALL_USER_DISPATCH 59
#define PR_SYS_DISPATCH_OFF 0
#define PR_SYS_DISPATCH_ON 1
#endif

namespace {

constexpr char allow = 0;
constexpr char block = 1;

thread_local long allocationCount = 0;
thread_local long lockCount = 0;
thread_local volatile long firstSystemCall = RealtimeWatch::noSystemCall;
thread_local volatile char selector = allow;

#ifdef __x86_64__
// Makes the call that was stopped, and lets all further ones pass.
void receiveSystemCall(int, siginfo_t* information, void* context) {
    selector = allow;
    firstSystemCall = information->si_syscall;
    auto* registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
    const long result = syscall(information->si_syscall, registers[REG_RDI], registers[REG_RSI],
                                registers[REG_RDX], registers[REG_R10], registers[REG_R8], registers[REG_R9]);
    registers[REG_RAX] = result < 0 ? -errno : result;
}
#endif

bool dispatch(bool isOn) {
#ifdef __x86_64__
    struct sigaction action {};

    action.sa_sigaction = receiveSystemCall;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSYS, &action, nullptr);
    return prctl(PR_SET_SYSCALL_USER_DISPATCH, isOn ? PR_SYS_DISPATCH_ON : PR_SYS_DISPATCH_OFF, 0L, 0L,
                 isOn ? &selector : nullptr) == 0;
#else
    return !isOn;
#endif
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

bool RealtimeWatch::isSupported() {
    const bool isOn = dispatch(true);
    dispatch(false);
    return isOn;
}

RealtimeWatch::RealtimeWatch() {
    dispatch(true);
    firstSystemCall = noSystemCall;
    m_allocations = -allocationCount;
    m_locks = -lockCount;
    selector = block;
}

void RealtimeWatch::stop() {
    if (!m_isWatching)
        return;
    selector = allow;
    m_isWatching = false;
    m_allocations += allocationCount;
    m_locks += lockCount;
    m_systemCall = firstSystemCall;
    dispatch(false);
}

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);

__attribute__((visibility("default"))) void* malloc(std::size_t size) noexcept {
    ++allocationCount;
    return __libc_malloc(size);
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size) noexcept {
    ++allocationCount;
    return __libc_calloc(count, size);
}

__attribute__((visibility("default"))) void* realloc(void* memory, std::size_t size) noexcept {
    ++allocationCount;
    return __libc_realloc(memory, size);
}

__attribute__((visibility("default"))) void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    ++allocationCount;
    return __libc_memalign(alignment, size);
}

__attribute__((visibility("default"))) void free(void* memory) noexcept {
    ++allocationCount;
    __libc_free(memory);
}

#define NOTELOFT_COUNT_LOCK(function, type)                                                                  \
    __attribute__((visibility("default"))) int function(type* lock) noexcept {                               \
        static auto* const original = next<int(type*)>(#function);                                           \
        ++lockCount;                                                                                         \
        return original(lock);                                                                               \
    }

NOTELOFT_COUNT_LOCK(pthread_mutex_lock, pthread_mutex_t)
NOTELOFT_COUNT_LOCK(pthread_mutex_trylock, pthread_mutex_t)
NOTELOFT_COUNT_LOCK(pthread_rwlock_rdlock, pthread_rwlock_t)
NOTELOFT_COUNT_LOCK(pthread_rwlock_wrlock, pthread_rwlock_t)
NOTELOFT_COUNT_LOCK(pthread_cond_signal, pthread_cond_t)
NOTELOFT_COUNT_LOCK(pthread_cond_broadcast, pthread_cond_t)
NOTELOFT_COUNT_LOCK(sem_post, sem_t)
}
